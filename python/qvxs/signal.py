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

import math
import warnings
from collections import deque
from functools import lru_cache, wraps

import numpy as np
import scipy.signal

from . import raw
from .fft import fftn, ifft, ifftn, irfftn, next_fast_len, rfft, rfftn
from .rows import back, check_axis, contiguous, last, native
from .streams import (Fir, Iir, Lms, Resampler, Sos, SparseFir, SparseIir, WaveletJoin, WaveletSplit, filter_record,
                      section_record)

COVERED = ["lfilter", "sosfilt", "filtfilt", "sosfiltfilt", "upfirdn", "resample_poly", "convolve", "fftconvolve", "oaconvolve",
           "correlate", "medfilt", "hilbert", "firwin", "get_window", "butter", "cheby1", "welch", "spectrogram"]
__all__ = [*COVERED, "Fir", "Iir", "Sos", "Resampler", "Lms", "SparseFir", "SparseIir", "WaveletSplit", "WaveletJoin"]

_ndarray = np.ndarray
_TAGS = {"f": "32f", "d": "64f", "F": "32fc", "D": "64fc"}


class _NotHere(Exception):
    """Raised for what SciPy has and this module has not."""


def _or_scipy(function):
    """Leaves to SciPy what is not here; SciPy's function is looked up now, before ours may replace it."""
    other = getattr(scipy.signal, function.__name__)

    @wraps(function)
    def public(*args, **kwargs):
        try:
            return function(*args, **kwargs)
        except _NotHere:
            return other(*args, **kwargs)

    return public


def _common(*arrays):
    """The type that SciPy would compute in, if it is one of the four here."""
    dtype = np.result_type(*arrays)
    if dtype.char not in _TAGS:
        raise _NotHere
    return dtype


# ---- recursive filters


@_or_scipy
def lfilter(b, a, x, axis=-1, zi=None):
    """Filters along an axis by the taps b / a, as scipy.signal.lfilter; with zi returns the final state as well.

    b, a: taps, a[0] not 0; x: array; zi: max(len(a), len(b)) - 1 values for each row. The type is that of NumPy's promotion of all.
    Exports: qvxsIIRInitAlloc_, qvxsIIR_, qvxsIIRGetDlyLine_ and qvxsIIRSetDlyLine_ of 32f, 64f, 32fc, 64fc; of b alone qvxsFIR_ (qvxsConv_ with zi).

        >>> lfilter([1.], [1, -0.5], [1., 0, 0, 0])
        array([1.   , 0.5  , 0.25 , 0.125])
    """
    if zi is None and x.__class__ is a.__class__ is b.__class__ is _ndarray and x.ndim == a.ndim == b.ndim == 1 and (
            x.dtype is a.dtype is b.dtype and x.dtype.char in _TAGS and a.size > 1 and b.size and x.size and a[0] and (axis == -1 or axis == 0)):
        # The usual call, without the checks below, which take as long as 2000 samples.
        result = np.empty(x.size, x.dtype)
        calls, spares = _record(filter_record, x.dtype, b, a)
        record, run, _, write = calls
        try:
            run(x, result, x.size, record)
            write(record, None)
            spares.append(calls)
            return result
        except (TypeError, ValueError):  # of strides
            spares.append(calls)
    b, a, x = np.atleast_1d(b), np.atleast_1d(a), np.asarray(x)
    if b.ndim != 1 or a.ndim != 1 or not x.ndim or not b.size or not a.size or not x.size:
        raise _NotHere
    zi = zi if zi is None else np.asarray(zi)
    dtype = _common(b, a, x) if zi is None else _common(b, a, x, zi)
    if a[0] == 0:
        raise _NotHere
    axis = check_axis(axis, x.ndim)
    order = max(len(a), len(b)) - 1
    if order == 0:
        raise _NotHere
    if len(a) == 1:
        return _moving_average(b / a[0], x, axis, zi, dtype)
    rows = last(x.astype(dtype, copy=False), axis)
    return _each_row(rows, axis, zi, (order,), dtype, filter_record, b, a)


# Records kept for the next call with the same taps, with a state of zeros: making one takes as long as 3000 samples.
_spares = {}


