"""What the transforms of `qvxs.fft` have in common: records, the ways of their arguments, transforms along one axis."""

import operator
from functools import lru_cache, wraps

import numpy as np

from . import raw
from .rows import back, check_axis, contiguous, for_rows, last, scratch

_LONGEST = 2**26 - 1  # complex doubles of any length; the real ones go further, and so do powers of two
_FLAGS = {"backward": 2, "forward": 1, "ortho": 4, None: 2}
REAL = {np.dtype(np.float32): "32f", np.dtype(np.float64): "64f"}
_COMPLEX = {np.dtype(np.complex64): "32fc", np.dtype(np.complex128): "64fc"}
COMPLEX_OF = {np.dtype(np.float32): np.dtype(np.complex64), np.dtype(np.float64): np.dtype(np.complex128)}
REAL_OF = {wide: narrow for narrow, wide in COMPLEX_OF.items()}
SWAPPED = {1: 2, 2: 1, 4: 4}  # the flag that gives a forward transform the factor of the inverse
_TO_COMPLEX = {(forward, tag): getattr(raw, f"qvxsDFT{'Fwd' if forward else 'Inv'}_CToC_{tag}")
               for forward in (True, False) for tag in ("32fc", "64fc")}
_TO_CCS = {tag: getattr(raw, "qvxsDFTFwd_RToCCS_" + tag) for tag in ("32f", "64f")}
_FROM_CCS = {tag: getattr(raw, "qvxsDFTInv_CCSToR_" + tag) for tag in ("32f", "64f")}
_EXPAND = {tag: getattr(raw, f"qvxsConjCcs_{tag}c_I") for tag in ("32f", "64f")}
_ndarray, _empty_like = np.ndarray, np.empty_like


class NotHere(Exception):
    """Raised for transforms that SciPy has and this module has not."""


@lru_cache(maxsize=32)
def record_for(kind, tag, n, *flag):
    """The record of a transform, and the bytes of working memory that a call needs."""
    record = getattr(raw, f"qvxs{kind}InitAlloc_{tag}")(n, *flag, 0)
    size = np.zeros(1, np.int32)
    getattr(raw, f"qvxs{kind}GetBufSize_{tag}")(record, size)
    return record, int(size[0])


def flag_of(norm):
    try:
        return _FLAGS[norm]
    except KeyError:
        raise ValueError(f'Invalid norm value {norm!r}, should be "backward", "ortho" or "forward"') from None


def floats(x):
    """The argument as an array of one of the four float types."""
    x = np.asarray(x)
    kind, size = x.dtype.kind, x.dtype.itemsize
    if kind == "f" and size <= 8:
        return x.astype(np.float32 if size < 8 else np.float64, copy=False)
    if kind == "c" and size <= 16:
        return x.astype(np.complex64 if size == 8 else np.complex128, copy=False)
    if kind in "fcO":
        raise NotHere
    return x.astype(np.float64)


def fit(x, n, axis):
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


def length_of(n, default):
    n = default if n is None else operator.index(n)
    if n < 1:
        raise ValueError(f"invalid number of data points ({n}) specified")
    if n > _LONGEST:
        raise NotHere
    return n


def apply_rows(call, record, size, source, target, workers):
    """The transform of every row of source into the row of target."""
    source = source.reshape(-1, source.shape[-1])
    target = target.reshape(-1, target.shape[-1])

    def some(first, past):
        raw.rows(call, source[first:past], target[first:past], record, scratch(size))

    for_rows(some, len(source), workers)


