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

import operator
from functools import lru_cache, wraps
from math import sqrt

import numpy as np
from numpy.fft import fftfreq, fftshift, ifftshift, rfftfreq

from . import raw
from .rows import back, check_axis, contiguous, count_workers, for_rows, last, scratch

__all__ = ["fft", "ifft", "rfft", "irfft", "hfft", "ihfft", "fft2", "ifft2", "fftn", "ifftn", "rfft2", "irfft2", "rfftn", "irfftn",
           "dct", "idct", "dctn", "idctn", "dst", "idst", "dstn", "idstn", "next_fast_len", "fftfreq", "rfftfreq", "fftshift", "ifftshift"]
__ua_domain__ = "numpy.scipy.fft"

_LONGEST = 2**26 - 1  # complex doubles of any length; the real ones go further, and so do powers of two
_FLAGS = {"backward": 2, "forward": 1, "ortho": 4, None: 2}
_REAL = {np.dtype(np.float32): "32f", np.dtype(np.float64): "64f"}
_COMPLEX = {np.dtype(np.complex64): "32fc", np.dtype(np.complex128): "64fc"}
_COMPLEX_OF = {np.dtype(np.float32): np.dtype(np.complex64), np.dtype(np.float64): np.dtype(np.complex128)}
_REAL_OF = {wide: narrow for narrow, wide in _COMPLEX_OF.items()}


_ndarray, _empty_like = np.ndarray, np.empty_like


class _NotHere(Exception):
    """Raised for transforms that SciPy has and this module has not."""


@lru_cache(maxsize=32)
def _record(kind, tag, n, *flag):
    """The record of a transform, and the bytes of working memory that a call needs."""
    record = getattr(raw, f"qvxs{kind}InitAlloc_{tag}")(n, *flag, 0)
    size = np.zeros(1, np.int32)
    getattr(raw, f"qvxs{kind}GetBufSize_{tag}")(record, size)
    return record, int(size[0])


def _flag(norm):
    try:
        return _FLAGS[norm]
    except KeyError:
        raise ValueError(f'Invalid norm value {norm!r}, should be "backward", "ortho" or "forward"') from None


def _floats(x):
    """The argument as an array of one of the four float types."""
    x = np.asarray(x)
    kind, size = x.dtype.kind, x.dtype.itemsize
    if kind == "f" and size <= 8:
        return x.astype(np.float32 if size < 8 else np.float64, copy=False)
    if kind == "c" and size <= 16:
        return x.astype(np.complex64 if size == 8 else np.complex128, copy=False)
    if kind in "fcO":
        raise _NotHere
    return x.astype(np.float64)


def _fit(x, n, axis):
    """The array cut or padded by zeros to n elements along the axis, which is moved to the end; contiguous."""
    have = x.shape[axis]
    if have == n:
        return last(x, axis)
    x = np.moveaxis(x, axis, -1)
    if have > n:
        return contiguous(x[..., :n])
    padded = np.zeros(x.shape[:-1] + (n,), x.dtype)
    padded[..., :have] = x
    return padded


def _length(n, default):
    n = default if n is None else operator.index(n)
    if n < 1:
        raise ValueError(f"invalid number of data points ({n}) specified")
    if n > _LONGEST:
        raise _NotHere
    return n


def _apply(call, record, size, source, target, workers):
    """The transform of every row of source into the row of target."""
    source = source.reshape(-1, source.shape[-1])
    target = target.reshape(-1, target.shape[-1])

    def some(first, past):
        raw.rows(call, source[first:past], target[first:past], record, scratch(size))

    for_rows(some, len(source), workers)