def _record(make, dtype, *taps):
    """A record of the taps with its exports, and where to return them after use."""
    key = make, dtype.char, *[part for x in taps for part in (x.tobytes(), x.dtype.char)]
    spares = _spares.get(key)
    if spares is None:
        while len(_spares) >= 32:
            _spares.pop(list(_spares)[0], None)
        spares = _spares[key] = deque(maxlen=4)
    try:
        return spares.pop(), spares
    except IndexError:
        return make(*taps, dtype, wide=False), spares


def _each_row(rows, axis, zi, shape, dtype, make, *taps):
    """Filters every row by the record of the taps, from its state in zi."""
    calls, spares = _record(make, dtype, *taps)
    record, run, read, write = calls
    result = np.empty_like(rows)
    n = rows.shape[-1]
    if zi is not None:
        start = _states(zi, rows.shape[:-1], shape, axis, rows.ndim).astype(dtype, copy=False)
        states = start.reshape(-1, math.prod(shape))
        final = np.empty_like(states)
    for i, (source, target) in enumerate(zip(rows.reshape(-1, n), result.reshape(-1, n))):
        if zi is not None:
            write(record, states[i])
        elif i:
            write(record, None)
        run(source, target, n, record)
        if zi is not None:
            read(record, final[i])
    write(record, None)
    spares.append(calls)
    result = back(result, axis)
    if zi is None:
        return result
    return result, _states_back(final.reshape(start.shape), shape, axis)


def _states(zi, outer, shape, axis, ndim):
    """The states of SciPy with one row each: (order) along the axis, or sections first and (2) along the axis."""
    zi = np.asarray(zi)
    if len(shape) == 2:
        expected = (shape[0], *outer[:axis], shape[1], *outer[axis:])
        if zi.shape != expected:
            raise ValueError(f"Invalid zi shape. With axis={axis}, zi must have shape {expected}, got {zi.shape}.")
        return contiguous(np.moveaxis(zi, [0, axis + 1], [-2, -1]))
    if zi.ndim != ndim:
        raise ValueError("object of too small depth for desired array")
    moved = np.moveaxis(zi, axis, -1)
    if moved.shape[-1] != shape[0] or any(have not in (1, want) for have, want in zip(moved.shape, outer)):
        raise ValueError(f"Unexpected shape for zi: expected {(*outer[:axis], shape[0], *outer[axis:])}, found {zi.shape}.")
    return contiguous(np.broadcast_to(moved, outer + shape))


def _states_back(states, shape, axis):
    return np.moveaxis(states, [-2, -1], [0, axis + 1]) if len(shape) == 2 else np.moveaxis(states, -1, axis)


def _moving_average(taps, x, axis, zi, dtype):
    """A filter without feedback. The state of SciPy is the end of the convolution."""
    rows = last(x.astype(dtype, copy=False), axis)
    n, order = rows.shape[-1], len(taps) - 1
    if zi is None:
        fir = Fir(taps, dtype)
        result = np.empty_like(rows)
        for source, target in zip(rows.reshape(-1, n), result.reshape(-1, n)):
            fir.reset()
            fir.process(source, out=target)
        return back(result, axis)
    start = _states(zi, rows.shape[:-1], (order,), axis, rows.ndim)
    full = _convolve_rows(rows, taps.astype(dtype))
    full[..., :order] += start
    return back(full[..., :n], axis), back(full[..., n:], axis)


@_or_scipy
def sosfilt(sos, x, axis=-1, zi=None):
    """Filters along an axis by second-order sections, as scipy.signal.sosfilt; with zi returns the final state as well.

    sos: (sections, 6), with b0 not 0 (else SciPy filters); zi: (sections, ..., 2, ...). Exports: qvxsIIRInitAlloc_BiQuad_, qvxsIIR_.

        >>> sosfilt([[1., 0, 0, 1, -0.5, 0]], [1., 0, 0])
        array([1.  , 0.5 , 0.25])
    """
    sos, x = np.atleast_2d(sos), np.asarray(x)
    if sos.ndim != 2 or sos.shape[1] != 6 or not x.ndim or not x.size or not (sos[:, 3] == 1).all() or not sos[:, 0].all():
        raise _NotHere
    zi = zi if zi is None else np.asarray(zi)
    dtype = _common(sos, x) if zi is None else _common(sos, x, zi)
    axis = check_axis(axis, x.ndim)
    rows = last(x.astype(dtype, copy=False), axis)
    return _each_row(rows, axis, zi, (len(sos), 2), dtype, section_record, sos)


