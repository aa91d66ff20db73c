"""Element-wise functions, statistics, thresholds, conversions, generators and sorting, by stem.

    >>> import numpy as np, qvxs
    >>> a = np.array([30000, -7, 5, 1], np.int16)
    >>> qvxs.add(a, np.array([30000, 2, 0, 2], np.int16), scale=1)
    array([30000,    -2,     2,     2], dtype=int16)

The export is chosen by dtype. Integer results are exact, times 2^-scale, rounded to nearest with ties to even, and then saturated
to the type of the result, without a word: 30000 + 30000 in int16 is 32767 where NumPy wraps to -5536. Sums and products over a
vector raise OverflowError in place of a saturated result. Broadcasting works as in NumPy; arrays that are not contiguous are
copied. A dtype without an export raises TypeError.

Complex integers are structured arrays with the fields re and im: `qvxs.complex_int16` and its like.
"""

import math
from functools import lru_cache

import numpy as np

from . import raw
from .forms import TAGS, forms, round_mode
from .rows import back, check_axis, contiguous, last, native

__all__ = []


def _public(function, name, plain, swapped, doc):
    """The function under its name; calls of `plain` exports with whole arrays do not reach it."""
    function.__name__ = function.__qualname__ = name
    function.__module__ = __name__
    function.__doc__ = doc
    globals()[name] = raw.elementwise(plain, function, swapped) if plain else function
    __all__.append(name)


def _choose(name, candidates, source, scale, dtype):
    """The form for a source's type: with the wanted type of result, else with the source's own, else the first one."""
    fitting = [form for form in candidates if form.source == source and (form.scaled or not scale)]
    if dtype is not None:
        fitting = [form for form in fitting if form.target == np.dtype(dtype)]
    if not fitting:
        wanted = "" if dtype is None else f" to {np.dtype(dtype)}"
        raise TypeError(f"{name} has no form for {source}{wanted}{' with a scale' if scale else ''}")
    own = [form for form in fitting if form.target == source]
    return (own or fitting)[0]


def _chooser(name, found):
    """_choose for the forms of one function, with a cache: searching all takes 5 us."""
    @lru_cache(maxsize=64)
    def choose(source, scaled, dtype):
        return _choose(name, found, source, scaled, dtype)

    return choose


def _plain(name, found, parameters):
    """The exports for calls without scale, dtype and numbers, as far as there are any."""
    chosen = [_choose(name, found, source, 0, None) for source in dict.fromkeys(form.source for form in found) if source.names is None]
    return tuple(form.call for form in chosen if form.parameters == parameters and form.target.names is None)


def _destination(out, shape, dtype, *sources):
    """The array to write into: `out` itself where it is contiguous and apart from the sources."""
    if out is None:
        return np.empty(shape, dtype)
    if out.shape != shape:
        raise ValueError(f"out has the shape {out.shape}, the result {shape}")
    if out.dtype == dtype and out.flags.carray and not any(np.may_share_memory(out, source) for source in sources):
        return out
    return np.empty(shape, dtype)


def _deliver(result, out):
    if out is None or out is result:
        return result
    if out.shape != result.shape:
        raise ValueError(f"out has the shape {out.shape}, the result {result.shape}")
    np.copyto(out, result, casting="same_kind")
    return out


def _types(found):
    sources = dict.fromkeys(form.types[form.sources[0]] for form in found)
    return ", ".join(str(source) if source.names is None else "complex_int" + TAGS[source][:-2] for source in sources)


def _exports(found):
    return ", ".join(form.name for form in found)


# ---- two sources


