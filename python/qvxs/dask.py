"""Filters, resampling, spectra and statistics over dask arrays: longer than memory, on as many workers as there are.

    >>> import dask.array as da, numpy as np, qvxs.dask
    >>> x = da.ones(100000, chunks=30000)
    >>> qvxs.dask.lfilter([1.], [1, -0.5], x)[-3:].compute()
    array([2., 2., 2.])

Results are those of qvxs.signal on the whole array, to rounding, however it is cut. Recursive filters carry their state from chunk
to chunk, so that the chunks of a row are filtered one after the other while others are read; everything else brings as many samples
of the chunk before as it looks back at, and its chunks are free of each other. Nothing is computed before `compute`.
"""

import itertools
import math
from builtins import max as builtin_max
from builtins import min as builtin_min

import dask
import dask.array as da
import numpy as np

from . import signal, vectors
from .design import resampling_taps
from .rows import contiguous

__all__ = ["lfilter", "sosfilt", "upfirdn", "resample_poly", "spectrogram", "welch", "sum", "mean", "std", "min", "max", "norm_l2"]


def _edges(chunks):
    return list(itertools.pairwise([0, *itertools.accumulate(chunks)]))


# ---- recursive filters


@dask.delayed(nout=2, pure=True)
def _step(name, taps, block, zi):
    if not block.shape[-1]:
        return block, zi
    result, state = getattr(signal, name)(*taps, block, axis=-1, zi=zi)
    return result, state


def _carried(name, taps, x, axis, shape_of_state, dtype):
    """Every row of chunks along the axis through a filter that carries its state."""
    x = da.moveaxis(x.astype(dtype), axis, -1)
    blocks = x.to_delayed()
    result = np.empty(blocks.shape, object)
    for outer in np.ndindex(blocks.shape[:-1]):
        lengths = tuple(x.chunks[k][i] for k, i in enumerate(outer))
        state = np.zeros(shape_of_state(lengths), dtype)
        for i, length in enumerate(x.chunks[-1]):
            made, state = _step(name, taps, blocks[outer + (i,)], state)
            result[outer + (i,)] = da.from_delayed(made, lengths + (length,), dtype, meta=np.empty((0,) * x.ndim, dtype))
    return da.moveaxis(da.block(result.tolist()), -1, axis)


def lfilter(b, a, x, axis=-1):
    """As qvxs.signal.lfilter, from a state of zeros. Without feedback chunks are filtered apart.

        >>> lfilter([0.5, 0.5], [1.], da.ones(10, chunks=4)).compute()[:3]
        array([0.5, 1. , 1. ])
    """
    b, a = np.atleast_1d(b), np.atleast_1d(a)
    dtype = np.result_type(b, a, x.dtype, np.float32)
    if len(a) == 1:
        return upfirdn(b / a[0], x, axis=axis)[_along(x.ndim, axis, slice(x.shape[axis]))]
    order = builtin_max(len(a), len(b)) - 1
    return _carried("lfilter", (b.astype(dtype), a.astype(dtype)), x, axis, lambda lengths: lengths + (order,), dtype)


def sosfilt(sos, x, axis=-1):
    """As qvxs.signal.sosfilt, from a state of zeros.

        >>> sosfilt([[1., 0, 0, 1, -0.5, 0]], da.ones(10, chunks=4)).compute()[:3]
        array([1.  , 1.5 , 1.75])
    """
    sos = np.atleast_2d(sos)
    dtype = np.result_type(sos, x.dtype, np.float32)
    return _carried("sosfilt", (sos.astype(dtype),), x, axis, lambda lengths: (len(sos), *lengths, 2), dtype)


# ---- functions that look back by a number of samples


def _along(ndim, axis, part):
    index = [slice(None)] * ndim
    index[axis] = part
    return tuple(index)


def _pieces(x, parts, work, lengths, tail, dtype):
    """work on the slices `parts` of the last axis, side by side; lengths and further axes of the results."""
    results = []
    for part, length in zip(parts, lengths):
        piece = x[..., part].rechunk({x.ndim - 1: -1})
        results.append(piece.map_blocks(work[len(results)], dtype=dtype, chunks=piece.chunks[:-1] + tail + ((length,),),
                                        meta=np.empty((0,) * (x.ndim + len(tail)), dtype),
                                        new_axis=list(range(x.ndim - 1, x.ndim - 1 + len(tail))) or None))
    return da.concatenate(results, axis=-1)