def _edge(x, padtype, padlen, axis, taps):
    """The number of samples by which each end is extended."""
    if padtype not in ("even", "odd", "constant", None):
        raise ValueError(f"Unknown value '{padtype}' given to padtype.  padtype must be 'even', 'odd', 'constant', or None.")
    edge = 0 if padtype is None else taps * 3 if padlen is None else padlen
    if x.shape[axis] <= edge:
        raise ValueError(f"The length of the input vector x must be greater than padlen, which is {edge}.")
    return edge


def _continued(rows, edge, padtype, dtype):
    """The rows with extended ends: reflected through the end points (odd), mirrored (even), or constant."""
    n = rows.shape[1]
    buffer = np.empty((len(rows), n + 2 * edge), dtype)
    buffer[:, edge:edge + n] = rows
    if edge:
        before, after = rows[:, edge:0:-1], rows[:, -2:-edge - 2:-1]
        if padtype == "constant":
            before, after = rows[:, :1], rows[:, -1:]
        buffer[:, :edge] = 2 * rows[:, :1] - before if padtype == "odd" else before
        buffer[:, edge + n:] = 2 * rows[:, -1:] - after if padtype == "odd" else after
    return buffer


def _there_and_back(make, taps, start, x, edge, padtype, axis):
    """Every row through the record of the taps, reversed, through it again, and back; each time from the state `start` times its
    first element. All in one buffer: a new one of a megabyte costs as much as half a filter."""
    dtype = _common(*taps, x, start)
    axis = check_axis(axis, x.ndim)
    x = last(x, axis)
    n = x.shape[-1]
    buffer = _continued(x.reshape(-1, n), edge, padtype, dtype)
    result = np.empty(x.shape, dtype)
    tag, length = _TAGS[dtype.char], n + 2 * edge
    run, flip, flipped = (getattr(raw, f"qvxs{stem}_{tag}{end}") for stem, end in (("IIR", "_I"), ("Flip", "_I"), ("Flip", "")))
    start = start.astype(dtype, copy=False).reshape(-1)
    calls, spares = _record(make, dtype, *taps)
    record, write = calls[0], calls[3]
    for row, target in zip(buffer, result.reshape(-1, n)):
        write(record, start * row[0])
        run(row, length, record)
        flip(row, length)
        write(record, start * row[0])
        run(row, length, record)
        flipped(row[edge:edge + n], target, n)
    write(record, None)
    spares.append(calls)
    return back(result, axis)


@lru_cache(maxsize=32)
def _steady(function, *taps):
    """What lfilter_zi or sosfilt_zi says of taps, which are given as bytes, type and shape: solving for it takes as long as 5000 samples."""
    return function(*(np.frombuffer(data, dtype).reshape(shape) for data, dtype, shape in taps))


def _key(x):
    return x.tobytes(), x.dtype, x.shape


@_or_scipy
def filtfilt(b, a, x, axis=-1, padtype="odd", padlen=None, method="pad", irlen=None):
    """Filters forward and backward, without delay, as scipy.signal.filtfilt; SciPy computes method="gust".

        >>> b, a = butter(2, 0.2)
        >>> filtfilt(b, a, np.ones(12)).round(6)[:3]
        array([1., 1., 1.])
    """
    b, a, x = np.atleast_1d(b), np.atleast_1d(a), np.asarray(x)
    if method != "pad" or not x.size or max(len(a), len(b)) < 2 or a.ndim != 1 or b.ndim != 1 or a[0] == 0:
        raise _NotHere
    _common(b, a, x)
    edge = _edge(x, padtype, padlen, axis, max(len(a), len(b)))
    zi = _steady(scipy.signal.lfilter_zi, _key(b), _key(a))
    if len(a) > 1:
        return _there_and_back(filter_record, (b, a), zi, x, edge, padtype, axis)
    # Without feedback, by lfilter, which knows the convolution.
    axis = check_axis(axis, x.ndim)
    x = last(x, axis)
    y = _continued(x.reshape(-1, x.shape[-1]), edge, padtype, _common(b, a, x))
    for _ in range(2):
        y = lfilter(b, a, y, zi=zi * y[:, :1])[0][:, ::-1]
    return back(y[:, edge:y.shape[1] - edge].reshape(x.shape), axis)


