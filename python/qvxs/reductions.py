"""Numbers from vectors: sums, means, extrema, norms, products of two vectors."""

import math

import numpy as np

from . import raw
from .forms import forms
from .rows import check_axis, contiguous, last, native
from .stem import deliver, deliver_all, names_of, no_form, numbers_of, publish, told, types_of

__all__ = []
_SETUP = ">>> import numpy as np, qvxs\n        "


def _reduction(name, stem, results, summary, example, overflow=False, widest=False, numbers=(), sources=1):
    """A function from rows of one or two arrays to one number each, or to several, named by the parameters that receive them."""
    best = {}
    for form in forms(stem):
        if len(form.sources) != sources or sources == 2 and form.second != form.source:
            continue
        scaled = best.setdefault((form.source, True), form) if form.scaled else form  # for calls with a scale
        held = best.setdefault((form.source, False), scaled)
        if widest and held.target.kind == form.target.kind and form.target.itemsize > held.target.itemsize:
            best[form.source, False] = form
    fewest = 2 if "StdDev" in stem else 1
    names = ("pSrc",) if sources == 1 else ("pSrc1", "pSrc2")

    def general(arrays, values, axis, out, scale):
        common = arrays[0].dtype if sources == 1 else np.result_type(*arrays)
        form = best.get((common, bool(scale)))
        if form is None:
            raise no_form(name, [common], best.values(), scale)
        if sources == 2:
            arrays = np.broadcast_arrays(*(array.astype(common, copy=False) for array in arrays))
        rows = [contiguous(x).reshape(1, -1) if axis is None else last(x, check_axis(axis, x.ndim)) for x in arrays]
        shape = rows[0].shape[:-1] if axis is not None else ()
        n = rows[0].shape[-1]
        if n < fewest:
            raise ValueError(f"{name} of {n} elements")
        made = {result: np.empty((rows[0].size // n, 1), form.types[result]) for result in results}
        given = {**{parameter: x.reshape(-1, n) for parameter, x in zip(names, rows)}, **made, "len": n, "hint": 2, "scaleFactor": scale,
                 **{parameter: value for (_, parameter, _), value in zip(numbers, values)}}
        raw.rows(form.call, *[given[parameter] for parameter in form.parameters])
        for values in made.values() if overflow and form.target.kind in "iu" else ():
            limits = np.iinfo(values.dtype)
            at_limit = ((values == limits.max) | (values == limits.min))[:, 0]
            if (rows[0].reshape(-1, n)[at_limit].sum(axis=1, dtype=np.int64) != values[at_limit, 0]).any():
                raise OverflowError(f"{name} is beyond {values.dtype}: convert the array to a wider type first")
        made = [values.reshape(shape) if axis is not None else values[0, 0] for values in made.values()]
        return deliver_all(out, made)

    def usual(x):
        """The number of a whole array without the rows above; None where they are needed."""
        form = best.get((x.dtype, False))
        if form is None or x.size < fewest or not x.flags.carray or form.target.kind != "f":
            return None
        made = np.empty(1, form.target)
        form.call(*[x if p == "pSrc" else x.size if p == "len" else made if p == results[0] else 2 for p in form.parameters])
        return made[0]

    brief = sources == len(results) == 1 and not numbers

    def one(x, *values, axis=None, out=None, scale=0):
        return general((native(x),), values, axis, out, scale)

    if sources == 2:
        def function(a, b, axis=None, out=None, scale=0):
            return general((native(a), native(b)), (), axis, out, scale)
    elif numbers:
        def function(x, *arguments, axis=None, out=None, scale=0, **named):
            return one(x, *numbers_of(name, numbers, arguments, named), axis=axis, out=out, scale=scale)
    else:
        def function(x, axis=None, out=None, scale=0):
            x = native(x)
            made = usual(x) if brief and axis is None and out is None and not scale else None
            return one(x, axis=axis, out=out, scale=scale) if made is None else made

    found = list({form.name: form for form in best.values()}.values())
    publish(globals(), function, name, f"""{summary}

    {'x: array' if sources == 1 else 'a, b: arrays'}: {types_of(found)}; over all of it, or along an axis.{told(numbers)}{' OverflowError where the sum of integers is beyond the type that it has.' if overflow else ''}
    out: an array for the result, a tuple of them where there are several.{' scale: of the exports that end in _Sfs, times 2^-scale.' if any(form.scaled for form in found) else ''}
    Exports: {names_of(found)}.

        {example}
    """)


for _row in (
    ("sum", "Sum", ("pSum",), "The sum: that of int16 in int32, that of floats by way of doubles.", ">>> qvxs.sum(np.float32([1, 2, 3.5]))\n        6.5", True, True),
    ("mean", "Mean", ("pMean",), "The mean; that of integers rounded to nearest.", ">>> qvxs.mean(np.int16([1, 2, 6]))\n        3"),
    ("sample_deviation", "StdDev", ("pStdDev",), "The standard deviation of a sample: np.std with ddof=1.", ">>> qvxs.sample_deviation(np.float64([1, 2, 3]))\n        1.0"),
    ("max", "Max", ("pMax",), "The greatest element; a NaN counts only as the first.", ">>> qvxs.max(np.int16([1, 7, 2]))\n        7"),
    ("min", "Min", ("pMin",), "The least element; a NaN counts only as the first.", ">>> qvxs.min(np.int16([1, 7, 2]))\n        1"),
    ("min_max", "MinMax", ("pMin", "pMax"), "The least and the greatest element in one pass.", ">>> qvxs.min_max(np.uint8([4, 9, 2]))\n        (2, 9)"),
    ("min_max_index", "MinMaxIndx", ("pMin", "pMinIndx", "pMax", "pMaxIndx"), "The least element, its index, the greatest, its index.",
     ">>> qvxs.min_max_index(np.uint8([4, 9, 2]))\n        (2, 2, 9, 1)"),
    ("max_abs", "MaxAbs", ("pMaxAbs",), "The greatest magnitude; that of the least integer saturates.", ">>> qvxs.max_abs(np.int16([3, -7]))\n        7"),
    ("norm_inf", "Norm_Inf", ("pNorm",), "The largest magnitude.", ">>> qvxs.norm_inf(np.float32([3, -4]))\n        4.0"),
    ("norm_l1", "Norm_L1", ("pNorm",), "The sum of the magnitudes.", ">>> qvxs.norm_l1(np.float32([3, -4]))\n        7.0"),
    ("norm_l2", "Norm_L2", ("pNorm",), "The root of the sum of the squares.", ">>> qvxs.norm_l2(np.float32([3, -4]))\n        5.0"),
    ("norm_l2_squared", "Norm_L2Sqr", ("pNorm",), "The sum of the squares, exact.", ">>> qvxs.norm_l2_squared(np.int16([3, -4]))\n        25"),
    ("sum_log", "SumLn", ("pSum",), "The sum of the natural logarithms.", ">>> qvxs.sum_log(np.float64([1, np.e, np.e])).round(12)\n        2.0"),
    ("mean_deviation", "MeanStdDev", ("pMean", "pStdDev"), "The mean and the standard deviation of a sample in one pass.",
     ">>> qvxs.mean_deviation(np.float64([1, 2, 3]))\n        (2.0, 1.0)"),
    ("max_index", "MaxIndx", ("pMax", "pIndx"), "The greatest element and its first index.", ">>> qvxs.max_index(np.int16([1, 7, 2]))\n        (7, 1)"),
    ("min_index", "MinIndx", ("pMin", "pIndx"), "The least element and its first index.", ">>> qvxs.min_index(np.int16([1, 7, 0]))\n        (0, 2)"),
    ("min_abs", "MinAbs", ("pMinAbs",), "The least magnitude.", ">>> qvxs.min_abs(np.int16([3, -7]))\n        3"),
    ("max_abs_index", "MaxAbsIndx", ("pMaxAbs", "pIndx"), "The greatest magnitude and its first index.", ">>> qvxs.max_abs_index(np.int16([3, -7]))\n        (7, 1)"),
    ("min_abs_index", "MinAbsIndx", ("pMinAbs", "pIndx"), "The least magnitude and its first index.", ">>> qvxs.min_abs_index(np.int16([3, -7]))\n        (3, 0)"),
    ("max_order", "MaxOrder", ("pOrder",), "How many binary digits the greatest magnitude has before its point.", ">>> qvxs.max_order(np.int16([3, -700]))\n        10"),
    ("count_in_range", "CountInRange", ("pCounts",), "How many elements are greater than `low` and less than `high`.",
     ">>> qvxs.count_in_range(np.int32([1, 5, 9]), 1, 9)\n        1", False, False, (("low", "lowerBound", None), ("high", "upperBound", None))),
    ("zero_crossings", "ZeroCrossing", ("pValZC",), "How often the sign changes; kind 0: to the other side of zero, 1: of the sign bit, 2: half the steps of -1, 0, 1.",
     ">>> qvxs.zero_crossings(np.float32([1, -1, 0, 2]))\n        1.0", False, False, (("kind", "zcType", 0),)),
    ("goertzel", "Goertz", ("pVal",), "The component at a frequency relative to the sampling rate: the sum of x[n] e^(2 pi i frequency (len - n)).",
     ">>> qvxs.goertzel(np.float64([1, 0, -1, 0]), 0.25).round(6)\n        (2+0j)", False, False, (("frequency", "rFreq", None),)),
    ("norm_diff_inf", "NormDiff_Inf", ("pNorm",), "The largest magnitude of a - b.", ">>> qvxs.norm_diff_inf(np.float32([3, -4]), np.float32([1, 1]))\n        5.0", False, False, (), 2),
    ("norm_diff_l1", "NormDiff_L1", ("pNorm",), "The sum of the magnitudes of a - b.", ">>> qvxs.norm_diff_l1(np.float32([3, -4]), np.float32([1, 1]))\n        7.0", False, False, (), 2),
    ("norm_diff_l2", "NormDiff_L2", ("pNorm",), "The root of the sum of the squares of a - b.", ">>> qvxs.norm_diff_l2(np.float32([3, -3]), np.float32([0, 1]))\n        5.0", False, False, (), 2),
    ("norm_diff_l2_squared", "NormDiff_L2Sqr", ("pNorm",), "The sum of the squares of a - b, exact.", ">>> qvxs.norm_diff_l2_squared(np.int16([3, -3]), np.int16([0, 1]))\n        25", False, False, (), 2),
):
    _reduction(_row[0], _row[1], _row[2], _row[3], _SETUP + _row[4], *_row[5:])


def std(x, axis=None, ddof=0, out=None):
    """The standard deviation, as np.std: float32, float64. Exports: qvxsStdDev_32f, qvxsStdDev_64f.

    The squares are summed beside the sum, in doubles: where the deviation is less than 1e-8 of the mean, little of it is left.

    >>> import numpy as np, qvxs
    >>> qvxs.std(np.float64([1, 2, 3, 4])).round(6)
    1.118034
    """
    x = native(x)
    if x.dtype.kind != "f":
        raise TypeError(f"std has no form for {x.dtype}")
    n = x.size if axis is None else x.shape[check_axis(axis, x.ndim)]
    if n == 1:
        made = np.zeros(np.delete(x.shape, axis) if axis is not None else (), x.dtype)[()] * (0.0 if ddof == 0 else np.nan)
    else:
        made = sample_deviation(x, axis) * x.dtype.type(math.sqrt((n - 1) / (n - ddof)) if n > ddof else np.nan)  # noqa: F821
    return made if out is None else deliver(np.asarray(made), out)


_DOT = {form.source: form for form in forms("DotProd")
        if form.second == form.source and (form.source.kind in "fc" and form.target == form.source or form.name == "qvxsDotProd_16s64s")}


def dot(a, b, out=None):
    """The sum of the products of two vectors, without conjugation, as np.dot of two vectors: that of int16 in int64, exact.

    a, b: vectors of one type and length: int16, float32, float64, complex64, complex128.
    Exports: qvxsDotProd_16s64s, qvxsDotProd_32f, _64f, _32fc, _64fc.

    >>> import numpy as np, qvxs
    >>> qvxs.dot(np.int16([30000, 2]), np.int16([30000, 3]))
    900000006
    """
    a, b = np.asarray(a), np.asarray(b)
    if a.ndim != 1 or a.shape != b.shape or not a.size:
        raise ValueError(f"dot takes two vectors of one length from 1 on, not {a.shape} and {b.shape}")
    common = np.result_type(a, b)
    form = _DOT.get(common)
    if form is None:
        raise TypeError(f"dot has no form for {common}")
    result = np.empty(1, form.target)
    form(pSrc1=contiguous(a, common), pSrc2=contiguous(b, common), len=a.size, pDp=result)
    return result[0] if out is None else deliver(result.reshape(()), out)


__all__ += ["std", "dot"]
