"""Vectors that change their length, and what is not made row by row from a table: sampling, packing, channels, short convolutions,
running values.

    >>> import numpy as np, qvxs
    >>> qvxs.sample_down(np.arange(6, dtype=np.int16), 2)
    array([0, 2, 4], dtype=int16)
"""

import numpy as np

from . import raw
from .forms import TAGS, forms
from .rows import contiguous, native
from .stem import choose_for, deliver_all, no_form

__all__ = ["inverse_haar", "goertzel_two", "sample_up", "sample_down", "pack_bits", "copy_bits", "join_channels", "split_channels", "find_nearest",
           "convolve_cyclic", "convolve_part", "autocorrelate", "sum_window", "demodulate_fm", "running_mean", "running_power"]

_INVERSE_HAAR, _GOERTZEL_TWO = forms("WTHaarInv"), forms("GoertzTwo")


def _rows(x, dtype=None):
    x = contiguous(native(x), dtype)
    if not x.ndim or not x.shape[-1]:
        raise ValueError("the last axis is empty")
    return x, x.reshape(-1, x.shape[-1])


def _export(name, stem, dtype, to=""):
    tag = f"{TAGS.get(dtype)}{to}"
    call = getattr(raw, f"qvxs{stem}_{tag}", None) or getattr(raw, f"qvxs{stem}_{tag}_Sfs", None)
    if call is None:
        raise no_form(name, [dtype], forms(stem))
    return call


def _scale(call, scale, name):
    if call.__name__.endswith("Sfs"):
        return (scale,)
    if scale:
        raise TypeError(f"{name}: scale is for integers")
    return ()


