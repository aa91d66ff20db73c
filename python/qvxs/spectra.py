"""Spectra of real sequences in the library's own layouts, and transforms of integers, which `qvxs.fft` has not.

    >>> import numpy as np
    >>> from qvxs import spectra
    >>> spectra.forward(np.float32([1, 2, 3, 4]), "pack")
    array([10., -2.,  2., -2.], dtype=float32)

Layouts of n numbers: "perm" X[0] X[n/2] Re X[1] Im X[1] ..., "pack" X[0] Re X[1] Im X[1] ... X[n/2], and of n + 2 numbers "ccs", which is
a vector of complex numbers. All along the last axis. Transforms are unscaled, inverse ones divide by n; of int16 and complex_int16
results are times 2^-scale, rounded and saturated.
"""

import numpy as np

from . import raw
from .forms import TAGS, complex_int16
from .rows import contiguous, native, scratch
from .transforms import record_for

__all__ = ["forward", "inverse", "multiply", "expand", "fft_integer"]
_LAYOUTS = {"perm": "Perm", "pack": "Pack", "ccs": "CCS"}
_INVERSE_DIVIDES = 2
_COMPLEX_TAGS = {"32f": "32fc", "64f": "64fc", "16s": "16sc"}
_COMPLEX = {"32f": np.dtype(np.complex64), "64f": np.dtype(np.complex128), "16s": complex_int16}


def _layout(layout):
    try:
        return _LAYOUTS[layout]
    except KeyError:
        raise ValueError(f'a layout is "perm", "pack" or "ccs", not {layout!r}') from None


def _real(x, name):
    x = contiguous(native(x))
    tag = TAGS.get(x.dtype)
    if tag not in _COMPLEX:
        raise TypeError(f"{name} has no form for {x.dtype}")
    if not x.ndim or not x.shape[-1]:
        raise ValueError("the last axis is empty")
    return x, tag


