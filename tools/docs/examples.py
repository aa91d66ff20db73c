"""The examples: their sources, the calls that show what they do, what these print and draw."""

import os
import re
import shlex
import subprocess
from dataclasses import dataclass, field
from pathlib import Path

from pictures import Picture

# In this order, since later ones read what earlier ones wrote. All recordings are made here, so nothing else need be installed.
CALLS = """
signals make sweep -o sweep.wav
signals make tone --seconds 2 -o tone.wav
signals make uniform --seconds 20 -o noise.wav
signals windows --plot windows.svg
dtmf dial 0123456789 -o keys.wav
dtmf listen keys.wav
spectrum keys.wav --order 11 --output spectrum.svg
spectrogram draw keys.wav --window 400 --output spectrogram.png
spectrogram bands keys.wav
spectrogram draw sweep.wav --window 800 --output sweep.png
parametric low --frequency 4000 --order 6 --ripple 1 --plot response.svg
parametric high --frequency 300 --order 4
mixdown tone.wav sweep.wav --gain -6 --gain -12 -o mix.wav
equalise noise.wav --taps telephone.txt -o telephone.wav
spectrum telephone.wav --order 10 --peaks 3 --output telephone.svg
resample tone.wav --rate 44100 -o cd.wav
echo make sweep.wav -o microphone.wav
echo cancel sweep.wav microphone.wav -o cancelled.wav --plot echo.svg
reverb keys.wav --seconds 0.8 -o room.wav
align keys.wav room.wav
denoise tone.wav --add-noise -30 -o denoised.wav
loudness mix.wav
fm transmit tone.wav -o station.wav
fm receive station.wav -o received.wav --original tone.wav
g711 encode keys.wav --law mu -o codes.wav
g711 snr --sine
""".strip().split("\n")

PICTURES = {
    "windows.svg": ("The spectra of the windows, by the signals example.", ("window", "index")),
    "response.svg": ("A Chebyshev low-pass filter of order 6, ripple 1 dB, by the parametric example.", ("iir", "index")),
    "spectrum.svg": ("The tones of ten telephone keys, by the spectrum example.", ("goertzel",)),
    "spectrogram.png": ("The same keys over time, by the spectrogram example.", ("dft", "index")),
    "telephone.svg": ("White noise through a telephone's FIR filter, by the examples equalise and spectrum.", ("fir", "fir_design")),
    "sweep.png": ("A sweep, by the examples signals and spectrogram.", ("generate",)),
    "echo.svg": ("An adaptive filter learns an echo, by the echo example.", ("lms",)),
}


@dataclass
class Example:
    name: str
    does: str
    sources: list
    text: str
    runs: list = field(default_factory=list)  # (call, what it printed)
    pictures: list = field(default_factory=list)


def read(root):
    """The examples in the order of the guide's table, which must have all of them."""
    rows = re.findall(r"^\| \[(\w+)\]\([^)]*\) \| (.*?) \|$", (root / "docs/guide.md").read_text(), re.M)
    missing = {path.parent.name for path in (root / "examples").glob("*/main.cpp")} - {name for name, _ in rows}
    if missing:
        raise SystemExit(f"docs/guide.md has no line for the examples {', '.join(sorted(missing))}")
    result = []
    for name, does in rows:
        folder = root / "examples" / name
        sources = sorted(folder.glob("*.cpp"), key=lambda path: (path.name != "main.cpp", path.name)) + sorted(folder.glob("*.h"))
        result.append(Example(name, does, sources, "\n".join(path.read_text() for path in sources)))
    return result


def run(examples, build, variant, output):
    """Runs all calls in one folder of the build and takes the pictures to the site. A call that fails ends it."""
    folder = build / "docs-examples"
    folder.mkdir(exist_ok=True)
    telephone = Path(__file__).parent.parent.parent / "examples/equalise/telephone.txt"
    (folder / "telephone.txt").write_bytes(telephone.read_bytes())
    by_name = {example.name: example for example in examples}
    environment = dict(os.environ, LD_LIBRARY_PATH=str((build / "variants" / variant).resolve()))
    for call in CALLS:
        name, *arguments = shlex.split(call)
        done = subprocess.run([str((build / "examples" / name).resolve()), *arguments], cwd=folder, env=environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120)
        if done.returncode != 0:
            raise SystemExit(f"{call}: status {done.returncode}\n{done.stdout}")
        by_name[name].runs.append((call, done.stdout))
        for file in PICTURES:
            if file in arguments:
                caption, pages = PICTURES[file]
                (output / file).write_bytes((folder / file).read_bytes())
                by_name[name].pictures.append(Picture(file, caption, pages))
