"""Vectors made from nothing: tones, triangles, ramps, chirps, noise."""

import numpy as np

from . import raw
from .forms import TAGS
from .stem import deliver, destination

__all__ = ["tone", "triangle", "ramp", "chirp", "uniform", "gauss"]


def _generator(stem, n, dtype, choices, out):
    """The vector that a generator fills, and the tail of its export's name: of `out`, or of n elements of the type."""
    dtype = np.dtype(dtype) if out is None else np.asarray(out).dtype
    tag = TAGS.get(dtype)
    if tag not in choices:
        raise TypeError(f"there is no {stem} of {dtype}")
    return destination(out, (n,), dtype), tag


def _wave(stem, n, dtype, phase, out, arguments):
    result, tag = _generator(stem.lower(), n, dtype, ("16s", "16sc", "32f", "32fc", "64f", "64fc"), out)
    start = np.array([phase], np.float64 if "64" in tag else np.float32)
    if n:
        getattr(raw, f"qvxs{stem}_Direct_" + tag)(result, n, *arguments(start))
    return deliver(result, out)


def tone(n, magnitude, frequency, phase=0.0, dtype=np.float32, out=None):
    """n samples of magnitude * cos(2 pi frequency n + phase), with the sine as imaginary part of complex types.

    frequency: in [0, 0.5), relative to the sampling rate, of complex types in (-0.5, 0.5); phase: in [0, 2 pi). Integers saturate.
    Exports: qvxsTone_Direct_16s, 16sc, 32f, 32fc, 64f, 64fc; qvxsConj_.

    >>> import numpy as np, qvxs
    >>> qvxs.tone(4, 1, 0.25, dtype=np.float64).round(6) + 0
    array([ 1.,  0., -1.,  0.])
    >>> qvxs.tone(2, 1, -0.25, dtype=np.complex128).round(6) + 0
    array([1.+0.j, 0.-1.j])
    """
    def wave(frequency, phase, out):
        return _wave("Tone", n, dtype, phase, out, lambda start: (magnitude, frequency, start, 2))

    dtype = np.dtype(dtype) if out is None else np.asarray(out).dtype
    tag = TAGS.get(dtype, "")
    if frequency >= 0 or not tag.endswith("c"):
        return wave(frequency, phase, out)
    # The conjugate of the tone with the opposite frequency and phase.
    if 0 <= phase < 2 * np.pi:
        phase = (np.float64 if "64" in tag else np.float32)(-phase % (2 * np.pi))
        phase = phase if phase < 2 * np.pi else 0  # to which a float may be rounded
    result = wave(-frequency, phase, None)
    if n:
        getattr(raw, f"qvxsConj_{tag}_I")(result, n)
    return deliver(result, out)


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
    return deliver(result, out)


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
    return deliver(result, out)


def _noise(stem, n, first, second, seed, dtype, out):
    result, tag = _generator(stem, n, dtype, ("8u", "16s", "32f", "64f"), out)
    if n and tag == "64f":
        getattr(raw, f"qvxs{stem}_Direct_64f")(result, n, first, second, np.array([seed], np.uint32))
    elif n:
        getattr(raw, f"qvxs{stem}_{tag}")(result, n, getattr(raw, f"qvxs{stem}InitAlloc_{tag}")(first, second, seed))
    return deliver(result, out)


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
