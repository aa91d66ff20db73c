"""Convolution and correlation: a part of qvxs.signal."""

import numpy as np
import scipy.signal

from . import raw
from .fallback import NotHere, TAGS, or_scipy
from .fft import fftn, ifftn, irfftn, next_fast_len, rfftn
from .rows import contiguous


def convolve_rows(rows, taps):
    """Every row convolved with the taps, in full: rows.shape[-1] + len(taps) - 1 results. Both of one of the four types."""
    n, m = rows.shape[-1], len(taps)
    result = np.empty(rows.shape[:-1] + (n + m - 1,), rows.dtype)
    tag = TAGS[rows.dtype.char]
    taps = contiguous(taps)
    if rows.dtype.kind == "c":
        # A correlation with the taps reversed: it conjugates its first source.
        flipped = contiguous(taps[::-1].conj())
        correlate_lags = getattr(raw, "qvxsCrossCorr_" + tag)
        for source, target in zip(rows.reshape(-1, n), result.reshape(-1, n + m - 1)):
            correlate_lags(flipped, m, source, n, target, n + m - 1, 1 - m)
        return result
    call = getattr(raw, "qvxsConv_" + tag)
    for source, target in zip(rows.reshape(-1, n), result.reshape(-1, n + m - 1)):
        call(source, n, taps, m, target)
    return result


def _cut(full, n, m, mode):
    """The part of a full convolution of vectors of n and m elements."""
    if mode == "full":
        return full
    if mode == "same":
        first = (m - 1) // 2
        return full[first:first + n]
    if mode == "valid":
        return full[min(n, m) - 1:max(n, m)]
    raise ValueError("acceptable mode flags are 'valid', 'same', or 'full'")


def _integral(in1, in2):
    """Integers as doubles whose convolution is exact, and their common type; SciPy takes the others."""
    dtype = np.result_type(in1, in2)
    if dtype.kind not in "iu":
        raise NotHere
    largest = [max(abs(int(x.max())), abs(int(x.min()))) for x in (in1, in2)]
    if largest[0] * largest[1] * min(in1.size, in2.size) >= 2**46:  # by way of the FFT, an error below one half
        raise NotHere
    return in1.astype(np.float64), in2.astype(np.float64), dtype


@or_scipy
def convolve(in1, in2, mode="full", method="auto"):
    """The convolution of two arrays, as scipy.signal.convolve: vectors by qvxsConv_ and qvxsCrossCorr_, more axes by transforms.

    Integers are exact: where doubles might not be, SciPy convolves. method is looked at for more than one axis alone: the library
    chooses the faster way for vectors.

        >>> convolve([1, 2, 3], [0, 1, 0.5])
        array([0. , 1. , 2.5, 4. , 1.5])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if method not in ("auto", "direct", "fft") or not in1.ndim == in2.ndim or not in1.ndim or not in1.size or not in2.size:
        raise NotHere
    if in1.ndim > 1:
        if np.result_type(in1, in2).char not in TAGS:
            raise NotHere
        if method == "direct" or method == "auto" and scipy.signal.choose_conv_method(in1, in2, mode) == "direct":
            raise NotHere
        return fftconvolve(in1, in2, mode)
    n, m = in1.size, in2.size
    _cut(in1, n, m, mode)
    dtype = np.result_type(in1, in2)
    whole = dtype.char not in TAGS
    if whole:
        in1, in2, dtype = _integral(in1, in2)
    common = np.dtype(np.float64) if whole else dtype
    full = convolve_rows(contiguous(in1, common), in2.astype(common, copy=False))
    full = _cut(full, n, m, mode)
    return np.rint(full).astype(np.int64).astype(dtype) if whole else full


@or_scipy
def fftconvolve(in1, in2, mode="full", axes=None):
    """The convolution of two arrays by way of the FFT, as scipy.signal.fftconvolve; short vectors are added up directly.

        >>> fftconvolve([1., 2, 3], [0, 1, 0.5]).round(6) + 0
        array([0. , 1. , 2.5, 4. , 1.5])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if in1.ndim != in2.ndim or not in1.ndim or not in1.size or not in2.size:
        raise NotHere
    dtype = np.result_type(in1, in2)
    if dtype.char not in TAGS:
        if dtype.kind not in "iu" or 1 in (in1.size, in2.size):  # a single integer is a factor to SciPy
            raise NotHere
        dtype = np.dtype(np.float64)
    if in1.ndim == 1 and axes in (None, 0, -1, (0,), [0]):
        return convolve(in1.astype(dtype, copy=False), in2.astype(dtype, copy=False), mode)
    if axes is not None or mode == "valid":
        raise NotHere
    shape = [n + m - 1 for n, m in zip(in1.shape, in2.shape)]
    real = dtype.kind != "c"
    lengths = [next_fast_len(n, real) for n in shape]
    there, home = (rfftn, irfftn) if real else (fftn, ifftn)
    product = there(in1.astype(dtype, copy=False), lengths)
    product *= there(in2.astype(dtype, copy=False), lengths)
    full = home(product, lengths)[tuple(slice(n) for n in shape)]
    if mode == "full":
        return full.copy()
    if mode != "same":
        raise ValueError("acceptable mode flags are 'valid', 'same', or 'full'")
    return full[tuple(slice((m - 1) // 2, (m - 1) // 2 + n) for n, m in zip(in1.shape, in2.shape))].copy()


@or_scipy
def oaconvolve(in1, in2, mode="full", axes=None):
    """The convolution of a long and a short array in blocks, as scipy.signal.oaconvolve.

        >>> oaconvolve([1., 2, 3], [0, 1, 0.5]).round(6) + 0
        array([0. , 1. , 2.5, 4. , 1.5])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if in1.ndim != 1 or in2.ndim != 1:
        raise NotHere
    return fftconvolve(in1, in2, mode, axes)


@or_scipy
def correlate(in1, in2, mode="full", method="auto"):
    """The cross-correlation of two arrays, as scipy.signal.correlate. Exports: those of `convolve`.

        >>> correlate([1, 2, 3], [0, 1, 0.5])
        array([0.5, 2. , 3.5, 3. , 0. ])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if in1.ndim != 1 or in2.ndim != 1 or not in1.size or not in2.size or method not in ("auto", "direct", "fft"):
        raise NotHere
    result = convolve(in1, in2[::-1].conj(), "full", method)
    if mode == "same" and in2.size > in1.size:
        raise NotHere  # SciPy takes another part of it here
    if mode == "valid" and in2.size > in1.size:
        return result[in1.size - 1:in2.size].copy()
    return _cut(result, in1.size, in2.size, mode)