def upfirdn(h, x, up=1, down=1, axis=-1):
    """As qvxs.signal.upfirdn.

        >>> upfirdn([1., 1, 1], da.from_array(np.array([1., 2, 3]), chunks=2), 2).compute()
        array([1., 1., 3., 2., 5., 3., 3.])
    """
    h = np.asarray(h)
    common = math.gcd(up, down)
    if common > 1 and up == down:
        raise ValueError("up and down are the same")
    dtype = np.result_type(h, x.dtype, np.float32)
    x = da.moveaxis(x, axis, -1)
    back = -(-len(h) // up)
    parts, works, lengths = [], [], []
    edges = _edges(x.chunks[-1])
    for first, past in edges:
        start = builtin_max(first - back, 0) // down * down  # where an output coincides with a sample
        offset = start * up // down
        low = -(-first * up // down) - offset
        high = (((past - 1) * up + len(h) - 1) // down + 1 if past == x.shape[-1] else -(-past * up // down)) - offset
        parts.append(slice(start, past))
        works.append(_Rate(h, up, down, low, high))
        lengths.append(high - low)
    return da.moveaxis(_pieces(x, parts, works, lengths, (), dtype), -1, axis)


class _Rate:
    def __init__(self, *numbers):
        self.numbers = numbers

    def __call__(self, block):
        h, up, down, low, high = self.numbers
        return signal.upfirdn(h, block, up, down, axis=-1)[..., low:high]


def resample_poly(x, up, down, axis=0, window=("kaiser", 5.0)):
    """As qvxs.signal.resample_poly with zeros around the signal.

        >>> resample_poly(da.ones(40, chunks=15), 3, 2)[28:31].compute().round(2)
        array([1., 1., 1.])
    """
    common = math.gcd(up, down)
    up, down = up // common, down // common
    if up == down:
        return x
    rate = builtin_max(up, down)
    taps = resampling_taps(rate, window) * up
    half = 10 * rate
    before = down - half % down
    drop = (half + before) // down
    wanted = -(-x.shape[axis] * up // down)
    missing = builtin_max((wanted + drop - 1) * down + 1 - ((x.shape[axis] - 1) * up + len(taps) + before), 0)
    taps = np.concatenate((np.zeros(before), taps, np.zeros(missing))).astype(x.dtype if x.dtype.kind in "fc" else np.float64)
    return upfirdn(taps, x, up, down, axis)[_along(x.ndim, axis, slice(drop, drop + wanted))]


class _Spectrum:
    def __init__(self, named):
        self.named = named

    def __call__(self, block):
        return signal.spectrogram(block, axis=-1, **self.named)[2]


def spectrogram(x, fs=1.0, window=("tukey", 0.25), nperseg=256, noverlap=None, nfft=None, detrend="constant", scaling="density"):
    """As qvxs.signal.spectrogram along the last axis of real signals: frequencies and times as arrays, the power as a dask array.

        >>> spectrogram(da.ones(1024, chunks=300))[2].shape
        (129, 4)
    """
    noverlap = nperseg // 8 if noverlap is None else noverlap
    hop, n = nperseg - noverlap, x.shape[-1]
    segments = (n - nperseg) // hop + 1
    if segments < 1:
        raise ValueError(f"{n} samples hold no segment of {nperseg}")
    named = {"fs": fs, "window": window, "nperseg": nperseg, "noverlap": noverlap, "nfft": nfft, "detrend": detrend, "scaling": scaling}
    points = (nperseg if nfft is None else nfft) // 2 + 1
    parts, lengths = [], []
    for first, past in _edges(x.chunks[-1]):
        low, high = -(-first // hop), builtin_min(-(-past // hop), segments)
        if high > low:
            parts.append(slice(low * hop, (high - 1) * hop + nperseg))
            lengths.append(high - low)
    dtype = np.result_type(x.dtype, np.float32)
    power = _pieces(x.astype(dtype), parts, [_Spectrum(named)] * len(parts), lengths, ((points,),), dtype)
    times = np.arange(nperseg / 2, n - nperseg / 2 + 1, hop) / float(fs)
    return np.fft.rfftfreq(2 * (points - 1) + (nperseg if nfft is None else nfft) % 2, 1 / fs), times, power


def welch(x, fs=1.0, window="hann", nperseg=256, noverlap=None, nfft=None, detrend="constant", scaling="density"):
    """As qvxs.signal.welch along the last axis of real signals: frequencies as an array, the mean power as a dask array.

        >>> welch(da.ones(1024, chunks=300), detrend=False, scaling="spectrum")[1][:3].compute().round(6)
        array([1. , 0.5, 0. ])
    """
    noverlap = nperseg // 2 if noverlap is None else noverlap
    frequencies, _, power = spectrogram(x, fs, window, nperseg, noverlap, nfft, detrend, scaling)
    return frequencies, power.mean(axis=-1)


# ---- statistics


def _moments(block):
    """Count, mean and sum of squared differences from it, of a whole chunk."""
    n = block.size
    mean = float(vectors.mean(block.astype(np.float64, copy=False)))
    centred = vectors.subtract(contiguous(block, np.float64), mean)
    off = float(vectors.mean(centred))  # the error of the first mean
    return n, mean + off, float(vectors.dot(centred.reshape(-1), centred.reshape(-1))) - n * off * off


def _merged(parts):
    """The moments of all chunks: those of pairs are merged, so that no large sums are subtracted."""
    n, mean, squares = parts[0]
    for m, other, more in parts[1:]:
        total = n + m
        squares += more + (other - mean) ** 2 * n * m / total
        mean += (other - mean) * m / total
        n = total
    return n, mean, squares


def _reduced(x, one, merge):
    of_block = dask.delayed(one, pure=True)
    parts = [of_block(block) for block in x.to_delayed().reshape(-1)]
    return da.from_delayed(dask.delayed(merge)(parts), (), np.float64)


def _block_sum(block):
    return float(vectors.sum(block.astype(np.float64, copy=False)))


def _block_norm(block):
    return float(vectors.norm_l2(contiguous(block)))


def _block_max(block):
    return float(vectors.max(contiguous(block)))


def _block_min(block):
    return float(vectors.min(contiguous(block)))


def sum(x):  # noqa: A001
    """The sum of all elements, in doubles.

        >>> float(sum(da.ones(100, chunks=30)))
        100.0
    """
    return _reduced(x, _block_sum, lambda parts: np.float64(math.fsum(parts)))


def mean(x):
    """The mean of all elements, in doubles.

        >>> float(mean(da.ones(100, chunks=30)))
        1.0
    """
    return _reduced(x, _moments, lambda parts: np.float64(_merged(parts)[1]))


def std(x, ddof=0):
    """The standard deviation of all elements, in doubles; it keeps its digits where the mean is large.

        >>> float(std(da.arange(4, chunks=3))).__round__(6)
        1.118034
    """
    def merge(parts):
        n, _, squares = _merged(parts)
        return np.float64(math.sqrt(squares / (n - ddof)) if n > ddof else math.nan)

    return _reduced(x, _moments, merge)


def max(x):  # noqa: A001
    """The greatest element of int16, int32, float32 or float64.

        >>> float(max(da.arange(100, chunks=30, dtype="f")))
        99.0
    """
    return _reduced(x, _block_max, lambda parts: np.float64(builtin_max(parts)))


def min(x):  # noqa: A001
    """The least element of int16, int32, float32 or float64.

        >>> float(min(da.arange(100, chunks=30, dtype="f")))
        0.0
    """
    return _reduced(x, _block_min, lambda parts: np.float64(builtin_min(parts)))


def norm_l2(x):
    """The root of the sum of the squares of int16, float32, float64, complex64 or complex128.

        >>> float(norm_l2(da.ones(100, chunks=30)))
        10.0
    """
    return _reduced(x, _block_norm, lambda parts: np.float64(math.sqrt(math.fsum(part * part for part in parts))))
