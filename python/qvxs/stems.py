"""More vectors by stem: complex parts, shifts, windows, wavelets, sampling, packing, and helpers of speech and radio.

    >>> import numpy as np, qvxs
    >>> qvxs.cart_to_polar(np.complex64([3 + 4j]))
    (array([5.], dtype=float32), array([0.9272952], dtype=float32))

As in `qvxs.vectors` the export is chosen by dtype, integer results are exact, times 2^-scale, rounded and saturated, and `out` is an
array for the result, or a tuple of arrays where there are several. What works on a sequence works along the last axis.
"""

import numpy as np

from . import raw, shapes
from .forms import forms, round_mode
from .rows import contiguous, native
from .shapes import *  # noqa: F403
from .stem import choose_for, deliver_all, names_of, numbers_of, publish, told, types_of

__all__ = [*shapes.__all__]


def _broadcast(arrays, types):
    shape = arrays[0].shape
    if all(x.shape == shape for x in arrays):
        return [contiguous(x, dtype) for x, dtype in zip(arrays, types)], shape
    shape = np.broadcast_shapes(*(x.shape for x in arrays))
    return [contiguous(np.broadcast_to(x.astype(dtype, copy=False), shape)) for x, dtype in zip(arrays, types)], shape


def _stem(name, stem, summary, example, numbers=(), tail="", keep=lambda form: True, sizes=None, swapped=False):
    """A function of arrays and of numbers after them. sizes: the lengths of the results along the last axis, of that of the arrays.
    swapped: the library takes the first array last."""
    found = [form for form in forms(stem, tail) if keep(form)]
    counts = sorted({len(form.sources) for form in found})
    chosen = {}  # by types: looking through all forms takes 20 us

    def function(*arguments, scale=0, out=None, dtype=None, **named):
        count = len(found[0].sources) if len(counts) == 1 else len(arguments)
        values = dict(zip((parameter for _, parameter, _ in numbers), numbers_of(name, numbers, arguments[count:], named)))
        if count not in counts or len(arguments) < count:
            raise TypeError(f"{name} takes {' or '.join(map(str, counts))} arrays, not {len(arguments)}")
        arrays = [native(x) for x in arguments[:count]][::-1 if swapped else 1]
        key = (*[x.dtype for x in arrays], all(x.ndim for x in arrays), bool(scale), dtype)
        form = chosen.get(key)
        if form is None:
            form = chosen[key] = choose_for(name, found, arrays, scale, dtype)
        arrays, shape = _broadcast(arrays, [form.types[source] for source in form.sources])
        n = shape[-1] if shape else 1
        lengths = [n] * len(form.results) if sizes is None else sizes(n)
        made = {p: np.empty(shape[:-1] + (length,) if shape else (length,), form.types[p]) for p, length in zip(form.results, lengths)}
        changed = [p for p in form.sources if p.startswith("pSrcDst")]
        given = {p: x.copy() if p in changed else x for p, x in zip(form.sources, arrays)}
        if arrays[0].size:
            lines = {p: x.reshape(arrays[0].size // n, -1) for p, x in (given | made).items()}
            settings = {"len": n, "scaleFactor": scale, "magnScaleFactor": scale, "rndMode": round_mode(values.get("rndMode", "even"))}
            values = {**lines, **settings, **{p: value for p, value in values.items() if p != "rndMode"}}
            raw.rows(form.call, *[values[p] for p in form.parameters])
        results = [given[p] for p in changed] + list(made.values())
        return deliver_all(out, results if shape else [x.reshape(()) for x in results])

    arrays = ", ".join({"pSrc": "x", "pSrcDst": "x", "pSrc1": "a", "pSrc2": "b"}.get(p, p[4:].lower()) for p in found[0].sources[::-1 if swapped else 1])
    publish(globals(), function, name, f"""{summary}

    {arrays}: arrays, broadcast together: {types_of(found)}.{told(numbers)}
    {'scale: integer results times 2^-scale, rounded, saturated. ' if any(form.scaled for form in found) else ''}out: an array for each result.
    Exports: {names_of(found)}.

        >>> import numpy as np, qvxs
        {example}
    """)


def _no_bytes(form):
    return not form.name.endswith("24u")


_ALPHA = (("alpha", "alpha", None),)
for _row in (
    ("add_product", "AddProduct", "total + a * b for the arrays a, b and total; scale divides the sum.",
     ">>> qvxs.add_product(np.float32([1, 2]), np.float32([3, 4]), np.float32([10, 20]))\n        array([13., 28.], dtype=float32)"),
    ("add_scaled", "AddProductC", "total + x * factor for the arrays x and total.",
     ">>> qvxs.add_scaled(np.float32([1, 2]), np.float32([10, 20]), 3)\n        array([13., 26.], dtype=float32)", (("factor", "val", None),)),
    ("multiply_low", "Mul_Low", "The low 32 bits of a * b / 2^scale, which wrap: the product shifted, not rounded.",
     ">>> qvxs.multiply_low(np.int32([2**30]), np.int32([5]))\n        array([1073741824], dtype=int32)"),
    ("divide_round", "Div_Round", "a / b of integers, rounded as `rounding` says: \"even\" (ties), \"zero\", \"away\" (ties away from zero).",
     ">>> qvxs.divide_round(np.int16([5, -5]), np.int16([2, 2]), rounding=\"away\")\n        array([ 3, -3], dtype=int16)", (("rounding", "rndMode", "even"),), "", lambda form: True, None, True),
    ("left_shift", "LShiftC", "Bits shifted left by `places`; what leaves the type is lost.",
     ">>> qvxs.left_shift(np.uint8([1, 200]), 1)\n        array([  2, 144], dtype=uint8)", (("places", "val", None),)),
    ("right_shift", "RShiftC", "Bits shifted right by `places`; signs stay.",
     ">>> qvxs.right_shift(np.int16([5, -5]), 1)\n        array([ 2, -3], dtype=int16)", (("places", "val", None),)),
    ("swap_bytes", "SwapBytes", "The bytes of each element in reverse order.",
     ">>> qvxs.swap_bytes(np.uint16([0x1234])) == 0x3412\n        array([ True])", (), "", _no_bytes),
    ("split_complex", "CplxToReal", "The real and the imaginary parts.",
     ">>> qvxs.split_complex(np.complex64([1 + 2j]))\n        (array([1.], dtype=float32), array([2.], dtype=float32))"),
    ("join_complex", "RealToCplx", "Complex numbers of their real and imaginary parts.",
     ">>> qvxs.join_complex(np.float32([1]), np.float32([2]))\n        array([1.+2.j], dtype=complex64)"),
    ("conjugate_flip", "ConjFlip", "The conjugates in reverse order, as a matched filter has its taps.",
     ">>> qvxs.conjugate_flip(np.complex64([1j, 2]))\n        array([2.-0.j, 0.-1.j], dtype=complex64)"),
    ("magnitude_squared", "MagSquared", "re * re + im * im in a wider type.",
     ">>> qvxs.magnitude_squared(np.complex64([3 + 4j]))\n        array([25.])"),
    ("cart_to_polar", "CartToPolar", "Magnitudes and phases of complex numbers, or of their real and imaginary parts.",
     ">>> qvxs.cart_to_polar(np.float64([0]), np.float64([2]))\n        (array([2.]), array([1.57079633]))", (("phase_scale", "phaseScaleFactor", 0),)),
    ("polar_to_cart", "PolarToCart", "Complex numbers of magnitudes and phases; integer phases have `phase_scale` places after the point.",
     ">>> qvxs.polar_to_cart(np.float64([2]), np.float64([np.pi])).round(12) + 0\n        array([-2.+0.j])",
     (("phase_scale", "phaseScaleFactor", 0),), "", lambda form: "pDst" in form.parameters and "phaseFixedPoint" not in form.parameters),
    ("polar_to_cart_fixed", "PolarToCart", "The same of integers whose phases have `places` bits after the point.",
     ">>> qvxs.polar_to_cart_fixed(np.int16([100]), np.int16([0]), 12)\n        array([(100, 0)], dtype=[('re', '<i2'), ('im', '<i2')])",
     (("places", "phaseFixedPoint", None),), "", lambda form: "phaseFixedPoint" in form.parameters),
    ("threshold", "Threshold", "What lies below the level (relation 0) or above it (relation 4) becomes the level; of complex numbers the magnitude.",
     ">>> qvxs.threshold(np.float32([-1, 2]), 0)\n        array([0., 2.], dtype=float32)", (("level", "level", None), ("relation", "relOp", 0))),
    ("win_bartlett", "WinBartlett", "The rows times a Bartlett window of their length.",
     ">>> qvxs.win_bartlett(np.ones(5))\n        array([0. , 0.5, 1. , 0.5, 0. ])"),
    ("win_hann", "WinHann", "The rows times a Hann window of their length.", ">>> qvxs.win_hann(np.ones(5)).round(12)\n        array([0. , 0.5, 1. , 0.5, 0. ])"),
    ("win_hamming", "WinHamming", "The rows times a Hamming window of their length.",
     ">>> qvxs.win_hamming(np.ones(3)).round(12)\n        array([0.08, 1.  , 0.08])"),
    ("win_blackman", "WinBlackman", "The rows times a Blackman window; alpha -0.16 is the usual one.",
     ">>> qvxs.win_blackman(np.ones(5), -0.16).round(12) + 0\n        array([0.  , 0.34, 1.  , 0.34, 0.  ])", (("alpha", "alpha", -0.16),)),
    ("win_blackman_std", "WinBlackmanStd", "The rows times the Blackman window of alpha -0.16.",
     ">>> qvxs.win_blackman_std(np.ones(5)).round(12) + 0\n        array([0.  , 0.34, 1.  , 0.34, 0.  ])"),
    ("win_blackman_opt", "WinBlackmanOpt", "The rows times the Blackman window whose side lobes fall fastest for their length.",
     ">>> qvxs.win_blackman_opt(np.ones(5))[2].round(12)\n        1.0"),
    ("win_kaiser", "WinKaiser", "The rows times a Kaiser window; alpha (n - 1) / 2 is SciPy's beta.",
     ">>> qvxs.win_kaiser(np.ones(3), 0.0)\n        array([1., 1., 1.])", _ALPHA),
    ("haar", "WTHaarFwd", "One level of the Haar transform of the rows: half the sums and half the differences of neighbours.",
     ">>> qvxs.haar(np.float32([1, 3, 5]))\n        (array([2., 5.], dtype=float32), array([1.], dtype=float32))", (), "", lambda form: True, lambda n: ((n + 1) // 2, n // 2)),
    ("preemphasize", "Preemphasize", "x[n] - value * x[n - 1] along the rows, the first element as it is.",
     ">>> qvxs.preemphasize(np.float32([1, 1, 1]), 0.5)\n        array([1. , 0.5, 0.5], dtype=float32)", (("value", "val", None),)),
    ("cauchy", "Cauchy", "ln(1 + (x / width)^2) / 2, the Cauchy function of robust estimation.",
     ">>> qvxs.cauchy(np.float32([0, 1]), 1)\n        array([0.       , 0.3465736], dtype=float32)", (("width", "C", None),), "_I"),
    ("cauchy_derivative", "CauchyD", "x / (width^2 + x^2), the derivative of `cauchy`.",
     ">>> qvxs.cauchy_derivative(np.float32([0, 1]), 1)\n        array([0. , 0.5], dtype=float32)", (("width", "C", None),), "_I"),
    ("cauchy_derivatives", "CauchyDD2", "Both derivatives of `cauchy`.",
     ">>> qvxs.cauchy_derivatives(np.float32([0, 1]), 1)\n        (array([0. , 0.5], dtype=float32), array([1., 0.], dtype=float32))", (("width", "C", None),), "_I"),
    ("normalize", "Normalize", "(x - mean) / deviation, both numbers.",
     ">>> qvxs.normalize(np.float32([1, 3]), 2, 0.5)\n        array([-2.,  2.], dtype=float32)", (("mean", "vSub", None), ("deviation", "vDiv", None))),
):
    _stem(*_row)
