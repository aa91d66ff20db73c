"""Filters, convolution, resampling, spectra and design with the names, arguments and defaults of scipy.signal.

    >>> import numpy as np
    >>> from qvxs import signal
    >>> b, a = signal.butter(2, 0.25)
    >>> signal.lfilter(b, a, np.ones(4)).round(6)
    array([0.097631, 0.384941, 0.720906, 0.941888])

Arrays of float32 and float64, and complex ones of their parts, are computed here; other types, modes and shapes are left to SciPy,
whose functions are called for them. float32 stays float32; recursive filters compute in doubles all the same. Long convolutions and
FIR filters go by way of the FFT: there a NaN or an infinity spoils all results of the transforms that it enters, not only those
that its taps reach.

The streams `Fir`, `Iir`, `Sos`, `Resampler`, `Lms`, `SparseFir`, `SparseIir`, `WaveletSplit` and `WaveletJoin` keep their state between
blocks: see qvxs.streams.
"""

from .convolution import convolve, correlate, fftconvolve, oaconvolve
from .design import butter, cheby1, firwin, get_window
from .filters import filtfilt, hilbert, lfilter, medfilt, sosfilt, sosfiltfilt
from .multirate import resample_poly, upfirdn
from .periodograms import spectrogram, welch
from .streams import Fir, Iir, Lms, Resampler, Sos, SparseFir, SparseIir
from .wavelets import WaveletJoin, WaveletSplit

COVERED = ["lfilter", "sosfilt", "filtfilt", "sosfiltfilt", "upfirdn", "resample_poly", "convolve", "fftconvolve", "oaconvolve",
           "correlate", "medfilt", "hilbert", "firwin", "get_window", "butter", "cheby1", "welch", "spectrogram"]
__all__ = [*COVERED, "Fir", "Iir", "Sos", "Resampler", "Lms", "SparseFir", "SparseIir", "WaveletSplit", "WaveletJoin"]
