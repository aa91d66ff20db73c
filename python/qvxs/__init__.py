"""Signal-processing vectors for NumPy, on the qvxs library.

    qvxs.add(a, b, scale=1) and its like   vectors by stem: qvxs.vectors, qvxs.stems
    qvxs.fft                               as scipy.fft, and a backend for it
    qvxs.spectra                           spectra in packed layouts, transforms of integers
    qvxs.signal                            as scipy.signal, for what it has; streams that keep their state
    qvxs.dask                              the same over dask arrays
    qvxs.raw                               every export of the library
"""

import importlib

from . import fft, raw, stems, vectors
from .forms import complex_int8, complex_int16, complex_int32, complex_int64
from .raw import Error, Warning
from .stems import *  # noqa: F403
from .vectors import *  # noqa: F403

_LATER = ("dask", "signal", "spectra", "streams")  # these import SciPy or dask, which takes longer than the rest


def __getattr__(name):
    if name in _LATER:
        return importlib.import_module("." + name, __name__)
    raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
