"""Functions of each element: arithmetic, roots and logarithms, bits, complex parts, thresholds, companding, conversion."""

import numpy as np

from . import raw
from .forms import TAGS, forms, round_mode
from .rows import contiguous, native
from .stem import choose, chooser_of, deliver, destination, names_of, publish, types_of

__all__ = []


def _public(function, name, plain, swapped, doc):
    """Publishes the function; calls of `plain` exports with whole arrays do not reach it."""
    publish(globals(), function, name, doc)
    if plain:
        globals()[name] = raw.elementwise(plain, function, swapped)


def _plain_calls(name, found, parameters):
    """The exports for calls without scale, dtype and numbers, as far as there are any."""
    chosen = [choose(name, found, source, 0, None) for source in dict.fromkeys(form.source for form in found) if source.names is None]
    return tuple(form.call for form in chosen if form.parameters == parameters and form.target.names is None)


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
    choose = chooser_of(name, found)
    def function(a, b, scale=0, out=None, dtype=None):
        a, b = np.asarray(a), np.asarray(b)
        common = a.dtype if a.dtype == b.dtype and a.dtype.isnative else np.result_type(a, b)
        if a.ndim and not b.ndim or b.ndim and not a.ndim:
            array, number, table = (a, b, constants) if a.ndim else (b, a, reverse)
            fitting = [form for form in table if form.source == common and (form.scaled or not scale)]
            if fitting and dtype in (None, common) and not (minus and stem == "Div" and number == 0):
                array = contiguous(array, common)
                result = destination(out, array.shape, common, array)
                if array.size:
                    fitting[0](pSrc=array, val=number.astype(common)[()], pDst=result, len=array.size, scaleFactor=scale, rndMode=1)
                return deliver(result, out)
        form = choose(common, bool(scale), dtype)
        if a.shape != b.shape:
            a, b = np.broadcast_arrays(a, b)
        shape = a.shape
        a, b = contiguous(a, common), contiguous(b, common)
        result = destination(out, shape, form.target, a, b)
        if result.size:
            first, second = (b, a) if minus else (a, b)
            form(pSrc1=first, pSrc2=second, pDst=result.reshape(-1), len=result.size, scaleFactor=scale, rndMode=1)
        return deliver(result, out)

    _public(function, name, _plain_calls(name, found, ("pSrc1", "pSrc2", "pDst", "len")), minus, f"""{summary}

    a, b: arrays of one type after NumPy's promotion, broadcast together, or a number: {types_of(found)}.
    scale: integer results times 2^-scale, rounded to nearest with ties to even, saturated to their type; dtype: that of the
    result, where there is more than one. out: an array for it. Exports: {names_of(found + constants)}.

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
    found = [form for form in forms(stem) if len(form.sources) == 1]

    choose = chooser_of(name, found)

    def general(x, numbers, scale, out, dtype):
        form = choose(x.dtype, bool(scale), dtype)
        x = contiguous(x)
        result = destination(out, x.shape, form.target, x)
        if result.size:
            form(pSrc=x.reshape(-1), pDst=result.reshape(-1), len=x.size, scaleFactor=scale, **dict(zip(extra, numbers)))
        return deliver(result, out)

    if extra:
        def function(x, *numbers, out=None):
            if len(numbers) != len(extra):
                raise TypeError(f"{name} takes {', '.join(extra)} after the array")
            return general(native(x), numbers, 0, out, None)
    else:
        def function(x, scale=0, out=None, dtype=None):
            return general(native(x), (), scale, out, dtype)

    scaled = any(form.scaled for form in found)
    _public(function, name, _plain_calls(name, found, ("pSrc", "pDst", "len")), False, f"""{summary}

    x: array of any shape: {types_of(found)}.{' Then the numbers: ' + ', '.join(extra) + '.' if extra else ''}
    {'scale: integer results times 2^-scale, rounded to nearest, saturated to their type. ' if scaled else ''}out: an array for the result.
    Exports: {names_of(found)}.

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
    result = destination(out, shape + ((3,) if target.startswith("24") else ()), form.target, x)
    count = int(np.prod(shape))
    if count:
        form(pSrc=x.reshape(-1), pDst=result.reshape(-1), len=count, scaleFactor=scale, rndMode=round_mode(rounding))
    return deliver(result, out)


convert.__doc__ = convert.__doc__.replace("{pairs}", ", ".join(dict.fromkeys(pair for pair, _ in _CONVERSIONS)))


sub, mul, div = subtract, multiply, divide  # noqa: F821
__all__ += ["sub", "mul", "div", "clip", "convert"]