def inverse_haar(low, high, scale=0, out=None):
    """The rows whose `haar` is low and high; those of low may be one longer. Exports: qvxsWTHaarInv_.

    >>> import numpy as np, qvxs
    >>> qvxs.inverse_haar(np.float32([2, 5]), np.float32([1]))
    array([1., 3., 5.], dtype=float32)
    """
    low = contiguous(native(low))
    high = contiguous(high, low.dtype)
    if not low.ndim or not high.ndim:
        raise ValueError("inverse_haar takes rows, not numbers")
    n = low.shape[-1] + high.shape[-1]
    if low.shape[:-1] != high.shape[:-1] or low.shape[-1] != (n + 1) // 2:
        raise ValueError(f"low and high of the shapes {low.shape} and {high.shape} are no halves of rows")
    form = choose_for("inverse_haar", _INVERSE_HAAR, [low, high], scale, None)
    result = np.empty(low.shape[:-1] + (n,), low.dtype)
    if result.size:
        values = {"pSrcLow": low.reshape(result.size // n, -1), "pSrcHigh": high.reshape(result.size // n, -1), "pDst": result.reshape(-1, n),
                  "len": n, "scaleFactor": scale}
        raw.rows(form.call, *[values[parameter] for parameter in form.parameters])
    return deliver_all(out, [result])


def goertzel_two(x, first, second, scale=0, out=None):
    """`qvxs.goertzel` for two frequencies in one pass over the rows: a last axis of 2. Exports: qvxsGoertzTwo_.

    >>> import numpy as np, qvxs
    >>> qvxs.goertzel_two(np.float64([1, 0, -1, 0]), 0.25, 0).round(6) + 0
    array([2.+0.j, 0.+0.j])
    """
    x, rows = _rows(x)
    form = choose_for("goertzel_two", _GOERTZEL_TWO, [x, np.empty(0, np.float64 if x.dtype.char in "dD" else np.float32)], scale, None)
    result = np.empty(x.shape[:-1] + (2,), form.target)
    frequencies = np.array([first, second], form.types["pRFreq"])
    raw.rows(form.call, rows, rows.shape[1], result.reshape(-1, 2), frequencies, *_scale(form.call, scale, "goertzel_two"))
    return deliver_all(out, [result])


def _sample(name, stem, x, factor, phase, lengths, out):
    x, rows = _rows(x)
    call = _export(name, stem, x.dtype)
    n = rows.shape[1]
    phases, counts = np.full((len(rows), 1), phase, np.int32), np.empty((len(rows), 1), np.int32)
    if factor < 1 or not 0 <= phase < factor:
        raise ValueError(f"{name}: a factor of {factor} and a phase of {phase}")
    result = np.empty(x.shape[:-1] + (lengths(n),), x.dtype)
    if rows.size:
        raw.rows(call, rows, n, result.reshape(len(rows), -1), counts, factor, phases)
    return deliver_all(out, [result])


def sample_up(x, factor, phase=0, out=None):
    """factor elements for one along the last axis: zeros but for the one at `phase`. Exports: qvxsSampleUp_.

    >>> import numpy as np, qvxs
    >>> qvxs.sample_up(np.int16([1, 2]), 2)
    array([1, 0, 2, 0], dtype=int16)
    """
    return _sample("sample_up", "SampleUp", x, factor, phase, lambda n: n * factor, out)


def sample_down(x, factor, phase=0, out=None):
    """The elements phase, phase + factor and so on along the last axis. Exports: qvxsSampleDown_.

    >>> import numpy as np, qvxs
    >>> qvxs.sample_down(np.int16([1, 2, 3]), 2)
    array([1, 3], dtype=int16)
    """
    return _sample("sample_down", "SampleDown", x, factor, phase, lambda n: max(n - phase + factor - 1, 0) // factor, out)


def pack_bits(values, lengths, offset=0):
    """The low bits of each value one after another, the highest first, as bytes that begin with `offset` zero bits; and how many were written.

    values: uint32; lengths: 0 to 32 bits of each. Exports: qvxsPackBits_32u8u.

    >>> import numpy as np, qvxs
    >>> qvxs.pack_bits([5, 1], [3, 2])
    (array([168], dtype=uint8), 5)
    """
    values, lengths = (contiguous(np.asarray(x), dtype) for x, dtype in ((values, np.uint32), (lengths, np.int32)))
    if values.shape != lengths.shape or values.ndim != 1 or not values.size or offset < 0:
        raise ValueError("pack_bits takes as many lengths as values, from 1 on")
    packed = np.zeros((offset + int(np.clip(lengths, 0, 32).sum(dtype=np.int64)) + 7) // 8, np.uint8)
    written = np.empty(1, np.int32)
    raw.qvxsPackBits_32u8u(values, lengths, values.size, packed, offset, written)
    return packed, int(written[0])


def copy_bits(source, source_offset, destination, offset, count):
    """Copies `count` bits from one array of uint8 into another, bit 0 of a byte being its highest; the others stay. Exports: qvxsCopy_1u.

    >>> import numpy as np, qvxs
    >>> qvxs.copy_bits(np.uint8([0b11000000]), 0, np.uint8([0]), 3, 2)
    array([24], dtype=uint8)
    """
    if source_offset < 0 or offset < 0:
        raise ValueError(f"copy_bits: offsets of {source_offset} and {offset}")
    if count:
        skipped, written = source[source_offset // 8:], destination[offset // 8:]
        raw.qvxsCopy_1u(skipped, source_offset % 8, written, offset % 8, count)
    return destination


_JOINS = {("h", False): "Join_32f16s_D2L", ("h", True): "JoinScaled_32f16s_D2L", ("24s", True): "JoinScaled_32f24s_D2L"}


def join_channels(x, dtype=np.int16, scaled=True):
    """Channels of float32, (channels, samples), as frames of integers, (samples, channels): int16, or "24s" with a last axis of 3 bytes.

    scaled: -1 to 1 become the whole range; else values are rounded. Both saturate. Exports: qvxsJoin_, qvxsJoinScaled_.

    >>> import numpy as np, qvxs
    >>> qvxs.join_channels(np.float32([[0, 1], [-1, 0.5]]))
    array([[     0, -32768],
           [ 32767,  16383]], dtype=int16)
    """
    x = contiguous(np.asarray(x), np.float32)
    stem = _JOINS.get((dtype if dtype == "24s" else np.dtype(dtype).char, bool(scaled)))
    if stem is None or x.ndim != 2:
        raise TypeError("join_channels has no form for that")
    result = np.empty((x.shape[1], x.shape[0]) + (3,) * (dtype == "24s"), np.uint8 if dtype == "24s" else np.int16)
    if result.size:
        getattr(raw, "qvxs" + stem)(list(x), x.shape[0], x.shape[1], result.reshape(-1))
    return result


def split_channels(x):
    """Frames of int16, (samples, channels), or of three bytes, (samples, channels, 3), as channels of float32 from -1 to 1.

    Exports: qvxsSplitScaled_.

    >>> import numpy as np, qvxs
    >>> qvxs.split_channels(np.int16([[0, -32768], [32767, 0]])).round(3)
    array([[ 0.,  1.],
           [-1.,  0.]], dtype=float32)
    """
    x = contiguous(native(x))
    call = {("h", 2): raw.qvxsSplitScaled_16s32f_D2L, ("B", 3): raw.qvxsSplitScaled_24s32f_D2L}.get((x.dtype.char, x.ndim))
    if call is None or x.ndim == 3 and x.shape[2] != 3:
        raise TypeError(f"split_channels has no form for {x.dtype} of shape {x.shape}")
    result = np.empty((x.shape[1], x.shape[0]), np.float32)
    if result.size:
        call(x.reshape(-1), list(result), x.shape[1], x.shape[0])
    return result


def find_nearest(x, table):
    """The entries of an ascending table nearest to the elements, and their indices: uint16. Exports: qvxsFindNearest_16u, qvxsFindNearestOne_16u.

    >>> import numpy as np, qvxs
    >>> qvxs.find_nearest(np.uint16([4, 90]), np.uint16([0, 5, 50]))
    (array([ 5, 50], dtype=uint16), array([1, 2], dtype=int32))
    """
    x, table = native(x), contiguous(native(table))
    if x.dtype != np.uint16 or table.dtype != np.uint16:
        raise TypeError(f"find_nearest has no form for {x.dtype} and {table.dtype}")
    values, indices = np.empty(x.shape, np.uint16), np.empty(x.shape, np.int32)
    if not x.ndim:
        raw.qvxsFindNearestOne_16u(int(x), values.reshape(1), indices.reshape(1), table, table.size)
    elif x.size:
        raw.qvxsFindNearest_16u(contiguous(x), values, indices, x.size, table, table.size)
    return values, indices


def convolve_cyclic(a, b, scale=0):
    """The cyclic convolution of rows of 8 float32 or int16, or of 4 float32 with 4 complex64. Exports: qvxsConvCyclic8x8_, qvxsConvCyclic4x4_.

    >>> import numpy as np, qvxs
    >>> qvxs.convolve_cyclic(np.float32([1, 1, 0, 0, 0, 0, 0, 0]), np.float32([0, 0, 0, 0, 0, 0, 0, 1]))
    array([1., 0., 0., 0., 0., 0., 0., 1.], dtype=float32)
    """
    a, b = np.broadcast_arrays(native(a), native(b))
    n = a.shape[-1] if a.ndim else 0
    call = {("f", "f", 8): raw.qvxsConvCyclic8x8_32f, ("h", "h", 8): raw.qvxsConvCyclic8x8_16s_Sfs,
            ("f", "F", 4): raw.qvxsConvCyclic4x4_32f32fc}.get((a.dtype.char, b.dtype.char, n))
    if call is None:
        raise TypeError(f"convolve_cyclic has no form for {a.dtype} and {b.dtype} of {n}")
    result = np.empty(b.shape, b.dtype)
    if result.size:
        raw.rows(call, *[contiguous(x).reshape(-1, n) for x in (a, b)], result.reshape(-1, n), *_scale(call, scale, "convolve_cyclic"))
    return result


def convolve_part(a, b, count, first):
    """`count` elements of the convolution of two vectors of float32 from the index `first` on, zeros outside. Exports: qvxsConvBiased_32f.

    >>> import numpy as np, qvxs
    >>> qvxs.convolve_part(np.float32([1, 2]), np.float32([1, 1, 1]), 3, 1)
    array([3., 3., 2.], dtype=float32)
    """
    a, b = (contiguous(np.asarray(x), np.float32).reshape(-1) for x in (a, b))
    result = np.empty(count, np.float32)
    if count:
        raw.qvxsConvBiased_32f(a, a.size, b, b.size, result, count, first)
    return result


def autocorrelate(x, count, norm=None, scale=0):
    """The autocorrelation of rows at the lags 0 to count - 1: int16, float32, float64, complex64, complex128.

    norm: None, "biased" (divided by the length) or "unbiased" (by the number of products). Exports: qvxsAutoCorr_, qvxsAutoCorr_NormA_, _NormB_.

    >>> import numpy as np, qvxs
    >>> qvxs.autocorrelate(np.float64([1, 2, 3]), 2)
    array([14.,  8.])
    """
    x, rows = _rows(x)
    kinds = {None: "AutoCorr", "biased": "AutoCorr_NormA", "unbiased": "AutoCorr_NormB"}
    if norm not in kinds or count < 1:
        raise ValueError(f"autocorrelate: norm {norm!r}, {count} lags")
    call = _export("autocorrelate", kinds[norm], x.dtype)
    result = np.empty(x.shape[:-1] + (count,), x.dtype)
    raw.rows(call, rows, rows.shape[1], result.reshape(-1, count), count, *_scale(call, scale, "autocorrelate"))
    return result


def sum_window(x, size):
    """The sums of `size` neighbours along the last axis, as float32: uint8, int16. Exports: qvxsSumWindow_.

    >>> import numpy as np, qvxs
    >>> qvxs.sum_window(np.int16([1, 2, 3]), 2)
    array([3., 5.], dtype=float32)
    """
    x, rows = _rows(x)
    n = x.shape[-1] - size + 1
    if size < 1 or n < 1:
        raise ValueError(f"sums of {size} in rows of {x.shape[-1]}")
    call = _export("sum_window", "SumWindow", x.dtype, "32f")
    result = np.empty(x.shape[:-1] + (n,), np.float32)
    raw.rows(call, rows, result.reshape(-1, n), n, size)
    return result


def demodulate_fm(re, im, previous=(0, 0)):
    """The angle from each point to the next, in units of pi / 32768, and the last point, for the next call: int16. Exports: qvxsDemodulateFM_CToR_16s.

    >>> import numpy as np, qvxs
    >>> qvxs.demodulate_fm(np.int16([100, 0]), np.int16([0, 100]), (100, 0))
    (array([    0, 16384], dtype=int16), (0, 100))
    """
    re, im = (contiguous(native(x)) for x in (re, im))
    if re.dtype != np.int16 or im.dtype != np.int16 or re.shape != im.shape or not re.size:
        raise TypeError("demodulate_fm takes two arrays of int16 of one shape")
    point, result = np.array([previous], np.int16), np.empty_like(re)
    raw.qvxsDemodulateFM_CToR_16s(re, im, result, re.size, point)
    return result, (int(point[0, 0]), int(point[0, 1]))


def _running(stem, x, start, alpha, shift):
    x = contiguous(np.asarray(x), np.int16)
    mean = np.array([start], np.int32)
    if x.size:
        getattr(raw, f"qvxsUpdate{stem}_16s32s_I")(x, x.size, mean, shift, alpha, 0)
    return int(mean[0])


def running_mean(x, start, alpha, shift=0):
    """y after y = (alpha * y + (32768 - alpha) * (x >> shift)) / 32768 for all samples of int16, from `start` on. Exports: qvxsUpdateLinear_16s32s_I.

    >>> import numpy as np, qvxs
    >>> qvxs.running_mean(np.int16([100, 100]), 0, 16384)
    75
    """
    return _running("Linear", x, start, alpha, shift)


def running_power(x, start, alpha, shift=0):
    """The same of x * x >> shift. Exports: qvxsUpdatePower_16s32s_I.

    >>> import numpy as np, qvxs
    >>> qvxs.running_power(np.int16([100, 100]), 0, 16384)
    7500
    """
    return _running("Power", x, start, alpha, shift)