def _numbers(layout, n):
    """The numbers in the spectrum of n samples."""
    return 2 * (n // 2 + 1) if layout == "ccs" else n


def _samples(spectrum, layout, n):
    """The samples that a spectrum is of; even in "ccs" unless n tells."""
    have = spectrum.shape[-1]
    n = have - 2 * (layout == "ccs") if n is None else n
    if n < 1 or have != _numbers(layout, n):
        raise ValueError(f"{have} numbers are no spectrum of {n} in the layout {layout}")
    return n


def _export(stem, tag, scale):
    """The export, and the scale if it takes one."""
    call = getattr(raw, f"qvxs{stem}_{tag}", None)
    if call is None:
        return getattr(raw, f"qvxs{stem}_{tag}_Sfs"), (scale,)
    if scale:
        raise TypeError("a scale is for integers")
    return call, ()


def forward(x, layout="ccs", scale=0):
    """The spectrum of real rows: float32, float64, int16. Exports: qvxsDFTFwd_RToPerm_, RToPack_, RToCCS_."""
    x, tag = _real(x, "forward")
    n = x.shape[-1]
    call, scales = _export("DFTFwd_RTo" + _layout(layout), tag, scale)
    result = np.empty(x.shape[:-1] + (_numbers(layout, n),), x.dtype)
    record, size = record_for("DFT", "R_" + tag, n, _INVERSE_DIVIDES)
    if x.size:
        raw.rows(call, x.reshape(-1, n), result.reshape(-1, result.shape[-1]), record, *scales, scratch(size))
    return result


def inverse(spectrum, layout="ccs", n=None, scale=0):
    """The real rows of a spectrum. n: how many numbers, which "ccs" alone does not tell; even by default.
    Exports: qvxsDFTInv_PermToR_, PackToR_, CCSToR_.

        >>> inverse(forward(np.float32([1, 2, 3])), n=3)
        array([1., 2., 3.], dtype=float32)
    """
    spectrum, tag = _real(spectrum, "inverse")
    n = _samples(spectrum, layout, n)
    call, scales = _export(f"DFTInv_{_layout(layout)}ToR", tag, scale)
    result = np.empty(spectrum.shape[:-1] + (n,), spectrum.dtype)
    record, size = record_for("DFT", "R_" + tag, n, _INVERSE_DIVIDES)
    if result.size:
        raw.rows(call, spectrum.reshape(-1, spectrum.shape[-1]), result.reshape(-1, n), record, *scales, scratch(size))
    return result


def multiply(a, b, layout="pack", conjugate=False, scale=0):
    """The product of two spectra in the layout "perm" or "pack"; conjugate: of that of a conjugated, in "pack".
    Exports: qvxsMulPack_, qvxsMulPerm_, qvxsMulPackConj_.

        >>> product = multiply(forward(np.ones(4), "pack"), forward(np.eye(4)[1], "pack"))
        >>> inverse(product, "pack")
        array([1., 1., 1., 1.])
    """
    a, b = np.broadcast_arrays(a, b)
    (a, tag), (b, other) = _real(a, "multiply"), _real(b, "multiply")
    if tag != other or layout not in ("perm", "pack") or conjugate and layout != "pack":
        raise TypeError(f"multiply has no form for {a.dtype} and {b.dtype} in the layout {layout}")
    n = a.shape[-1]
    if conjugate:
        result = b.copy()
        if result.size:
            raw.rows(_conjugate(tag), a.reshape(-1, n), result.reshape(-1, n), n)
        return result
    result = np.empty_like(a)
    call, scales = _export("Mul" + _LAYOUTS[layout], tag, scale)
    if result.size:
        raw.rows(call, *(x.reshape(-1, n) for x in (a, b, result)), n, *scales)
    return result


def _conjugate(tag):
    call = getattr(raw, f"qvxsMulPackConj_{tag}_I", None)
    if call is None:
        raise TypeError("multiply conjugates no integers")
    return call


def expand(spectrum, layout="ccs", n=None):
    """All n complex numbers of a spectrum. Exports: qvxsConjPerm_, qvxsConjPack_, qvxsConjCcs_.

        >>> expand(forward(np.float32([1, 2, 3, 4]), "perm"), "perm")
        array([10.+0.j, -2.+2.j, -2.+0.j, -2.-2.j], dtype=complex64)
    """
    spectrum, tag = _real(spectrum, "expand")
    n = _samples(spectrum, layout, n)
    result = np.empty(spectrum.shape[:-1] + (n,), _COMPLEX[tag])
    if result.size:
        raw.rows(getattr(raw, f"qvxsConj{_layout(layout).capitalize()}_{_COMPLEX_TAGS[tag]}"), spectrum.reshape(-1, spectrum.shape[-1]), result.reshape(-1, n), n)
    return result


def fft_integer(x, inverse=False, scale=0):
    """The transform of rows of complex_int16, the inverse one with its factor 1/n. Exports: qvxsDFTFwd_CToC_16sc_Sfs, qvxsDFTInv_CToC_16sc_Sfs.

        >>> x = np.zeros(4, complex_int16)
        >>> x["re"] = 1000
        >>> fft_integer(x, scale=2)["re"]
        array([1000,    0,    0,    0], dtype=int16)
    """
    x = contiguous(native(x))
    if x.dtype != complex_int16 or not x.ndim or not x.shape[-1]:
        raise TypeError(f"fft_integer has no form for {x.dtype} of shape {x.shape}")
    record, size = record_for("DFT", "C_16sc", x.shape[-1], _INVERSE_DIVIDES)
    result = np.empty_like(x)
    call = raw.qvxsDFTInv_CToC_16sc_Sfs if inverse else raw.qvxsDFTFwd_CToC_16sc_Sfs
    if x.size:
        raw.rows(call, x.reshape(-1, x.shape[-1]), result.reshape(-1, x.shape[-1]), record, scale, scratch(size))
    return result