def _binary(name, stem, summary, example, minus=False):
    """A function of two sources, with constants where a source is a number. minus: the library takes the first from the second."""
    found = [form for form in forms(stem) if form.second is not None and form.second == form.source]

    def family(constant):
        try:
            return [form for form in forms(stem + constant) if form.source == form.target]
        except LookupError:
            return []

    constants = family("C")
    reverse = family("CRev") if minus else constants
    choose = _chooser(name, found)
    def function(a, b, scale=0, out=None, dtype=None):
        a, b = np.asarray(a), np.asarray(b)
        common = a.dtype if a.dtype == b.dtype and a.dtype.isnative else np.result_type(a, b)
        if a.ndim and not b.ndim or b.ndim and not a.ndim:
            array, number, table = (a, b, constants) if a.ndim else (b, a, reverse)
            fitting = [form for form in table if form.source == common and (form.scaled or not scale)]
            if fitting and dtype in (None, common) and not (minus and stem == "Div" and number == 0):
                array = contiguous(array, common)
                result = _destination(out, array.shape, common, array)
                if array.size:
                    fitting[0](pSrc=array, val=number.astype(common)[()], pDst=result, len=array.size, scaleFactor=scale, rndMode=1)
                return _deliver(result, out)
        form = choose(common, bool(scale), dtype)
        if a.shape != b.shape:
            a, b = np.broadcast_arrays(a, b)
        shape = a.shape
        a, b = contiguous(a, common), contiguous(b, common)
        result = _destination(out, shape, form.target, a, b)
        if result.size:
            first, second = (b, a) if minus else (a, b)
            form(pSrc1=first, pSrc2=second, pDst=result.reshape(-1), len=result.size, scaleFactor=scale, rndMode=1)
        return _deliver(result, out)

    _public(function, name, _plain(name, found, ("pSrc1", "pSrc2", "pDst", "len")), minus, f"""{summary}

    a, b: arrays of one type after NumPy's promotion, broadcast together, or a number: {_types(found)}.
    scale: integer results times 2^-scale, rounded to nearest with ties to even, saturated to their type; dtype: that of the
    result, where there is more than one. out: an array for it. Exports: {_exports(found + constants)}.

        {example}
    """)


_SETUP = ">>> import numpy as np, qvxs\n        "
_binary("add", "Add", "a + b.", _SETUP + ">>> qvxs.add(np.int16([30000, 5]), np.int16([30000, 2]))\n        array([32767,     7], dtype=int16)")
_binary("subtract", "Sub", "a - b; unsigned differences saturate at 0.",
        _SETUP + ">>> qvxs.subtract(np.uint8([7, 2]), np.uint8([2, 7]))\n        array([5, 0], dtype=uint8)", minus=True)
_binary("multiply", "Mul", "a * b.", _SETUP + ">>> qvxs.multiply(np.int16([16384, -3]), np.int16([16384, 8192]), scale=15)\n        array([8192,   -1], dtype=int16)")
_binary("divide", "Div", "a / b in the type of both: of integers rounded to nearest, which NumPy's true division is not. Warns of zeros.",
        _SETUP + ">>> qvxs.divide(np.int16([7, 9]), np.int16([2, 2]))\n        array([4, 4], dtype=int16)", minus=True)
_binary("bitwise_and", "And", "a & b of unsigned integers.", _SETUP + ">>> qvxs.bitwise_and(np.uint8([12, 10]), 6)\n        array([4, 2], dtype=uint8)")
_binary("bitwise_or", "Or", "a | b of unsigned integers.", _SETUP + ">>> qvxs.bitwise_or(np.uint8([12, 10]), 1)\n        array([13, 11], dtype=uint8)")
_binary("bitwise_xor", "Xor", "a ^ b of unsigned integers.", _SETUP + ">>> qvxs.bitwise_xor(np.uint8([12, 10]), np.uint8([10, 10]))\n        array([6, 0], dtype=uint8)")
_binary("maximum", "MaxEvery", "The greater of a and b; a NaN in b stays, one in a is passed over.",
        _SETUP + ">>> qvxs.maximum(np.float32([1, 5]), np.float32([3, 2]))\n        array([3., 5.], dtype=float32)")
_binary("minimum", "MinEvery", "The less of a and b; a NaN in b stays, one in a is passed over.",
        _SETUP + ">>> qvxs.minimum(np.float32([1, 5]), np.float32([3, 2]))\n        array([1., 2.], dtype=float32)")


# ---- one source


