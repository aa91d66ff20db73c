"""What qvxs.signal leaves to SciPy, and how."""

from functools import wraps

import numpy as np
import scipy.signal

TAGS = {"f": "32f", "d": "64f", "F": "32fc", "D": "64fc"}


class NotHere(Exception):
    """Raised for what SciPy has and this module has not."""


def or_scipy(function):
    """Leaves to SciPy what is not here; SciPy's function is looked up now, before ours may replace it."""
    other = getattr(scipy.signal, function.__name__)

    @wraps(function)
    def public(*args, **kwargs):
        try:
            return function(*args, **kwargs)
        except NotHere:
            return other(*args, **kwargs)

    return public


def common(*arrays):
    """The type that SciPy would compute in, if it is one of the four here."""
    dtype = np.result_type(*arrays)
    if dtype.char not in TAGS:
        raise NotHere
    return dtype