@_or_scipy
def sosfiltfilt(sos, x, axis=-1, padtype="odd", padlen=None):
    """Filters forward and backward by second-order sections, as scipy.signal.sosfiltfilt.

        >>> sosfiltfilt(butter(2, 0.2, output="sos"), np.ones(12)).round(6)[:3]
        array([1., 1., 1.])
    """
    sos, x = np.atleast_2d(sos), np.asarray(x)
    if sos.ndim != 2 or sos.shape[1] != 6 or not x.ndim or not x.size or not sos[:, 0].all() or not (sos[:, 3] == 1).all():
        raise _NotHere
    _common(sos, x)
    taps = 2 * len(sos) + 1 - min((sos[:, 2] == 0).sum(), (sos[:, 5] == 0).sum())
    edge = _edge(x, padtype, padlen, axis, taps)
    return _there_and_back(section_record, (sos,), _steady(scipy.signal.sosfilt_zi, _key(sos)), x, edge, padtype, axis)


# ---- convolution


def _convolve_rows(rows, taps):
    """Every row convolved with the taps, in full: rows.shape[-1] + len(taps) - 1 results. Both of one of the four types."""
    n, m = rows.shape[-1], len(taps)
    result = np.empty(rows.shape[:-1] + (n + m - 1,), rows.dtype)
    tag = _TAGS[rows.dtype.char]
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
        raise _NotHere
    largest = [max(abs(int(x.max())), abs(int(x.min()))) for x in (in1, in2)]
    if largest[0] * largest[1] * min(in1.size, in2.size) >= 2**46:  # by way of the FFT, an error below one half
        raise _NotHere
    return in1.astype(np.float64), in2.astype(np.float64), dtype


@_or_scipy
def convolve(in1, in2, mode="full", method="auto"):
    """The convolution of two arrays, as scipy.signal.convolve: vectors by qvxsConv_ and qvxsCrossCorr_, more axes by transforms.

    Integers are exact: where doubles might not be, SciPy convolves. method is looked at for more than one axis alone: the library
    chooses the faster way for vectors.

        >>> convolve([1, 2, 3], [0, 1, 0.5])
        array([0. , 1. , 2.5, 4. , 1.5])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if method not in ("auto", "direct", "fft") or not in1.ndim == in2.ndim or not in1.ndim or not in1.size or not in2.size:
        raise _NotHere
    if in1.ndim > 1:
        if np.result_type(in1, in2).char not in _TAGS:
            raise _NotHere
        if method == "direct" or method == "auto" and scipy.signal.choose_conv_method(in1, in2, mode) == "direct":
            raise _NotHere
        return fftconvolve(in1, in2, mode)
    n, m = in1.size, in2.size
    _cut(in1, n, m, mode)
    dtype = np.result_type(in1, in2)
    whole = dtype.char not in _TAGS
    if whole:
        in1, in2, dtype = _integral(in1, in2)
    common = np.dtype(np.float64) if whole else dtype
    full = _convolve_rows(contiguous(in1, common), in2.astype(common, copy=False))
    full = _cut(full, n, m, mode)
    return np.rint(full).astype(np.int64).astype(dtype) if whole else full


@_or_scipy
def fftconvolve(in1, in2, mode="full", axes=None):
    """The convolution of two arrays by way of the FFT, as scipy.signal.fftconvolve; short vectors are added up directly.

        >>> fftconvolve([1., 2, 3], [0, 1, 0.5]).round(6) + 0
        array([0. , 1. , 2.5, 4. , 1.5])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if in1.ndim != in2.ndim or not in1.ndim or not in1.size or not in2.size:
        raise _NotHere
    dtype = np.result_type(in1, in2)
    if dtype.char not in _TAGS:
        if dtype.kind not in "iu" or 1 in (in1.size, in2.size):  # a single integer is a factor to SciPy
            raise _NotHere
        dtype = np.dtype(np.float64)
    if in1.ndim == 1 and axes in (None, 0, -1, (0,), [0]):
        return convolve(in1.astype(dtype, copy=False), in2.astype(dtype, copy=False), mode)
    if axes is not None or mode == "valid":
        raise _NotHere
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