def _unary(name, stem, summary, example, extra=()):
    """A function of one source and numbers after it, named as Python has them: level for `level`."""
    found = forms(stem)

    choose = _chooser(name, found)

    def general(x, numbers, scale, out, dtype):
        form = choose(x.dtype, bool(scale), dtype)
        x = contiguous(x)
        result = _destination(out, x.shape, form.target, x)
        if result.size:
            form(pSrc=x.reshape(-1), pDst=result.reshape(-1), len=x.size, scaleFactor=scale, **dict(zip(extra, numbers)))
        return _deliver(result, out)

    if extra:
        def function(x, *numbers, out=None):
            if len(numbers) != len(extra):
                raise TypeError(f"{name} takes {', '.join(extra)} after the array")
            return general(native(x), numbers, 0, out, None)
    else:
        def function(x, scale=0, out=None, dtype=None):
            return general(native(x), (), scale, out, dtype)

    scaled = any(form.scaled for form in found)
    _public(function, name, _plain(name, found, ("pSrc", "pDst", "len")), False, f"""{summary}

    x: array of any shape: {_types(found)}.{' Then the numbers: ' + ', '.join(extra) + '.' if extra else ''}
    {'scale: integer results times 2^-scale, rounded to nearest, saturated to their type. ' if scaled else ''}out: an array for the result.
    Exports: {_exports(found)}.

        {example}
    """)


