"""Draws the spectrogram of a chirp in noise, and its mean spectrum.

usage: spectrogram.py [PICTURE]
"""

import sys

import matplotlib
import numpy as np

import qvxs
import qvxs.signal

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402

# %% A chirp from 500 Hz to 15 kHz in noise, 40 dB below it
RATE = 48000
seconds = np.arange(4 * RATE) / RATE
x = np.sin(2 * np.pi * (500 * seconds + 1812.5 * seconds**2)).astype(np.float32)
x = qvxs.add(x, qvxs.gauss(len(x), 0, 0.01))

# %% Its power over time and frequency, and the mean over time
f, t, power = qvxs.signal.spectrogram(x, RATE, window="hann", nperseg=1024, noverlap=768)
g, density = qvxs.signal.welch(x, RATE, nperseg=4096)

# %% The strongest frequency follows the chirp
found = f[power.argmax(axis=0)]
print(f"the strongest frequency is off by {np.abs(found - (500 + 3625 * t)).max():.0f} Hz at most, bins are {f[1]:.0f} Hz wide")

# %% The picture
figure, (upper, lower) = plt.subplots(2, 1, figsize=(9, 7), layout="constrained")
image = upper.pcolormesh(t, f / 1000, 10 * np.log10(power + 1e-20), vmin=-110, vmax=-20, rasterized=True)
figure.colorbar(image, ax=upper, label="dB / Hz")
upper.set(xlabel="time, s", ylabel="frequency, kHz")
lower.semilogx(g[1:], 10 * np.log10(density[1:]))
lower.set(xlabel="frequency, Hz", ylabel="dB / Hz", xlim=(20, RATE / 2))
lower.grid(True, alpha=0.3)
figure.savefig(sys.argv[1] if len(sys.argv) > 1 else "spectrogram.png", dpi=100)
