"""Cosine and sine transforms of types 2 and 3, for `qvxs.fft`."""

from math import sqrt

import numpy as np

from . import raw
from .rows import back, check_axis
from .transforms import REAL, NotHere, apply_rows, fit, flag_of, floats, length_of, or_scipy, record_for, shape_and_axes

__all__ = ["dct", "idct", "dctn", "idctn", "dst", "idst", "dstn", "idstn"]


def _cosine(x, type, n, axis, norm, orthogonalize, inverse, workers):
    if type not in (2, 3):
        raise NotHere
    flag_of(norm)
    x = floats(x)
    if x.dtype not in REAL:
        real, imag = (_cosine(part, type, n, axis, norm, orthogonalize, inverse, workers) for part in (x.real, x.imag))
        return real + 1j * imag
    axis = check_axis(axis, x.ndim)
    n = length_of(n, x.shape[axis])
    if n > 2**24:
        raise NotHere
    if orthogonalize is None:
        orthogonalize = norm == "ortho"
    forward = (type == 2) != inverse
    kind, tag = ("DCTFwd" if forward else "DCTInv"), REAL[x.dtype]
    record, size = record_for(kind, tag, n)
    source = fit(x, n, axis)
    target = np.empty_like(source)
    if not forward and not orthogonalize:
        if np.may_share_memory(source, x):
            source = source.copy()
        source[..., 0] *= sqrt(0.5)
    apply_rows(getattr(raw, f"qvxs{kind}_{tag}"), record, size, source, target, workers)
    if norm != "ortho":
        # The library's transforms are orthonormal: SciPy's of norm "backward" are sqrt(2n) times as large.
        unscaled = (norm in (None, "backward")) != inverse
        target *= sqrt(2 * n) if unscaled else 1 / sqrt(2 * n)
    if forward and not orthogonalize:
        target[..., 0] *= sqrt(2)
    return back(target, axis)


@or_scipy
def dct(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The discrete cosine transform of type 2 or 3 along an axis, float32 or float64; SciPy computes types 1 and 4.

    Arguments as `fft`; orthogonalize as in SciPy. Exports: qvxsDCTFwd_ (type 2), qvxsDCTInv_ (type 3).

        >>> dct([1., 2., 3.], norm="ortho").round(6)
        array([ 3.464102, -1.414214,  0.      ])
    """
    return _cosine(x, type, n, axis, norm, orthogonalize, False, workers)


@or_scipy
def idct(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The inverse of `dct` of the same type.

        >>> idct(dct([1., 2., 3.])).round(6)
        array([1., 2., 3.])
    """
    return _cosine(x, type, n, axis, norm, orthogonalize, True, workers)


def _sine(x, type, n, axis, norm, orthogonalize, inverse, workers):
    """By the cosine transform of the same type: the spectrum in reverse order, every other sample negative."""
    if type not in (2, 3):
        raise NotHere
    x = floats(x)
    axis = check_axis(axis, x.ndim)
    n = length_of(n, x.shape[axis])
    x = fit(x, n, axis)
    if orthogonalize is None:
        orthogonalize = norm == "ortho"
    signs = np.ones(n, x.dtype)
    signs[1::2] = -1
    # SciPy's factor of an orthogonal transform stands at point 0, where that of the cosines has it, not at the last one.
    if (type == 2) != inverse:
        result = _cosine(x * signs, type, None, -1, norm, False, inverse, workers)[..., ::-1]
        if orthogonalize:
            result[..., 0] *= sqrt(0.5)
        return back(result, axis)
    flipped = x[..., ::-1].copy()
    if orthogonalize:
        flipped[..., -1] *= sqrt(2)
    return back(_cosine(flipped, type, None, -1, norm, False, inverse, workers) * signs, axis)


@or_scipy
def dst(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The discrete sine transform of type 2 or 3 along an axis, by `dct`; SciPy computes types 1 and 4.

        >>> dst([1., 2., 3.], norm="ortho").round(6)
        array([ 2.309401, -1.414214,  1.632993])
    """
    return _sine(x, type, n, axis, norm, orthogonalize, False, workers)


@or_scipy
def idst(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The inverse of `dst` of the same type.

        >>> idst(dst([1., 2., 3.])).round(6)
        array([1., 2., 3.])
    """
    return _sine(x, type, n, axis, norm, orthogonalize, True, workers)


def _over_axes(one):
    """The transform over several axes, all by default, of the lengths s."""
    name = one.__name__ + "n"

    def public(x, type=2, s=None, axes=None, norm=None, overwrite_x=False, workers=None, *, orthogonalize=None):
        if type not in (2, 3):
            raise NotHere
        x = floats(x)
        s, axes = shape_and_axes(x, s, axes)
        for n, axis in zip(s, axes):
            x = one.__wrapped__(x, type, n, axis, norm, False, workers, orthogonalize)
        return x

    public.__name__ = public.__qualname__ = name
    public.__doc__ = f"`{one.__name__}` over several axes, all by default, of the lengths s.\n\n        >>> {name}(np.zeros((2, 3))).shape\n        (2, 3)\n    "
    return or_scipy(public)


dctn, idctn, dstn, idstn = (_over_axes(one) for one in (dct, idct, dst, idst))
