"""Fourier and cosine transforms with the names, arguments, dtypes and errors of scipy.fft.

    >>> import numpy as np
    >>> from qvxs import fft
    >>> fft.rfft(np.array([1, 2, 3, 4], np.float32))
    array([10.+0.j, -2.+2.j, -2.+0.j], dtype=complex64)

Single precision stays single, half precision becomes single, integers become double. The module is a backend of SciPy: under
`scipy.fft.set_backend(qvxs.fft)` programs that call scipy.fft use it. Whatever is not here (cosine and sine transforms of types I and
IV, long doubles) is left to SciPy; with scipy.fft.set_global_backend, register_backend("scipy") says so.

Exports: qvxsDFTFwd_ and qvxsDFTInv_ with CToC, RToCCS and CCSToR of 32f, 32fc, 64f and 64fc; qvxsConjCcs_; qvxsDCTFwd_,
qvxsDCTInv_. Their records are kept by type, length and factor, the last 32 of them, for all threads.
"""

from functools import lru_cache

import numpy as np
from numpy.fft import fftfreq, fftshift, ifftshift, rfftfreq

from . import cosine
from .cosine import *  # noqa: F403
from .transforms import (
    COMPLEX_OF, REAL, SWAPPED, NotHere, flag_of, floats, from_half_spectrum, half_spectrum, or_scipy, shape_and_axes, spectrum)

__all__ = ["fft", "ifft", "rfft", "irfft", "hfft", "ihfft", "fft2", "ifft2", "fftn", "ifftn", "rfft2", "irfft2", "rfftn", "irfftn",
           *cosine.__all__, "next_fast_len", "fftfreq", "rfftfreq", "fftshift", "ifftshift"]
__ua_domain__ = "numpy.scipy.fft"


@or_scipy
def fft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The discrete Fourier transform along an axis: complex64 of float16, float32 and complex64, else complex128.

    x: array of any shape; n: points, the axis is cut or padded by zeros; norm: "backward" (None), "ortho" or "forward";
    overwrite_x: x may be used for the result; workers: threads for the rows. ValueError for n below 1 or another norm.
    Exports: qvxsDFTFwd_CToC_, qvxsDFTFwd_RToCCS_ and qvxsConjCcs_ of real numbers.

        >>> fft([1, 1j, -1, -1j])
        array([0.+0.j, 4.+0.j, 0.+0.j, 0.+0.j])
    """
    return spectrum(x, n, axis, norm, True, overwrite_x, workers)


@or_scipy
def ifft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The inverse of `fft`, with the factor 1/n by default. Exports: qvxsDFTInv_CToC_.

        >>> ifft([4, 0, 0, 0]).real
        array([1., 1., 1., 1.])
    """
    return spectrum(x, n, axis, norm, False, overwrite_x, workers)


@or_scipy
def rfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The first n // 2 + 1 points of the transform of n real numbers. TypeError for complex ones. Exports: qvxsDFTFwd_RToCCS_.

        >>> rfft([1, 2, 3])
        array([ 6. +0.j       , -1.5+0.8660254j])
    """
    return half_spectrum(x, n, axis, flag_of(norm), workers)


@or_scipy
def irfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The n real numbers (2 * (points - 1) by default) of half a spectrum. Exports: qvxsDFTInv_CCSToR_.

        >>> irfft([10, -2 + 2j, -2])
        array([1., 2., 3., 4.])
    """
    return from_half_spectrum(x, n, axis, flag_of(norm), workers)


@or_scipy
def hfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The real spectrum of a signal with Hermitian symmetry, given by its first half. Exports: qvxsDFTInv_CCSToR_.

        >>> hfft([1, 2, 1])
        array([ 6.,  0., -2.,  0.])
    """
    return from_half_spectrum(np.conjugate(x), n, axis, SWAPPED[flag_of(norm)], workers)


@or_scipy
def ihfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The inverse of `hfft`: half of a signal whose spectrum is real. Exports: qvxsDFTFwd_RToCCS_.

        >>> ihfft([6., 0., -2., 0.]).real
        array([1., 2., 1.])
    """
    half = half_spectrum(x, n, axis, SWAPPED[flag_of(norm)], workers)
    return np.conjugate(half, out=half)


