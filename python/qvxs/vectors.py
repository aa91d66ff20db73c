"""Element-wise functions, statistics, thresholds, conversions, generators and sorting, by stem.

    >>> import numpy as np, qvxs
    >>> a = np.array([30000, -7, 5, 1], np.int16)
    >>> qvxs.add(a, np.array([30000, 2, 0, 2], np.int16), scale=1)
    array([30000,    -2,     2,     2], dtype=int16)

The export is chosen by dtype. Integer results are exact, times 2^-scale, rounded to nearest with ties to even, and then saturated
to the type of the result, without a word: 30000 + 30000 in int16 is 32767 where NumPy wraps to -5536. Sums and products over a
vector raise OverflowError in place of a saturated result. Broadcasting works as in NumPy; arrays that are not contiguous are
copied. A dtype without an export raises TypeError.

Complex integers are structured arrays with the fields re and im: `qvxs.complex_int16` and its like.
"""

from . import elementwise, generators, reductions, sorting
from .elementwise import *  # noqa: F403
from .generators import *  # noqa: F403
from .reductions import *  # noqa: F403
from .sorting import *  # noqa: F403

__all__ = [*elementwise.__all__, *reductions.__all__, *sorting.__all__, *generators.__all__]
