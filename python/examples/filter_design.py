"""Designs low-pass filters in three ways, draws their responses, and what they do to a step.

usage: filter_design.py [PICTURE]
"""

import sys

import matplotlib
import numpy as np
import scipy.signal

import qvxs.signal

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402

# %% A cut-off of 1 kHz at 8 kHz
RATE, CUT = 8000, 1000
filters = {
    "Butterworth, order 6": qvxs.signal.butter(6, CUT, fs=RATE),
    "Chebyshev, order 6, 1 dB": qvxs.signal.cheby1(6, 1, CUT, fs=RATE),
    "101 taps, Hamming": (qvxs.signal.firwin(101, CUT / (RATE / 2)), np.ones(1)),
}

# %% Their responses: the transform of the answer to an impulse
impulse, step = np.zeros(8192), np.ones(160)
impulse[0] = 1
figure, (upper, lower) = plt.subplots(2, 1, figsize=(9, 7), layout="constrained")
for name, (b, a) in filters.items():
    response = qvxs.fft.rfft(qvxs.signal.lfilter(b, a, impulse))
    frequencies = np.linspace(0, RATE / 2, len(response))
    exact = scipy.signal.freqz(b, a, frequencies, fs=RATE)[1]
    level = 20 * np.log10(np.maximum(np.abs(response), 1e-9))
    at_cut = level[np.searchsorted(frequencies, CUT)]
    print(f"{name}: {at_cut:.2f} dB at {CUT} Hz, beside freqz off by {np.abs(response - exact).max():.1e}")
    upper.plot(frequencies, level, label=name)
    lower.plot(np.arange(len(step)) / RATE * 1000, qvxs.signal.lfilter(b, a, step), label=name)

# %% The picture
upper.set(xlabel="frequency, Hz", ylabel="gain, dB", ylim=(-100, 5))
lower.set(xlabel="time, ms", ylabel="answer to a step")
for axes in (upper, lower):
    axes.grid(True, alpha=0.3)
    axes.legend()
figure.savefig(sys.argv[1] if len(sys.argv) > 1 else "filter_design.png", dpi=100)