@_or_scipy
def oaconvolve(in1, in2, mode="full", axes=None):
    """The convolution of a long and a short array in blocks, as scipy.signal.oaconvolve.

        >>> oaconvolve([1., 2, 3], [0, 1, 0.5]).round(6) + 0
        array([0. , 1. , 2.5, 4. , 1.5])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if in1.ndim != 1 or in2.ndim != 1:
        raise _NotHere
    return fftconvolve(in1, in2, mode, axes)


@_or_scipy
def correlate(in1, in2, mode="full", method="auto"):
    """The cross-correlation of two arrays, as scipy.signal.correlate. Exports: those of `convolve`.

        >>> correlate([1, 2, 3], [0, 1, 0.5])
        array([0.5, 2. , 3.5, 3. , 0. ])
    """
    in1, in2 = np.asarray(in1), np.asarray(in2)
    if in1.ndim != 1 or in2.ndim != 1 or not in1.size or not in2.size or method not in ("auto", "direct", "fft"):
        raise _NotHere
    result = convolve(in1, in2[::-1].conj(), "full", method)
    if mode == "same" and in2.size > in1.size:
        raise _NotHere  # SciPy takes another part of it here
    if mode == "valid" and in2.size > in1.size:
        return result[in1.size - 1:in2.size].copy()
    return _cut(result, in1.size, in2.size, mode)


# ---- multi-rate filters


@_or_scipy
def upfirdn(h, x, up=1, down=1, axis=-1, mode="constant", cval=0):
    """Up-sampling, FIR filter and down-sampling in one, as scipy.signal.upfirdn with zeros around the signal.

    Exports: qvxsFIRMRInitAlloc_ and qvxsFIR_ of 32f, 64f, 32fc, 64fc.

        >>> upfirdn([1., 1, 1], [1., 2, 3], 2)
        array([1., 1., 3., 2., 5., 3., 3.])
    """
    h, x = np.asarray(h), np.asarray(x)
    up, down = int(up), int(down)
    if h.ndim != 1 or not h.size or not x.ndim or not x.size or up < 1 or down < 1 or mode != "constant" or cval:
        raise _NotHere
    dtype = np.result_type(h, x, np.float32)
    if dtype.char not in _TAGS:
        raise _NotHere
    tag = _TAGS[dtype.char]
    axis = check_axis(axis, x.ndim)
    rows = np.moveaxis(x, axis, -1)
    n = rows.shape[-1]
    wanted = ((n - 1) * up + len(h) - 1) // down + 1
    groups = -(-wanted // up)
    padded = np.zeros(rows.shape[:-1] + (max(groups * down, n),), dtype)
    padded[..., :n] = rows
    result = np.empty(rows.shape[:-1] + (groups * up,), dtype)
    taps = contiguous(h, dtype)
    record = getattr(raw, "qvxsFIRMRInitAlloc_" + tag)(taps, len(taps), up, 0, down, 0, None)
    run, write = getattr(raw, "qvxsFIR_" + tag), getattr(raw, "qvxsFIRSetDlyLine_" + tag)
    for i, (source, target) in enumerate(zip(padded.reshape(-1, padded.shape[-1]), result.reshape(-1, groups * up))):
        if i:
            write(record, None)
        run(source, target, groups, record)
    return back(result[..., :wanted], axis)


@lru_cache(maxsize=32)
def resampling_taps(rate, window=("kaiser", 5.0)):
    """The filter of resample_poly. Its design takes 1 ms at a rate of 160, as long as 30000 samples; so it is kept."""
    taps = firwin(20 * rate + 1, 1 / rate, window=window)
    taps.flags.writeable = False
    return taps


@_or_scipy
def resample_poly(x, up, down, axis=0, window=("kaiser", 5.0), padtype="constant", cval=None):
    """Resampling by up / down through a polyphase filter, as scipy.signal.resample_poly; padtype "constant", or one of the means.

        >>> resample_poly(np.ones(40), 3, 2)[28:31].round(2)
        array([1., 1., 1.])
    """
    x = np.asarray(x)
    if up != int(up) or down != int(down) or up < 1 or down < 1 or not x.size or cval is not None and padtype != "constant":
        raise _NotHere
    levels = {"mean": np.mean, "median": np.median, "minimum": np.amin, "maximum": np.amax}
    if padtype not in levels and (padtype != "constant" or cval):
        raise _NotHere
    common = math.gcd(int(up), int(down))
    up, down = int(up) // common, int(down) // common
    if up == down == 1:
        return x.copy()
    n = -(-x.shape[axis] * up // down)
    if isinstance(window, (list, np.ndarray)):
        taps = np.array(window)
        if taps.ndim != 1:
            raise ValueError("window must be 1-D")
    else:
        taps = resampling_taps(max(up, down), window).astype(x.dtype if x.dtype.kind in "fc" else np.float64)
    taps = taps * up
    half = (taps.size - 1) // 2
    before = down - half % down
    drop = (half + before) // down
    short = (n + drop - 1) * down + 1 - ((x.shape[axis] - 1) * up + taps.size + before)
    taps = np.concatenate((np.zeros(before, taps.dtype), taps, np.zeros(max(short, 0), taps.dtype)))
    level = levels[padtype](x, axis=axis, keepdims=True) if padtype in levels else None
    y = upfirdn(taps, x if level is None else x - level, up, down, axis)
    y = y[(slice(None),) * (axis % x.ndim) + (slice(drop, drop + n),)]
    return y if level is None else y + level


# ---- medians, the analytic signal

_MEDIANS = {"B": "8u", "h": "16s", "i": "32s", "f": "32f", "d": "64f"}


@_or_scipy
def medfilt(volume, kernel_size=None):
    """The median filter with zeros around the signal, as scipy.signal.medfilt. Exports: qvxsFilterMedian_.

    Vectors of uint8, int16, int32, float32 and float64; SciPy filters the rest. A NaN counts as the greatest number.

        >>> medfilt(np.float32([1, 9, 2, 3]), 3)
        array([1., 2., 3., 2.], dtype=float32)
    """
    x = native(volume)
    size = 3 if kernel_size is None else np.asarray(kernel_size).reshape(-1)
    size = int(size) if np.ndim(size) == 0 else int(size[0]) if size.size == 1 else None
    if x.ndim != 1 or not x.size or size is None or size % 2 == 0 or size < 1 or size > x.size or x.dtype.char not in _MEDIANS:
        raise _NotHere
    half = size // 2
    padded = np.zeros(x.size + 2 * half, x.dtype)
    padded[half:half + x.size] = x
    result = np.empty_like(padded)
    getattr(raw, "qvxsFilterMedian_" + _MEDIANS[x.dtype.char])(padded, result, padded.size, size)
    return result[half:half + x.size]


@_or_scipy
def hilbert(x, N=None, axis=-1):
    """The analytic signal along an axis, as scipy.signal.hilbert. Exports: qvxsHilbert_32f32fc of float32, else transforms.

        >>> hilbert([1., 0, -1, 0]).round(6) + 0
        array([ 1.+0.j,  0.+1.j, -1.+0.j,  0.-1.j])
    """
    x = np.asarray(x)
    if np.iscomplexobj(x):
        raise ValueError("x must be real.")
    if x.dtype.char not in "fd" and x.dtype.kind not in "iu":
        raise _NotHere
    axis = check_axis(axis, x.ndim)
    n = x.shape[axis] if N is None else int(N)
    if n <= 0:
        raise ValueError("N must be positive.")
    if x.dtype == np.float32 and n == x.shape[axis] and n < 2**26:
        rows = last(x, axis)
        result = np.empty(rows.shape, np.complex64)
        record = raw.qvxsHilbertInitAlloc_32f32fc(n, 0)
        for source, target in zip(rows.reshape(-1, n), result.reshape(-1, n)):
            raw.qvxsHilbert_32f32fc(source, target, record)
        return back(result, axis)
    half = rfft(last(x, axis), n)
    spectrum = np.zeros(half.shape[:-1] + (n,), half.dtype)
    spectrum[..., :half.shape[-1]] = half
    spectrum[..., 1:(n + 1) // 2] *= 2
    return back(ifft(spectrum, overwrite_x=True), axis)


# ---- design

_FIR_WINDOWS = {"bartlett": 0, "hamming": 2, "hann": 3}


@_or_scipy
def firwin(numtaps, cutoff, width=None, window="hamming", pass_zero=True, scale=True, nyq=None, fs=None):
    """Taps of a FIR filter by a window, as scipy.signal.firwin. Exports: qvxsFIRGenLowpass_64f and its like, of the windows
    Bartlett, Hamming and Hann with one or two cut-offs; SciPy designs the others.

        >>> firwin(5, 0.5).round(6) + 0
        array([0.      , 0.203712, 0.592575, 0.203712, 0.      ])
    """
    cutoff = np.atleast_1d(cutoff)
    half = 1.0 if nyq is None and fs is None else None
    if not isinstance(pass_zero, (bool, str)):
        raise _NotHere
    if half is None or width is not None or not isinstance(window, str) or window not in _FIR_WINDOWS or numtaps < 5:
        raise _NotHere
    if cutoff.ndim != 1 or cutoff.size not in (1, 2) or (cutoff <= 0).any() or (cutoff >= 1).any() or (np.diff(cutoff) <= 0).any():
        raise _NotHere
    kinds = {(1, True): "Lowpass", (1, "lowpass"): "Lowpass", (1, False): "Highpass", (1, "highpass"): "Highpass",
             (2, True): "Bandstop", (2, "bandstop"): "Bandstop", (2, False): "Bandpass", (2, "bandpass"): "Bandpass"}
    kind = kinds.get((cutoff.size, pass_zero))
    if kind is None or kind in ("Highpass", "Bandstop") and numtaps % 2 == 0:
        raise _NotHere
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
        raise _NotHere
    frequency = float(np.reshape(frequency, -1)[0]) / (1 if fs is None else fs / 2)
    if not 0 < frequency < 1 or kind and not 0 < ripple <= 29:
        raise _NotHere
    taps = np.empty(2 * (int(order) + 1))
    getattr(raw, f"qvxsIIRGen{maker}_64f")(frequency / 2, float(ripple), int(order), taps, kind)
    return taps[:int(order) + 1].copy(), taps[int(order) + 1:].copy()


@_or_scipy
def butter(N, Wn, btype="low", analog=False, output="ba", fs=None):
    """A Butterworth filter, as scipy.signal.butter. Exports: qvxsIIRGenLowpass_64f, qvxsIIRGenHighpass_64f for taps of orders up
    to 12; SciPy designs band filters, analog ones, sections and poles.

        >>> butter(1, 0.5)[0]
        array([0.5, 0.5])
    """
    return _classic(N, Wn, 0, 0, btype, analog, output, fs)


@_or_scipy
def cheby1(N, rp, Wn, btype="low", analog=False, output="ba", fs=None):
    """A Chebyshev filter of type I, as scipy.signal.cheby1; what is computed here is as `butter` says, ripple up to 29 dB.

        >>> cheby1(1, 3, 0.5)[0].round(6)
        array([0.500594, 0.500594])
    """
    return _classic(N, Wn, rp, 1, btype, analog, output, fs)


# ---- spectra

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
        raise _NotHere
    if detrend not in ("constant", False, None):
        raise _NotHere
    n = x.shape[-1]
    if isinstance(window, (str, tuple)):
        nperseg = 256 if nperseg is None else int(nperseg)
        if nperseg < 1:
            raise _NotHere
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
            raise _NotHere
        nperseg, weights = weights.size, weights.astype(x.dtype)
    nfft = nperseg if nfft is None else int(nfft)
    noverlap = nperseg // 2 if noverlap is None else int(noverlap)
    if nfft < nperseg or noverlap >= nperseg:
        raise _NotHere
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
    tag = _TAGS[segments.dtype.char]
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


@_or_scipy
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
        raise _NotHere
    if noverlap is None:
        length = np.size(window) if not isinstance(window, (str, tuple)) else 256 if nperseg is None else int(nperseg)
        noverlap = min(length, x.shape[axis]) // 8
    x = last(x, axis)
    segments, weights, nfft, scale, frequencies, hop = _segments(
        x, fs, window, nperseg, noverlap, nfft, detrend, return_onesided, scaling)
    times = np.arange(weights.size / 2, x.shape[-1] - weights.size / 2 + 1, hop) / float(fs)
    powers = _powers(segments, weights, nfft, scale, detrend)
    return frequencies, times, np.moveaxis(powers, -1, axis)


@_or_scipy
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
        raise _NotHere
    segments, weights, nfft, scale, frequencies, _ = _segments(
        last(x, axis), fs, window, nperseg, noverlap, nfft, detrend, return_onesided, scaling)
    powers = _powers(segments, weights, nfft, scale, detrend)
    mean = np.add.reduce(powers, axis=-2)
    mean *= 1 / powers.shape[-2]
    return frequencies, back(mean, axis)