for _row in (
    ("square", "Sqr", "x * x.", ">>> qvxs.square(np.int16([3, 200]))\n        array([    9, 32767], dtype=int16)"),
    ("sqrt", "Sqrt", "The square root; warns of negative numbers, which become NaN, or 0 in integers.",
     ">>> qvxs.sqrt(np.float64([4, 2.25]))\n        array([2. , 1.5])"),
    ("cbrt", "Cubrt", "The cube root.", ">>> qvxs.cbrt(np.float32([27, -8]))\n        array([ 3., -2.], dtype=float32)"),
    ("exp", "Exp", "e to the power of x, within 1 unit in the last place.", ">>> qvxs.exp(np.float64([0, 1])).round(12)\n        array([1.        , 2.71828183])"),
    ("log", "Ln", "The natural logarithm, within 1.1 units in the last place; warns of zeros and negative numbers.",
     ">>> qvxs.log(np.float64([1, np.e])).round(12)\n        array([0., 1.])"),
    ("decibels", "10Log10", "10 times the decimal logarithm.", ">>> qvxs.decibels(np.int32([1, 1000]))\n        array([ 0, 30], dtype=int32)"),
    ("arctan", "Arctan", "The arctangent, within 1.25 units in the last place.", ">>> qvxs.arctan(np.float32([0, 1]))\n        array([0.       , 0.7853982], dtype=float32)"),
    ("absolute", "Abs", "The magnitude of real numbers; that of the least integer is the greatest.", ">>> qvxs.absolute(np.int16([-5, -32768]))\n        array([    5, 32767], dtype=int16)"),
    ("invert", "Not", "All bits inverted.", ">>> qvxs.invert(np.uint8([0, 254]))\n        array([255,   1], dtype=uint8)"),
    ("real", "Real", "The real parts.", ">>> qvxs.real(np.complex64([1 + 2j]))\n        array([1.], dtype=float32)"),
    ("imag", "Imag", "The imaginary parts.", ">>> qvxs.imag(np.complex64([1 + 2j]))\n        array([2.], dtype=float32)"),
    ("conjugate", "Conj", "The conjugate.", ">>> qvxs.conjugate(np.complex64([1 + 2j]))\n        array([1.-2.j], dtype=complex64)"),
    ("flip", "Flip", "All elements in reverse order, whatever the shape.", ">>> qvxs.flip(np.uint8([1, 2, 3]))\n        array([3, 2, 1], dtype=uint8)"),
    ("magnitude", "Magnitude", "The magnitude of complex numbers.", ">>> qvxs.magnitude(np.complex64([3 + 4j]))\n        array([5.], dtype=float32)"),
    ("angle", "Phase", "The phase of complex numbers.", ">>> qvxs.angle(np.complex128([1j, -1]))\n        array([1.57079633, 3.14159265])"),
    ("power", "PowerSpectr", "re * re + im * im of complex numbers.", ">>> qvxs.power(np.complex64([3 + 4j]))\n        array([25.], dtype=float32)"),
    ("a_law_to_linear", "ALawToLin", "The numbers of G.711 A-law codes.", ">>> qvxs.a_law_to_linear(np.uint8([213, 42]))\n        array([     8, -32256], dtype=int16)"),
    ("mu_law_to_linear", "MuLawToLin", "The numbers of G.711 mu-law codes.", ">>> qvxs.mu_law_to_linear(np.uint8([255, 0]))\n        array([     0, -32124], dtype=int16)"),
    ("linear_to_a_law", "LinToALaw", "The G.711 A-law codes of numbers; floats beyond 1 saturate.", ">>> qvxs.linear_to_a_law(np.int16([8, -32256]))\n        array([213,  42], dtype=uint8)"),
    ("linear_to_mu_law", "LinToMuLaw", "The G.711 mu-law codes of numbers; floats beyond 1 saturate.", ">>> qvxs.linear_to_mu_law(np.int16([0, -32124]))\n        array([255,   0], dtype=uint8)"),
    ("a_law_to_mu_law", "ALawToMuLaw", "Codes of one law for those of the other.", ">>> qvxs.a_law_to_mu_law(np.uint8([42]))\n        array([0], dtype=uint8)"),
    ("mu_law_to_a_law", "MuLawToALaw", "Codes of one law for those of the other.", ">>> qvxs.mu_law_to_a_law(np.uint8([0]))\n        array([42], dtype=uint8)"),
    ("threshold_lt", "Threshold_LT", "What lies below the level becomes the level.", ">>> qvxs.threshold_lt(np.float32([-1, 2]), 0)\n        array([0., 2.], dtype=float32)", ("level",)),
    ("threshold_gt", "Threshold_GT", "What lies above the level becomes the level.", ">>> qvxs.threshold_gt(np.float32([-1, 2]), 1)\n        array([-1.,  1.], dtype=float32)", ("level",)),
    ("threshold_lt_abs", "Threshold_LTAbs", "Magnitudes below the level become the level; signs stay.", ">>> qvxs.threshold_lt_abs(np.float32([-1, 2]), 1.5)\n        array([-1.5,  2. ], dtype=float32)", ("level",)),
    ("threshold_gt_abs", "Threshold_GTAbs", "Magnitudes above the level become the level; signs stay.", ">>> qvxs.threshold_gt_abs(np.float32([-3, 2]), 1.5)\n        array([-1.5,  1.5], dtype=float32)", ("level",)),
    ("threshold_lt_value", "Threshold_LTVal", "What lies below the level becomes the value.", ">>> qvxs.threshold_lt_value(np.float32([-1, 2]), 0, 9)\n        array([9., 2.], dtype=float32)", ("level", "value")),
    ("threshold_gt_value", "Threshold_GTVal", "What lies above the level becomes the value.", ">>> qvxs.threshold_gt_value(np.float32([-1, 2]), 0, 9)\n        array([-1.,  9.], dtype=float32)", ("level", "value")),
    ("threshold_lt_gt_value", "Threshold_LTValGTVal", "What lies below one level or above another becomes a value for each.",
     ">>> qvxs.threshold_lt_gt_value(np.float32([-5, 1, 5]), -2, -9, 2, 9)\n        array([-9.,  1.,  9.], dtype=float32)", ("levelLT", "valueLT", "levelGT", "valueGT")),
    ("threshold_lt_inverse", "Threshold_LTInv", "1 / x, where magnitudes below the level count as the level.",
     ">>> qvxs.threshold_lt_inverse(np.float32([0.1, 4]), 0.5)\n        array([2.  , 0.25], dtype=float32)", ("level",)),
):
    _unary(_row[0], _row[1], _row[2], _SETUP + _row[3], *_row[4:])


def clip(x, low, high, out=None):
    """The array limited to low..high, as np.clip: int16, int32, float32, float64. Exports: qvxsThreshold_LTValGTVal_.

    >>> import numpy as np, qvxs
    >>> qvxs.clip(np.int16([-9, 3, 9]), -5, 5)
    array([-5,  3,  5], dtype=int16)
    """
    return threshold_lt_gt_value(x, low, low, high, high, out=out)  # noqa: F821