def _complex(x, n, axis, norm, forward, overwrite, workers):
    """Complex numbers to complex numbers; the real ones by way of half a spectrum."""
    if x.__class__ is _ndarray and n is None and x.ndim == 1 and x.dtype in _COMPLEX and 0 < x.size <= _LONGEST and (
            x.flags.carray and workers is None):
        # The usual call, without the checks below.
        tag = _COMPLEX[x.dtype]
        record, size = _record("DFT", "C_" + tag, check_axis(axis, 1) or x.size, _flag(norm))
        target = x if overwrite else _empty_like(x)
        _TO_COMPLEX[forward, tag](x, target, record, scratch(size))
        return target
    x = _floats(x)
    axis = check_axis(axis, x.ndim)
    n = _length(n, x.shape[axis])
    flag = _flag(norm)
    if x.dtype in _REAL:
        return _complex_of_real(x, n, axis, flag, forward, workers)
    tag = _COMPLEX[x.dtype]
    record, size = _record("DFT", "C_" + tag, n, flag)
    source = _fit(x, n, axis)
    in_place = overwrite or not np.may_share_memory(source, x)
    target = source if in_place and source.flags.writeable else np.empty_like(source)
    _apply(_TO_COMPLEX[forward, tag], record, size, source, target, workers)
    return back(target, axis)


def _complex_of_real(x, n, axis, flag, forward, workers):
    tag = _REAL[x.dtype]
    target = np.empty(x.shape[:axis] + x.shape[axis + 1:] + (n,), _COMPLEX_OF[x.dtype])
    source = _fit(x, n, axis)
    record, size = _record("DFT", "R_" + tag, n, flag if forward else _SWAPPED[flag])
    call, expand = _TO_CCS[tag], _EXPAND[tag]
    half = n // 2 + 1

    source = source.reshape(-1, n)
    spectra = target.reshape(-1, n)
    halves = spectra.view(source.dtype)[:, :2 * half]

    def some(first, past):
        raw.rows(call, source[first:past], halves[first:past], record, scratch(size))
        raw.rows(expand, spectra[first:past], n)

    for_rows(some, len(source), workers)
    if not forward:
        np.conjugate(target, out=target)
    return back(target, axis)


_SWAPPED = {1: 2, 2: 1, 4: 4}  # the flag that gives a forward transform the factor of the inverse
_TO_COMPLEX = {(forward, tag): getattr(raw, f"qvxsDFT{'Fwd' if forward else 'Inv'}_CToC_{tag}")
               for forward in (True, False) for tag in ("32fc", "64fc")}
_TO_CCS = {tag: getattr(raw, "qvxsDFTFwd_RToCCS_" + tag) for tag in ("32f", "64f")}
_FROM_CCS = {tag: getattr(raw, "qvxsDFTInv_CCSToR_" + tag) for tag in ("32f", "64f")}
_EXPAND = {tag: getattr(raw, f"qvxsConjCcs_{tag}c_I") for tag in ("32f", "64f")}


