"""Power spectra of segments: a part of qvxs.signal."""

import warnings
from functools import lru_cache

import numpy as np

from . import raw
from .design import get_window
from .fallback import NotHere, TAGS, or_scipy
from .fft import rfft
from .rows import back, check_axis, last, native

_PIECE = 1 << 16  # samples transformed at a time, so that they stay in the second-level cache


@lru_cache(maxsize=16)
def _weights(window, nperseg, dtype):
    """A window by its name. SciPy's takes 25 us, a quarter of `welch` of 1000 samples."""
    return get_window(window, nperseg).astype(dtype)


@lru_cache(maxsize=16)
def _frequencies(nfft, fs):
    return np.fft.rfftfreq(nfft, 1 / fs)


def _segments(x, fs, window, nperseg, noverlap, nfft, detrend, return_onesided, scaling):
    """Segments of the rows, what they and their powers are weighted with, and the frequencies: what welch and spectrogram begin with."""
    if x.dtype.char not in "fd" or not x.size or not return_onesided or scaling not in ("density", "spectrum"):
        raise NotHere
    if detrend not in ("constant", False, None):
        raise NotHere
    n = x.shape[-1]
    if isinstance(window, (str, tuple)):
        nperseg = 256 if nperseg is None else int(nperseg)
        if nperseg < 1:
            raise NotHere
        if nperseg > n:
            warnings.warn(f"nperseg = {nperseg} is greater than input length  = {n}, using nperseg = {n}", stacklevel=4)
            nperseg = n
        try:
            weights = _weights(window, nperseg, x.dtype)
        except TypeError:  # a tuple that cannot be a key
            weights = get_window(window, nperseg).astype(x.dtype)
    else:
        weights = np.asarray(window)
        if weights.ndim != 1 or weights.size > n or weights.dtype.kind == "c" or nperseg not in (None, weights.size):
            raise NotHere
        nperseg, weights = weights.size, weights.astype(x.dtype)
    nfft = nperseg if nfft is None else int(nfft)
    noverlap = nperseg // 2 if noverlap is None else int(noverlap)
    if nfft < nperseg or noverlap >= nperseg:
        raise NotHere
    scale = 1 / (fs * np.dot(weights, weights)) if scaling == "density" else 1 / weights.sum()**2
    hop = nperseg - noverlap
    shape = x.shape[:-1] + ((n - nperseg) // hop + 1, nperseg)
    segments = np.ndarray(shape, x.dtype, x, 0, x.strides[:-1] + (hop * x.itemsize, x.itemsize))
    return segments, weights, nfft, scale, _frequencies(nfft, fs).copy(), hop


def _powers(segments, weights, nfft, scale, detrend):
    """The one-sided power of every segment: (..., segments, frequencies), piece by piece."""
    n, points = segments.shape[-1], nfft // 2 + 1
    result = np.empty(segments.shape[:-1] + (points,), segments.dtype)
    step = max(1, _PIECE // nfft)
    tag = TAGS[segments.dtype.char]
    mean, power = getattr(raw, "qvxsMean_" + tag), getattr(raw, f"qvxsPowerSpectr_{tag}c")
    hint = (2,) if tag == "32f" else ()  # in doubles
    factors = np.full(points, 2 * scale, segments.dtype)
    factors[::points if nfft % 2 else points - 1 or 1] = scale  # neither 0 nor half the rate has a mirror image
    for source, target in zip(segments.reshape(-1, *segments.shape[-2:]) if segments.ndim > 2 else segments[np.newaxis],
                              result.reshape(-1, *result.shape[-2:])):
        for first in range(0, len(source), step):
            part = source[first:first + step].copy()
            if detrend:
                means = np.empty((len(part), 1), part.dtype)
                raw.rows(mean, part, n, means, *hint)
                part -= means
            part *= weights
            spectrum = rfft(part, nfft)
            place = target[first:first + step]
            power(spectrum, place, spectrum.size)
            place *= factors
    return result


@or_scipy
def spectrogram(x, fs=1.0, window=("tukey", 0.25), nperseg=None, noverlap=None, nfft=None, detrend="constant", return_onesided=True,
                scaling="density", axis=-1, mode="psd"):
    """Frequencies, times and power of successive segments, as scipy.signal.spectrogram: real signals, mode "psd", detrend "constant"
    or False. Exports: qvxsDFTFwd_RToCCS_, qvxsPowerSpectr_.

        >>> f, t, s = spectrogram(np.ones(1024))
        >>> s.shape
        (129, 4)
    """
    x = native(x)
    axis = check_axis(axis, x.ndim)
    if mode != "psd":
        raise NotHere
    if noverlap is None:
        length = np.size(window) if not isinstance(window, (str, tuple)) else 256 if nperseg is None else int(nperseg)
        noverlap = min(length, x.shape[axis]) // 8
    x = last(x, axis)
    segments, weights, nfft, scale, frequencies, hop = _segments(
        x, fs, window, nperseg, noverlap, nfft, detrend, return_onesided, scaling)
    times = np.arange(weights.size / 2, x.shape[-1] - weights.size / 2 + 1, hop) / float(fs)
    powers = _powers(segments, weights, nfft, scale, detrend)
    return frequencies, times, np.moveaxis(powers, -1, axis)


@or_scipy
def welch(x, fs=1.0, window="hann", nperseg=None, noverlap=None, nfft=None, detrend="constant", return_onesided=True,
          scaling="density", axis=-1, average="mean"):
    """Frequencies and the mean power of overlapping segments, as scipy.signal.welch: real signals, average "mean".

        >>> f, p = welch(np.ones(1024), detrend=False, scaling="spectrum")
        >>> p[:3].round(6)
        array([1. , 0.5, 0. ])
    """
    x = native(x)
    axis = check_axis(axis, x.ndim)
    if average != "mean":
        raise NotHere
    segments, weights, nfft, scale, frequencies, _ = _segments(
        last(x, axis), fs, window, nperseg, noverlap, nfft, detrend, return_onesided, scaling)
    powers = _powers(segments, weights, nfft, scale, detrend)
    mean = np.add.reduce(powers, axis=-2)
    mean *= 1 / powers.shape[-2]
    return frequencies, back(mean, axis)