# ---- reductions


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
            raise TypeError(f"{name} has no form for {common}{' with a scale' if scale else ''}")
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
        if out is not None:
            for value, place in zip(made, (out,) if len(made) == 1 else out):
                if place.shape != np.shape(value):
                    raise ValueError(f"out has the shape {place.shape}, the result {np.shape(value)}")
                np.copyto(place, value, casting="same_kind")
            return out
        return made[0] if len(made) == 1 else tuple(made)

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
            return one(x, *_numbers(name, numbers, arguments, named), axis=axis, out=out, scale=scale)
    else:
        def function(x, axis=None, out=None, scale=0):
            x = native(x)
            made = usual(x) if brief and axis is None and out is None and not scale else None
            return one(x, axis=axis, out=out, scale=scale) if made is None else made

    found = list({form.name: form for form in best.values()}.values())
    _public(function, name, (), False, f"""{summary}

    {'x: array' if sources == 1 else 'a, b: arrays'}: {_types(found)}; over all of it, or along an axis.{_told(numbers)}{' OverflowError where the sum of integers is beyond the type that it has.' if overflow else ''}
    out: an array for the result, a tuple of them where there are several.{' scale: of the exports that end in _Sfs, times 2^-scale.' if any(form.scaled for form in found) else ''}
    Exports: {_exports(found)}.

        {example}
    """)


def _numbers(name, numbers, arguments, named):
    """The values of the numbers after the arrays: (name, parameter, default) each, None for no default."""
    if len(arguments) > len(numbers):
        raise TypeError(f"{name} takes {len(numbers)} numbers after the array: {', '.join(number for number, _, _ in numbers)}")
    values = list(arguments)
    for number, _, default in numbers[len(arguments):]:
        if number not in named and default is None:
            raise TypeError(f"{name} lacks {number}")
        values.append(named.pop(number, default))
    if named:
        raise TypeError(f"{name} takes no {', '.join(named)}")
    return values


def _told(numbers):
    listed = ", ".join(number if default is None else f"{number}={default}" for number, _, default in numbers)
    return f" Then {listed}." if numbers else ""


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
    n = x.size if axis is None else x.shape[axis]
    if n == 1:
        made = np.zeros(np.delete(x.shape, axis) if axis is not None else (), x.dtype)[()] * (0.0 if ddof == 0 else np.nan)
    else:
        made = sample_deviation(x, axis) * x.dtype.type(math.sqrt((n - 1) / (n - ddof)) if n > ddof else np.nan)  # noqa: F821
    return made if out is None else _deliver(np.asarray(made), out)


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
    return result[0] if out is None else _deliver(result.reshape(()), out)


# ---- conversion

_CONVERSIONS = {(form.name.split("_")[1], form.scaled): form for form in forms("Convert")}


def convert(x, dtype, scale=0, rounding="even", out=None):
    """The array in another type, times 2^-scale, rounded and saturated.

    dtype: a NumPy type, or "24s", "24u" for three bytes an element, in a last axis of 3; arrays of such bytes are told by
    dtype=("24s", type). rounding: "even" (ties to even), "zero" (toward zero), "away" (ties away from zero).
    Numbers beyond the type saturate; a NaN becomes the greatest integer, 0 in uint8, uint16 and int64.
    Exports: qvxsConvert_, of these pairs of types: {pairs}.

    >>> import numpy as np, qvxs
    >>> qvxs.convert(np.float32([0.5, -2, 0.25]), np.int16, scale=-15)
    array([ 16384, -32768,   8192], dtype=int16)
    """
    x = native(x)
    source = TAGS.get(x.dtype, str(x.dtype))
    if isinstance(dtype, tuple):
        source, dtype = dtype
        if x.dtype != np.uint8 or x.shape[-1:] != (3,):
            raise TypeError("24-bit elements are bytes with a last axis of 3")
    target = dtype if dtype in ("24s", "24u") else TAGS.get(np.dtype(dtype), str(np.dtype(dtype)))
    form = (not scale and _CONVERSIONS.get((source + target, False))) or _CONVERSIONS.get((source + target, True))
    if not form:
        raise TypeError(f"convert has no form from {source} to {target}{' with a scale' if scale else ''}")
    x = contiguous(x)
    shape = x.shape[:-1] if source.startswith("24") else x.shape
    result = _destination(out, shape + ((3,) if target.startswith("24") else ()), form.target, x)
    count = int(np.prod(shape))
    if count:
        form(pSrc=x.reshape(-1), pDst=result.reshape(-1), len=count, scaleFactor=scale, rndMode=round_mode(rounding))
    return _deliver(result, out)