def _half_spectrum(x, n, axis, flag, workers):
    """Real numbers to the first half of their spectrum."""
    if x.__class__ is _ndarray and n is None and x.ndim == 1 and x.dtype in _REAL and 0 < x.size <= _LONGEST and (
            x.flags.carray and workers is None):
        tag = _REAL[x.dtype]
        record, size = _record("DFT", "R_" + tag, check_axis(axis, 1) or x.size, flag)
        target = np.empty(x.size // 2 + 1, _COMPLEX_OF[x.dtype])
        _TO_CCS[tag](x, target.view(x.dtype), record, scratch(size))
        return target
    if np.iscomplexobj(x):
        raise TypeError("x must be a real sequence")
    x = _floats(x)
    axis = check_axis(axis, x.ndim)
    n = _length(n, x.shape[axis])
    tag = _REAL[x.dtype]
    record, size = _record("DFT", "R_" + tag, n, flag)
    source = _fit(x, n, axis)
    target = np.empty(source.shape[:-1] + (n // 2 + 1,), _COMPLEX_OF[x.dtype])
    _apply(_TO_CCS[tag], record, size, source, target.view(x.dtype), workers)
    return back(target, axis)


def _from_half_spectrum(x, n, axis, flag, workers):
    """The first half of a spectrum to real numbers."""
    x = _floats(x)
    if x.dtype in _REAL:
        x = x.astype(_COMPLEX_OF[x.dtype])
    axis = check_axis(axis, x.ndim)
    n = _length(n, 2 * (x.shape[axis] - 1))
    real = _REAL_OF[x.dtype]
    tag = _REAL[real]
    record, size = _record("DFT", "R_" + tag, n, flag)
    source = _fit(x, n // 2 + 1, axis)
    target = np.empty(source.shape[:-1] + (n,), real)
    _apply(_FROM_CCS[tag], record, size, source.view(real), target, workers)
    return back(target, axis)


def _or_scipy(transform):
    """Leaves to SciPy what is not here; refuses plans, as SciPy does."""

    @wraps(transform)
    def public(*args, plan=None, **kwargs):
        if plan is not None:
            raise NotImplementedError("Passing a precomputed plan is not yet supported by scipy.fft functions")
        try:
            return transform(*args, **kwargs)
        except _NotHere:
            import scipy.fft
            theirs = getattr(scipy.fft, transform.__name__)
            try:
                return theirs(*args, **kwargs)
            except NotImplementedError:  # under this backend alone
                # Not for every call: in SciPy 1.10, four threads that make it 20000 times each corrupt the heap of most processes.
                with scipy.fft.set_backend("scipy"):
                    return theirs(*args, **kwargs)

    return public


@_or_scipy
def fft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The discrete Fourier transform along an axis: complex64 of float16, float32 and complex64, else complex128.

    x: array of any shape; n: points, the axis is cut or padded by zeros; norm: "backward" (None), "ortho" or "forward";
    overwrite_x: x may be used for the result; workers: threads for the rows. ValueError for n below 1 or another norm.
    Exports: qvxsDFTFwd_CToC_, qvxsDFTFwd_RToCCS_ and qvxsConjCcs_ of real numbers.

        >>> fft([1, 1j, -1, -1j])
        array([0.+0.j, 4.+0.j, 0.+0.j, 0.+0.j])
    """
    return _complex(x, n, axis, norm, True, overwrite_x, workers)


@_or_scipy
def ifft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The inverse of `fft`, with the factor 1/n by default. Exports: qvxsDFTInv_CToC_.

        >>> ifft([4, 0, 0, 0]).real
        array([1., 1., 1., 1.])
    """
    return _complex(x, n, axis, norm, False, overwrite_x, workers)


@_or_scipy
def rfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The first n // 2 + 1 points of the transform of n real numbers. TypeError for complex ones. Exports: qvxsDFTFwd_RToCCS_.

        >>> rfft([1, 2, 3])
        array([ 6. +0.j       , -1.5+0.8660254j])
    """
    return _half_spectrum(x, n, axis, _flag(norm), workers)


@_or_scipy
def irfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The n real numbers (2 * (points - 1) by default) of half a spectrum. Exports: qvxsDFTInv_CCSToR_.

        >>> irfft([10, -2 + 2j, -2])
        array([1., 2., 3., 4.])
    """
    return _from_half_spectrum(x, n, axis, _flag(norm), workers)


@_or_scipy
def hfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The real spectrum of a signal with Hermitian symmetry, given by its first half. Exports: qvxsDFTInv_CCSToR_.

        >>> hfft([1, 2, 1])
        array([ 6.,  0., -2.,  0.])
    """
    return _from_half_spectrum(np.conjugate(x), n, axis, _SWAPPED[_flag(norm)], workers)


@_or_scipy
def ihfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None):
    """The inverse of `hfft`: half of a signal whose spectrum is real. Exports: qvxsDFTFwd_RToCCS_.

        >>> ihfft([6., 0., -2., 0.]).real
        array([1., 2., 1.])
    """
    half = _half_spectrum(x, n, axis, _SWAPPED[_flag(norm)], workers)
    return np.conjugate(half, out=half)


# ---- several axes


def _integers(numbers, name):
    if isinstance(numbers, (int, float, np.number)):
        numbers = (numbers,)
    try:
        return [operator.index(number) for number in numbers]
    except TypeError:
        raise ValueError(f"{name} must be a scalar or iterable of integers") from None


def _shape_and_axes(x, s, axes):
    """The lengths and the axes, counted from 0, of a transform over several of them."""
    if axes is not None:
        axes = [a + x.ndim if a < 0 else a for a in _integers(axes, "axes")]
        if any(not 0 <= a < x.ndim for a in axes):
            raise ValueError("axes exceeds dimensionality of input")
        if len(set(axes)) != len(axes):
            raise ValueError("all axes must be unique")
    if s is None:
        axes = list(range(x.ndim)) if axes is None else axes
        s = [x.shape[a] for a in axes]
    else:
        s = _integers(s, "shape")
        if axes is None:
            if len(s) > x.ndim:
                raise ValueError("shape requires more axes than are present")
            axes = list(range(x.ndim - len(s), x.ndim))
        elif axes and len(axes) != len(s):
            raise ValueError("when given, axes and shape arguments have to be of the same length")
        s = [x.shape[a] if length == -1 else length for length, a in zip(s, axes)]
    if any(length < 1 for length in s):
        raise ValueError(f"invalid number of data points ({s}) specified")
    return s, axes


def _all_axes(x, s, axes, norm, forward, overwrite, workers):
    x = _floats(x)
    s, axes = _shape_and_axes(x, s, axes)
    if not axes:
        return x
    overwrite = overwrite and all(x.shape[axis] == n for n, axis in zip(s, axes))
    for n, axis in zip(reversed(s), reversed(axes)):
        x = _complex(x, n, axis, norm, forward, overwrite, workers)
        overwrite = True
    return x


@_or_scipy
def fftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The transform over several axes, all by default, of the lengths s; else as `fft`.

        >>> fftn(np.eye(2))
        array([[2.+0.j, 0.+0.j],
               [0.+0.j, 2.+0.j]])
    """
    return _all_axes(x, s, axes, norm, True, overwrite_x, workers)


@_or_scipy
def ifftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The inverse of `fftn`."""
    return _all_axes(x, s, axes, norm, False, overwrite_x, workers)


@_or_scipy
def rfftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The transform of real numbers over several axes; the last of them keeps n // 2 + 1 points.

        >>> rfftn(np.eye(2)).shape
        (2, 2)
    """
    if np.iscomplexobj(x):
        raise TypeError("x must be a real sequence")
    x = _floats(x)
    s, axes = _shape_and_axes(x, s, axes)
    if not axes:
        raise ValueError("at least 1 axis must be transformed")
    half = _half_spectrum(x, s[-1], axes[-1], _flag(norm), workers)
    return _all_axes(half, s[:-1], axes[:-1], norm, True, True, workers)


@_or_scipy
def irfftn(x, s=None, axes=None, norm=None, overwrite_x=False, workers=None):
    """The inverse of `rfftn`; the last axis has 2 * (points - 1) numbers by default."""
    x = _floats(x)
    if x.dtype in _REAL:
        x = x.astype(_COMPLEX_OF[x.dtype])
    given = s is not None
    s, axes = _shape_and_axes(x, s, axes)
    if not axes:
        raise ValueError("at least 1 axis must be transformed")
    n = s[-1] if given else 2 * (x.shape[axes[-1]] - 1)
    x = _all_axes(x, s[:-1], axes[:-1], norm, False, overwrite_x, workers)
    return _from_half_spectrum(x, n, axes[-1], _flag(norm), workers)


def _two_axes(transform):
    def public(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False, workers=None):
        return transform.__wrapped__(x, s, axes, norm, overwrite_x, workers)

    public.__name__ = public.__qualname__ = transform.__name__[:-1] + "2"
    public.__doc__ = f"`{transform.__name__}` over the last two axes."
    return _or_scipy(public)


fft2, ifft2, rfft2, irfft2 = (_two_axes(transform) for transform in (fftn, ifftn, rfftn, irfftn))


# ---- cosine transforms


def _cosine(x, type, n, axis, norm, orthogonalize, inverse, workers):
    if type not in (2, 3):
        raise _NotHere
    _flag(norm)
    x = _floats(x)
    if x.dtype not in _REAL:
        real, imag = (_cosine(part, type, n, axis, norm, orthogonalize, inverse, workers) for part in (x.real, x.imag))
        return real + 1j * imag
    axis = check_axis(axis, x.ndim)
    n = _length(n, x.shape[axis])
    if n > 2**24:
        raise _NotHere
    if orthogonalize is None:
        orthogonalize = norm == "ortho"
    forward = (type == 2) != inverse
    kind, tag = ("DCTFwd" if forward else "DCTInv"), _REAL[x.dtype]
    record, size = _record(kind, tag, n)
    source = _fit(x, n, axis)
    target = np.empty_like(source)
    if not forward and not orthogonalize:
        if np.may_share_memory(source, x):
            source = source.copy()
        source[..., 0] *= sqrt(0.5)
    _apply(getattr(raw, f"qvxs{kind}_{tag}"), record, size, source, target, workers)
    if norm != "ortho":
        # The library's transforms are orthonormal: SciPy's of norm "backward" are sqrt(2n) times as large.
        unscaled = (norm in (None, "backward")) != inverse
        target *= sqrt(2 * n) if unscaled else 1 / sqrt(2 * n)
    if forward and not orthogonalize:
        target[..., 0] *= sqrt(2)
    return back(target, axis)


@_or_scipy
def dct(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The discrete cosine transform of type 2 or 3 along an axis, float32 or float64; SciPy computes types 1 and 4.

    Arguments as `fft`; orthogonalize as in SciPy. Exports: qvxsDCTFwd_ (type 2), qvxsDCTInv_ (type 3).

        >>> dct([1., 2., 3.], norm="ortho").round(6)
        array([ 3.464102, -1.414214,  0.      ])
    """
    return _cosine(x, type, n, axis, norm, orthogonalize, False, workers)


@_or_scipy
def idct(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The inverse of `dct` of the same type.

        >>> idct(dct([1., 2., 3.])).round(6)
        array([1., 2., 3.])
    """
    return _cosine(x, type, n, axis, norm, orthogonalize, True, workers)


def _sine(x, type, n, axis, norm, orthogonalize, inverse, workers):
    """By the cosine transform of the same type: the spectrum in reverse order, every other sample negative."""
    if type not in (2, 3):
        raise _NotHere
    x = _floats(x)
    axis = check_axis(axis, x.ndim)
    n = _length(n, x.shape[axis])
    x = _fit(x, n, axis)
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


@_or_scipy
def dst(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
    """The discrete sine transform of type 2 or 3 along an axis, by `dct`; SciPy computes types 1 and 4.

        >>> dst([1., 2., 3.], norm="ortho").round(6)
        array([ 2.309401, -1.414214,  1.632993])
    """
    return _sine(x, type, n, axis, norm, orthogonalize, False, workers)


@_or_scipy
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
            raise _NotHere
        x = _floats(x)
        s, axes = _shape_and_axes(x, s, axes)
        for n, axis in zip(s, axes):
            x = one.__wrapped__(x, type, n, axis, norm, False, workers, orthogonalize)
        return x

    public.__name__ = public.__qualname__ = name
    public.__doc__ = f"`{one.__name__}` over several axes, all by default, of the lengths s.\n\n        >>> {name}(np.zeros((2, 3))).shape\n        (2, 3)\n    "
    return _or_scipy(public)


dctn, idctn, dstn, idstn = (_over_axes(one) for one in (dct, idct, dst, idst))


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
    except _NotHere:
        return NotImplemented
