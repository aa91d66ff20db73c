"""Measures how clean a resampler is: the noise and the images that it adds to tones, for filters of several lengths.

usage: resampling_quality.py [PICTURE]
"""

import sys

import matplotlib
import numpy as np

import qvxs
import qvxs.signal

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402

# %% From 48 kHz to 44.1 kHz, as a stream in blocks of 1000 samples
UP, DOWN, RATE = 147, 160, 48000


def resampled(x, taps):
    stream = qvxs.signal.Resampler(UP, DOWN, taps, np.float64)
    return np.concatenate([stream.process(x[first:first + 1000]) for first in range(0, len(x), 1000)] + [stream.flush()])


def noise_of(y, frequency):
    """What is left of a tone without the sine that fits it best, in dB below it."""
    y = y[len(y) // 4:3 * len(y) // 4]
    angle = 2 * np.pi * frequency * np.arange(len(y))
    basis = np.stack((np.cos(angle), np.sin(angle)), axis=1)
    fit = basis @ np.linalg.lstsq(basis, y, rcond=None)[0]
    return 10 * np.log10(qvxs.dot(y - fit, y - fit) / qvxs.dot(fit, fit))


# %% Tones from 1 kHz up, through Kaiser windows of 20, 40 and 80 zero crossings
tones = np.arange(1000, 20001, 1000)
figure, axes = plt.subplots(figsize=(9, 5), layout="constrained")
for half, beta in ((10, 5.0), (20, 9.0), (40, 13.0)):
    taps = qvxs.signal.firwin(2 * half * DOWN + 1, 1 / DOWN, window=("kaiser", beta)) * UP
    levels = [noise_of(resampled(qvxs.tone(30000, 1, f / RATE, dtype=np.float64), taps), f / RATE * DOWN / UP) for f in tones]
    print(f"{len(taps)} taps: noise at {max(levels[:15]):.0f} dB up to 15 kHz")
    axes.plot(tones / 1000, levels, marker=".", label=f"{2 * half} zero crossings, beta {beta:g}")

# %% The picture
axes.set(xlabel="tone, kHz", ylabel="noise, dB", title="48 kHz to 44.1 kHz")
axes.grid(True, alpha=0.3)
axes.legend()
figure.savefig(sys.argv[1] if len(sys.argv) > 1 else "resampling_quality.png", dpi=100)