convert.__doc__ = convert.__doc__.replace("{pairs}", ", ".join(dict.fromkeys(pair for pair, _ in _CONVERSIONS)))


# ---- sorting


def _in_place(stem):
    return {dtype: getattr(raw, f"qvxs{stem}_{tag}_I") for dtype, tag in TAGS.items() if hasattr(raw, f"qvxs{stem}_{tag}_I")}


_SORTS = {False: _in_place("SortRadixAscend"), True: _in_place("SortRadixDescend")}
_INDEX_SORTS = {False: {form.source: form for form in forms("SortRadixIndexAscend")},
                True: {form.source: form for form in forms("SortRadixIndexDescend")}}


def sort(x, axis=-1, descending=False, out=None):
    """A sorted copy, as np.sort: uint8, uint16, uint32, int16, int32, float32, float64.

    -0.0 comes before 0.0; a NaN comes last, as in NumPy, one of negative sign first. Exports: qvxsSortRadixAscend_, qvxsSortRadixDescend_.

    >>> import numpy as np, qvxs
    >>> qvxs.sort(np.float32([3, 1, 2]), descending=True)
    array([3., 2., 1.], dtype=float32)
    """
    x = native(x)
    call = _SORTS[bool(descending)].get(x.dtype)
    if call is None:
        raise TypeError(f"sort has no form for {x.dtype}")
    if x.ndim == 1 and x.size and axis in (0, -1, None) and out is None:
        rows = x.copy()
        call(rows, np.empty(x.size, x.dtype), x.size)
        return rows
    if axis is None:
        x, axis = x.reshape(-1), -1
    axis = check_axis(axis, x.ndim)
    rows = np.array(np.moveaxis(x, axis, -1), order="C", copy=True)
    if rows.size:
        raw.rows(call, rows.reshape(-1, rows.shape[-1]), np.empty(rows.shape[-1], x.dtype), rows.shape[-1])
    return _deliver(back(rows, axis), out)


def argsort(x, axis=-1, descending=False, out=None):
    """The indices that sort, as np.argsort(kind="stable"): uint8, uint16, uint32, int16, int32, float32.

    Descending, equal elements still come in the order of their places. -0.0 comes before 0.0. Exports: qvxsSortRadixIndexAscend_, qvxsSortRadixIndexDescend_.

    >>> import numpy as np, qvxs
    >>> qvxs.argsort(np.int16([3, 1, 2]))
    array([1, 2, 0])
    """
    x = native(x)
    form = _INDEX_SORTS[bool(descending)].get(x.dtype)
    if form is None:
        raise TypeError(f"argsort has no form for {x.dtype}")
    if axis is None:
        x, axis = x.reshape(-1), -1
    axis = check_axis(axis, x.ndim)
    rows = last(x, axis)
    indices = np.empty(rows.shape, np.int32)
    if rows.size:
        n = rows.shape[-1]
        raw.rows(form.call, rows.reshape(-1, n), x.itemsize, indices.reshape(-1, n), np.empty(n, np.int32), n)
    return _deliver(back(indices.astype(np.intp), axis), out)


# ---- generators


def _generator(stem, n, dtype, choices, out):
    """The vector that a generator fills, and the tail of its export's name: of `out`, or of n elements of the type."""
    dtype = np.dtype(dtype if out is None else out.dtype)
    tag = TAGS.get(dtype)
    if tag not in choices:
        raise TypeError(f"there is no {stem} of {dtype}")
    return _destination(out, (n,), dtype), tag


def _wave(stem, n, dtype, phase, out, arguments):
    result, tag = _generator(stem.lower(), n, dtype, ("16s", "16sc", "32f", "32fc", "64f", "64fc"), out)
    start = np.array([phase], np.float64 if "64" in tag else np.float32)
    if n:
        getattr(raw, f"qvxs{stem}_Direct_" + tag)(result, n, *arguments(start))
    return _deliver(result, out)


