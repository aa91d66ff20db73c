"""Filters between two rates: a part of qvxs.signal."""

import math

import numpy as np

from . import raw
from .design import resampling_taps
from .fallback import NotHere, TAGS, or_scipy
from .rows import back, check_axis, contiguous


@or_scipy
def upfirdn(h, x, up=1, down=1, axis=-1, mode="constant", cval=0):
    """Up-sampling, FIR filter and down-sampling in one, as scipy.signal.upfirdn with zeros around the signal.

    Exports: qvxsFIRMRInitAlloc_ and qvxsFIR_ of 32f, 64f, 32fc, 64fc.

        >>> upfirdn([1., 1, 1], [1., 2, 3], 2)
        array([1., 1., 3., 2., 5., 3., 3.])
    """
    h, x = np.asarray(h), np.asarray(x)
    up, down = int(up), int(down)
    if h.ndim != 1 or not h.size or not x.ndim or not x.size or up < 1 or down < 1 or mode != "constant" or cval:
        raise NotHere
    dtype = np.result_type(h, x, np.float32)
    if dtype.char not in TAGS:
        raise NotHere
    tag = TAGS[dtype.char]
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


@or_scipy
def resample_poly(x, up, down, axis=0, window=("kaiser", 5.0), padtype="constant", cval=None):
    """Resampling by up / down through a polyphase filter, as scipy.signal.resample_poly; padtype "constant", or one of the means.

        >>> resample_poly(np.ones(40), 3, 2)[28:31].round(2)
        array([1., 1., 1.])
    """
    x = np.asarray(x)
    if up != int(up) or down != int(down) or up < 1 or down < 1 or not x.size or cval is not None and padtype != "constant":
        raise NotHere
    levels = {"mean": np.mean, "median": np.median, "minimum": np.amin, "maximum": np.amax}
    if padtype not in levels and (padtype != "constant" or cval):
        raise NotHere
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
