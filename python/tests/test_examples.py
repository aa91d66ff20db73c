"""The programs of python/examples, on short inputs: what they print holds, and they draw."""

import os
import pathlib
import re
import subprocess
import sys

import pytest

import qvxs

EXAMPLES = pathlib.Path(__file__).parents[1] / "examples"
PACKAGE = pathlib.Path(qvxs.__file__).parents[1]


def told(name, *arguments, folder):
    ran = subprocess.run([sys.executable, "-B", EXAMPLES / name, *arguments], capture_output=True, text=True, cwd=folder, timeout=300,
                         env={**os.environ, "PYTHONPATH": str(PACKAGE)})
    assert ran.returncode == 0, ran.stderr
    return ran.stdout


@pytest.mark.parametrize("name", ["filter_design", "spectrogram", "resampling_quality"])
def test_pictures(name, tmp_path):
    said = told(name + ".py", "made.png", folder=tmp_path)
    assert (tmp_path / "made.png").read_bytes()[:4] == b"\x89PNG" and (tmp_path / "made.png").stat().st_size > 20000
    if name == "filter_design":
        assert len(lines := re.findall(r"beside freqz off by (\S+)", said)) == 3 and max(map(float, lines)) < 1e-6
    elif name == "spectrogram":
        off, bins = map(float, re.search(r"off by (\d+) Hz at most, bins are (\d+) Hz", said).groups())
        assert off <= 2 * bins
    else:
        levels = [float(level) for level in re.findall(r"(-\d+)(?:\.\d)? dB", said)]
        assert levels and max(levels) < -40


def test_a_recording_on_two_workers(tmp_path):
    said = told("long_recording.py", "--minutes", "1", "--chunk", "480000", folder=tmp_path)
    assert "1.0 minutes, 12 MB as floats, in 6 chunks" in said
    deviation, share = (float(re.search(pattern, said)[1]) for pattern in (r"the deviation ([\d.]+)", r"(\d+) %"))
    assert 0.005 < deviation < 0.4 and 0 < share <= 100