def tone(n, magnitude, frequency, phase=0.0, dtype=np.float32, out=None):
    """n samples of magnitude * cos(2 pi frequency n + phase), with the sine as imaginary part of complex types.

    frequency: in [0, 0.5), relative to the sampling rate; phase: in [0, 2 pi). Integers saturate.
    Exports: qvxsTone_Direct_16s, 16sc, 32f, 32fc, 64f, 64fc.

    >>> import numpy as np, qvxs
    >>> qvxs.tone(4, 1, 0.25, dtype=np.float64).round(6) + 0
    array([ 1.,  0., -1.,  0.])
    """
    return _wave("Tone", n, dtype, phase, out, lambda start: (magnitude, frequency, start, 2))


def triangle(n, magnitude, frequency, asymmetry=0.0, phase=0.0, dtype=np.float32, out=None):
    """n samples of a triangle wave: from magnitude at phase 0 down to -magnitude at phase pi + asymmetry, and up again.

    Exports: qvxsTriangle_Direct_16s, 16sc, 32f, 32fc, 64f, 64fc.

    >>> import numpy as np, qvxs
    >>> qvxs.triangle(4, 1, 0.25, dtype=np.float64).round(6) + 0
    array([ 1.,  0., -1.,  0.])
    """
    return _wave("Triangle", n, dtype, phase, out, lambda start: (magnitude, frequency, asymmetry, start))


_RAMPS = ("8u", "8s", "16u", "16s", "32u", "32s", "32f", "64f")


def ramp(n, offset, slope, dtype=np.float32, out=None):
    """n samples of offset + slope * n, rounded once; integers saturate. Exports: qvxsVectorRamp_.

    >>> import numpy as np, qvxs
    >>> qvxs.ramp(4, 1, 0.5, np.float64)
    array([1. , 1.5, 2. , 2.5])
    """
    result, tag = _generator("ramp", n, dtype, _RAMPS, out)
    if n:
        getattr(raw, "qvxsVectorRamp_" + tag)(result, n, offset, slope)
    return _deliver(result, out)


def chirp(n, magnitude, dtype=np.float32, out=None):
    """n samples of magnitude * sin(pi/2 k^2 / n), which sweeps from 0 to half the sampling rate; unsigned types are shifted so that the
    least is 0. Exports: qvxsVectorJaehne_.

    >>> import numpy as np, qvxs
    >>> qvxs.chirp(4, 100, np.int16)
    array([  0,  38, 100, -38], dtype=int16)
    """
    result, tag = _generator("chirp", n, dtype, _RAMPS, out)
    if n:
        getattr(raw, "qvxsVectorJaehne_" + tag)(result, n, magnitude)
    return _deliver(result, out)


def _noise(stem, n, first, second, seed, dtype, out):
    result, tag = _generator(stem, n, dtype, ("8u", "16s", "32f", "64f"), out)
    if n and tag == "64f":
        getattr(raw, f"qvxs{stem}_Direct_64f")(result, n, first, second, np.array([seed], np.uint32))
    elif n:
        getattr(raw, f"qvxs{stem}_{tag}")(result, n, getattr(raw, f"qvxs{stem}InitAlloc_{tag}")(first, second, seed))
    return _deliver(result, out)


def uniform(n, low=0.0, high=1.0, seed=0, dtype=np.float32, out=None):
    """n numbers of uniform noise between low and high, the same for a seed in every release: uint8, int16, float32, float64.

    Exports: qvxsRandUniformInitAlloc_, qvxsRandUniform_.

    >>> import numpy as np, qvxs
    >>> bool(abs(qvxs.uniform(10000, -1, 1).mean()) < 0.05)
    True
    """
    return _noise("RandUniform", n, low, high, seed, dtype, out)


def gauss(n, mean=0.0, deviation=1.0, seed=0, dtype=np.float32, out=None):
    """n numbers of Gaussian noise, the same for a seed up to rounding: uint8, int16, float32, float64.

    Exports: qvxsRandGaussInitAlloc_, qvxsRandGauss_.

    >>> import numpy as np, qvxs
    >>> bool(abs(qvxs.gauss(10000).std() - 1) < 0.05)
    True
    """
    return _noise("RandGauss", n, mean, deviation, seed, dtype, out)


sub, mul, div = subtract, multiply, divide  # noqa: F821
__all__ += ["sub", "mul", "div", "clip", "std", "dot", "convert", "sort", "argsort", "tone", "triangle", "ramp", "chirp", "uniform", "gauss"]