def spectrum(x, n, axis, norm, forward, overwrite, workers):
    """Complex numbers to complex numbers; the real ones by way of half a spectrum."""
    if x.__class__ is _ndarray and n is None and x.ndim == 1 and x.dtype in _COMPLEX and 0 < x.size <= _LONGEST and (
            x.flags.carray and workers is None):
        # The usual call, without the checks below.
        tag = _COMPLEX[x.dtype]
        record, size = record_for("DFT", "C_" + tag, check_axis(axis, 1) or x.size, flag_of(norm))
        target = x if overwrite else _empty_like(x)
        _TO_COMPLEX[forward, tag](x, target, record, scratch(size))
        return target
    x = floats(x)
    axis = check_axis(axis, x.ndim)
    n = length_of(n, x.shape[axis])
    flag = flag_of(norm)
    if x.dtype in REAL:
        return _complex_of_real(x, n, axis, flag, forward, workers)
    tag = _COMPLEX[x.dtype]
    record, size = record_for("DFT", "C_" + tag, n, flag)
    source = fit(x, n, axis)
    in_place = overwrite or not np.may_share_memory(source, x)
    target = source if in_place and source.flags.writeable else np.empty_like(source)
    apply_rows(_TO_COMPLEX[forward, tag], record, size, source, target, workers)
    return back(target, axis)


def _complex_of_real(x, n, axis, flag, forward, workers):
    tag = REAL[x.dtype]
    target = np.empty(x.shape[:axis] + x.shape[axis + 1:] + (n,), COMPLEX_OF[x.dtype])
    source = fit(x, n, axis)
    record, size = record_for("DFT", "R_" + tag, n, flag if forward else SWAPPED[flag])
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


def half_spectrum(x, n, axis, flag, workers):
    """Real numbers to the first half of their spectrum."""
    if x.__class__ is _ndarray and n is None and x.ndim == 1 and x.dtype in REAL and 0 < x.size <= _LONGEST and (
            x.flags.carray and workers is None):
        tag = REAL[x.dtype]
        record, size = record_for("DFT", "R_" + tag, check_axis(axis, 1) or x.size, flag)
        target = np.empty(x.size // 2 + 1, COMPLEX_OF[x.dtype])
        _TO_CCS[tag](x, target.view(x.dtype), record, scratch(size))
        return target
    if np.iscomplexobj(x):
        raise TypeError("x must be a real sequence")
    x = floats(x)
    axis = check_axis(axis, x.ndim)
    n = length_of(n, x.shape[axis])
    tag = REAL[x.dtype]
    record, size = record_for("DFT", "R_" + tag, n, flag)
    source = fit(x, n, axis)
    target = np.empty(source.shape[:-1] + (n // 2 + 1,), COMPLEX_OF[x.dtype])
    apply_rows(_TO_CCS[tag], record, size, source, target.view(x.dtype), workers)
    return back(target, axis)


def from_half_spectrum(x, n, axis, flag, workers):
    """The first half of a spectrum to real numbers."""
    x = floats(x)
    if x.dtype in REAL:
        x = x.astype(COMPLEX_OF[x.dtype])
    axis = check_axis(axis, x.ndim)
    n = length_of(n, 2 * (x.shape[axis] - 1))
    real = REAL_OF[x.dtype]
    tag = REAL[real]
    record, size = record_for("DFT", "R_" + tag, n, flag)
    source = fit(x, n // 2 + 1, axis)
    target = np.empty(source.shape[:-1] + (n,), real)
    apply_rows(_FROM_CCS[tag], record, size, source.view(real), target, workers)
    return back(target, axis)


def _integers(numbers, name):
    if isinstance(numbers, (int, float, np.number)):
        numbers = (numbers,)
    try:
        return [operator.index(number) for number in numbers]
    except TypeError:
        raise ValueError(f"{name} must be a scalar or iterable of integers") from None


def shape_and_axes(x, s, axes):
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


def or_scipy(transform):
    """Leaves to SciPy what is not here; refuses plans, as SciPy does."""

    @wraps(transform)
    def public(*args, plan=None, **kwargs):
        if plan is not None:
            raise NotImplementedError("Passing a precomputed plan is not yet supported by scipy.fft functions")
        try:
            return transform(*args, **kwargs)
        except NotHere:
            import scipy.fft
            theirs = getattr(scipy.fft, transform.__name__)
            try:
                return theirs(*args, **kwargs)
            except NotImplementedError:  # under this backend alone
                # Not for every call: in SciPy 1.10, four threads that make it 20000 times each corrupt the heap of most processes.
                with scipy.fft.set_backend("scipy"):
                    return theirs(*args, **kwargs)

    return public
