"""Taps of FIR and recursive filters: a part of qvxs.signal."""

from functools import lru_cache

import numpy as np
import scipy.signal

from . import raw
from .fallback import NotHere, or_scipy

_FIR_WINDOWS = {"bartlett": 0, "hamming": 2, "hann": 3}


@or_scipy
def firwin(numtaps, cutoff, width=None, window="hamming", pass_zero=True, scale=True, nyq=None, fs=None):
    """Taps of a FIR filter by a window, as scipy.signal.firwin. Exports: qvxsFIRGenLowpass_64f and its like, of the windows
    Bartlett, Hamming and Hann with one or two cut-offs; SciPy designs the others.

        >>> firwin(5, 0.5).round(6) + 0
        array([0.      , 0.203712, 0.592575, 0.203712, 0.      ])
    """
    cutoff = np.atleast_1d(cutoff)
    half = 1.0 if nyq is None and fs is None else None
    if not isinstance(pass_zero, (bool, str)):
        raise NotHere
    if half is None or width is not None or not isinstance(window, str) or window not in _FIR_WINDOWS or numtaps < 5:
        raise NotHere
    if cutoff.ndim != 1 or cutoff.size not in (1, 2) or (cutoff <= 0).any() or (cutoff >= 1).any() or (np.diff(cutoff) <= 0).any():
        raise NotHere
    kinds = {(1, True): "Lowpass", (1, "lowpass"): "Lowpass", (1, False): "Highpass", (1, "highpass"): "Highpass",
             (2, True): "Bandstop", (2, "bandstop"): "Bandstop", (2, False): "Bandpass", (2, "bandpass"): "Bandpass"}
    kind = kinds.get((cutoff.size, pass_zero))
    if kind is None or kind in ("Highpass", "Bandstop") and numtaps % 2 == 0:
        raise NotHere
    taps = np.empty(numtaps)
    getattr(raw, f"qvxsFIRGen{kind}_64f")(*(float(f) / 2 for f in cutoff), taps, numtaps, _FIR_WINDOWS[window], int(bool(scale)))
    return taps


# The library's windows have an error of 2^-45; SciPy's are exact to the last bit, and their speed does not matter here.
get_window = scipy.signal.get_window


def _classic(order, frequency, ripple, kind, btype, analog, output, fs):
    """Low-pass and high-pass filters as taps: each is the exact one, rounded once."""
    makers = {"low": "Lowpass", "lowpass": "Lowpass", "lp": "Lowpass", "high": "Highpass", "highpass": "Highpass", "hp": "Highpass"}
    maker = makers.get(btype.lower()) if isinstance(btype, str) else None
    if analog or output != "ba" or maker is None or np.size(frequency) != 1 or order != int(order) or not 1 <= order <= 12:
        raise NotHere
    frequency = float(np.reshape(frequency, -1)[0]) / (1 if fs is None else fs / 2)
    if not 0 < frequency < 1 or kind and not 0 < ripple <= 29:
        raise NotHere
    taps = np.empty(2 * (int(order) + 1))
    getattr(raw, f"qvxsIIRGen{maker}_64f")(frequency / 2, float(ripple), int(order), taps, kind)
    return taps[:int(order) + 1].copy(), taps[int(order) + 1:].copy()


@or_scipy
def butter(N, Wn, btype="low", analog=False, output="ba", fs=None):
    """A Butterworth filter, as scipy.signal.butter. Exports: qvxsIIRGenLowpass_64f, qvxsIIRGenHighpass_64f for taps of orders up
    to 12; SciPy designs band filters, analog ones, sections and poles.

        >>> butter(1, 0.5)[0]
        array([0.5, 0.5])
    """
    return _classic(N, Wn, 0, 0, btype, analog, output, fs)


@or_scipy
def cheby1(N, rp, Wn, btype="low", analog=False, output="ba", fs=None):
    """A Chebyshev filter of type I, as scipy.signal.cheby1; what is computed here is as `butter` says, ripple up to 29 dB.

        >>> cheby1(1, 3, 0.5)[0].round(6)
        array([0.500594, 0.500594])
    """
    return _classic(N, Wn, rp, 1, btype, analog, output, fs)


@lru_cache(maxsize=32)
def resampling_taps(rate, window=("kaiser", 5.0)):
    """The filter of resample_poly. Its design takes 1 ms at a rate of 160, as long as 30000 samples; so it is kept."""
    taps = firwin(20 * rate + 1, 1 / rate, window=window)
    taps.flags.writeable = False
    return taps