def _all_axes(x, s, axes, norm, forward, overwrite, workers):
    x = floats(x)
    s, axes = shape_and_axes(x, s, axes)
    if not axes:
        return x
    overwrite = overwrite and all(x.shape[axis] == n for n, axis in zip(s, axes))
    for n, axis in zip(reversed(s), reversed(axes)):
        x = spectrum(x, n, axis, norm, forward, overwrite, workers)
        overwrite = True
    return x


@or_scipy
def fftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The transform over several axes, all by default, of the lengths s; else as `fft`.

        >>> fftn(np.eye(2))
        array([[2.+0.j, 0.+0.j],
               [0.+0.j, 2.+0.j]])
    """
    return _all_axes(x, s, axes, norm, True, overwrite_x, workers)


@or_scipy
def ifftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The inverse of `fftn`."""
    return _all_axes(x, s, axes, norm, False, overwrite_x, workers)


@or_scipy
def rfftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The transform of real numbers over several axes; the last of them keeps n // 2 + 1 points.

        >>> rfftn(np.eye(2)).shape
        (2, 2)
    """
    if np.iscomplexobj(x):
        raise TypeError("x must be a real sequence")
    x = floats(x)
    s, axes = shape_and_axes(x, s, axes)
    if not axes:
        raise ValueError("at least 1 axis must be transformed")
    half = half_spectrum(x, s[-1], axes[-1], flag_of(norm), workers)
    return _all_axes(half, s[:-1], axes[:-1], norm, True, True, workers)


@or_scipy
def irfftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The inverse of `rfftn`; the last axis has 2 * (points - 1) numbers by default."""
    x = floats(x)
    if x.dtype in REAL:
        x = x.astype(COMPLEX_OF[x.dtype])
    given = s is not None
    s, axes = shape_and_axes(x, s, axes)
    if not axes:
        raise ValueError("at least 1 axis must be transformed")
    n = s[-1] if given else 2 * (x.shape[axes[-1]] - 1)
    x = _all_axes(x, s[:-1], axes[:-1], norm, False, overwrite_x, workers)
    return from_half_spectrum(x, n, axes[-1], flag_of(norm), workers)


def _two_axes(transform):
    def public(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False, workers=None):
        return transform.__wrapped__(x, s, axes, norm, overwrite_x, workers)

    public.__name__ = public.__qualname__ = transform.__name__[:-1] + "2"
    public.__doc__ = f"`{transform.__name__}` over the last two axes."
    return or_scipy(public)


fft2, ifft2, rfft2, irfft2 = (_two_axes(transform) for transform in (fftn, ifftn, rfftn, irfftn))


@lru_cache(maxsize=256)
def next_fast_len(target, real=False):
    """The least length from target on that transforms fast: SciPy's, 11-smooth for complex numbers and 5-smooth for real ones.

        >>> next_fast_len(1021), next_fast_len(1021, real=True)
        (1024, 1024)
    """
    import scipy.fft
    return scipy.fft.next_fast_len(target, real)


def __ua_function__(method, args, kwargs):
    """Called by SciPy for its multimethods, with this module as the backend."""
    transform = globals().get(method.__name__) if method.__name__ in __all__ else None
    if transform is None or kwargs.get("plan") is not None:
        return NotImplemented
    kwargs.pop("plan", None)
    if "workers" not in kwargs and len(args) < 6:
        from scipy.fft import get_workers
        kwargs["workers"] = get_workers()
    try:
        return transform.__wrapped__(*args, **kwargs)
    except NotHere:
        return NotImplemented
