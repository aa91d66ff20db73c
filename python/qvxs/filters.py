"""Recursive filters, medians, the analytic signal: a part of qvxs.signal."""

import math
from collections import deque
from functools import lru_cache

import numpy as np
import scipy.signal

from . import raw
from .convolution import convolve_rows
from .fallback import NotHere, TAGS, common, or_scipy
from .fft import ifft, rfft
from .filter_records import filter_record, section_record
from .rows import back, check_axis, contiguous, last, native
from .streams import Fir

_ndarray = np.ndarray


@or_scipy
def lfilter(b, a, x, axis=-1, zi=None):
    """Filters along an axis by the taps b / a, as scipy.signal.lfilter; with zi returns the final state as well.

    b, a: taps, a[0] not 0; x: array; zi: max(len(a), len(b)) - 1 values for each row. The type is that of NumPy's promotion of all.
    Exports: qvxsIIRInitAlloc_, qvxsIIR_, qvxsIIRGetDlyLine_ and qvxsIIRSetDlyLine_ of 32f, 64f, 32fc, 64fc; of b alone qvxsFIR_ (qvxsConv_ with zi).

        >>> lfilter([1.], [1, -0.5], [1., 0, 0, 0])
        array([1.   , 0.5  , 0.25 , 0.125])
    """
    if zi is None and x.__class__ is a.__class__ is b.__class__ is _ndarray and x.ndim == a.ndim == b.ndim == 1 and (
            x.dtype is a.dtype is b.dtype and x.dtype.char in TAGS and a.size > 1 and b.size and x.size and a[0] and (axis == -1 or axis == 0)):
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
        raise NotHere
    zi = zi if zi is None else np.asarray(zi)
    dtype = common(b, a, x) if zi is None else common(b, a, x, zi)
    if a[0] == 0:
        raise NotHere
    axis = check_axis(axis, x.ndim)
    order = max(len(a), len(b)) - 1
    if order == 0:
        raise NotHere
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
    full = convolve_rows(rows, taps.astype(dtype))
    full[..., :order] += start
    return back(full[..., :n], axis), back(full[..., n:], axis)


@or_scipy
def sosfilt(sos, x, axis=-1, zi=None):
    """Filters along an axis by second-order sections, as scipy.signal.sosfilt; with zi returns the final state as well.

    sos: (sections, 6), with b0 not 0 (else SciPy filters); zi: (sections, ..., 2, ...). Exports: qvxsIIRInitAlloc_BiQuad_, qvxsIIR_.

        >>> sosfilt([[1., 0, 0, 1, -0.5, 0]], [1., 0, 0])
        array([1.  , 0.5 , 0.25])
    """
    sos, x = np.atleast_2d(sos), np.asarray(x)
    if sos.ndim != 2 or sos.shape[1] != 6 or not x.ndim or not x.size or not (sos[:, 3] == 1).all() or not sos[:, 0].all():
        raise NotHere
    zi = zi if zi is None else np.asarray(zi)
    dtype = common(sos, x) if zi is None else common(sos, x, zi)
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
    dtype = common(*taps, x, start)
    axis = check_axis(axis, x.ndim)
    x = last(x, axis)
    n = x.shape[-1]
    buffer = _continued(x.reshape(-1, n), edge, padtype, dtype)
    result = np.empty(x.shape, dtype)
    tag, length = TAGS[dtype.char], n + 2 * edge
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


@or_scipy
def filtfilt(b, a, x, axis=-1, padtype="odd", padlen=None, method="pad", irlen=None):
    """Filters forward and backward, without delay, as scipy.signal.filtfilt; SciPy computes method="gust".

        >>> from qvxs.signal import butter
        >>> b, a = butter(2, 0.2)
        >>> filtfilt(b, a, np.ones(12)).round(6)[:3]
        array([1., 1., 1.])
    """
    b, a, x = np.atleast_1d(b), np.atleast_1d(a), np.asarray(x)
    if method != "pad" or not x.size or max(len(a), len(b)) < 2 or a.ndim != 1 or b.ndim != 1 or a[0] == 0:
        raise NotHere
    common(b, a, x)
    edge = _edge(x, padtype, padlen, axis, max(len(a), len(b)))
    zi = _steady(scipy.signal.lfilter_zi, _key(b), _key(a))
    if len(a) > 1:
        return _there_and_back(filter_record, (b, a), zi, x, edge, padtype, axis)
    # Without feedback, by lfilter, which knows the convolution.
    axis = check_axis(axis, x.ndim)
    x = last(x, axis)
    y = _continued(x.reshape(-1, x.shape[-1]), edge, padtype, common(b, a, x))
    for _ in range(2):
        y = lfilter(b, a, y, zi=zi * y[:, :1])[0][:, ::-1]
    return back(y[:, edge:y.shape[1] - edge].reshape(x.shape), axis)


@or_scipy
def sosfiltfilt(sos, x, axis=-1, padtype="odd", padlen=None):
    """Filters forward and backward by second-order sections, as scipy.signal.sosfiltfilt.

        >>> from qvxs.signal import butter
        >>> sosfiltfilt(butter(2, 0.2, output="sos"), np.ones(12)).round(6)[:3]
        array([1., 1., 1.])
    """
    sos, x = np.atleast_2d(sos), np.asarray(x)
    if sos.ndim != 2 or sos.shape[1] != 6 or not x.ndim or not x.size or not sos[:, 0].all() or not (sos[:, 3] == 1).all():
        raise NotHere
    common(sos, x)
    taps = 2 * len(sos) + 1 - min((sos[:, 2] == 0).sum(), (sos[:, 5] == 0).sum())
    edge = _edge(x, padtype, padlen, axis, taps)
    return _there_and_back(section_record, (sos,), _steady(scipy.signal.sosfilt_zi, _key(sos)), x, edge, padtype, axis)


_MEDIANS = {"B": "8u", "h": "16s", "i": "32s", "f": "32f", "d": "64f"}


@or_scipy
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
        raise NotHere
    half = size // 2
    padded = np.zeros(x.size + 2 * half, x.dtype)
    padded[half:half + x.size] = x
    result = np.empty_like(padded)
    getattr(raw, "qvxsFilterMedian_" + _MEDIANS[x.dtype.char])(padded, result, padded.size, size)
    return result[half:half + x.size]


@or_scipy
def hilbert(x, N=None, axis=-1):
    """The analytic signal along an axis, as scipy.signal.hilbert. Exports: qvxsHilbert_32f32fc of float32, else transforms.

        >>> hilbert([1., 0, -1, 0]).round(6) + 0
        array([ 1.+0.j,  0.+1.j, -1.+0.j,  0.-1.j])
    """
    x = np.asarray(x)
    if np.iscomplexobj(x):
        raise ValueError("x must be real.")
    if x.dtype.char not in "fd" and x.dtype.kind not in "iu":
        raise NotHere
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
