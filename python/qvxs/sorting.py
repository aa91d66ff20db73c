"""Sorting of vectors and of their indices."""

import numpy as np

from . import raw
from .forms import TAGS, forms
from .rows import back, check_axis, last, native
from .stem import deliver

__all__ = ["sort", "argsort"]


def _in_place(stem):
    return {dtype: getattr(raw, f"qvxs{stem}_{tag}_I") for dtype, tag in TAGS.items() if hasattr(raw, f"qvxs{stem}_{tag}_I")}


_SORTS = {False: _in_place("SortRadixAscend"), True: _in_place("SortRadixDescend")}
_INDEX_SORTS = {False: {form.source: form for form in forms("SortRadixIndexAscend")},
                True: {form.source: form for form in forms("SortRadixIndexDescend")}}


def sort(x, axis=-1, descending=False, out=None):
    """A sorted copy, as np.sort: uint8, uint16, uint32, int16, int32, float32, float64.

    -0.0 comes before 0.0; a NaN comes last, as in NumPy, one of negative sign first. Exports: qvxsSortRadixAscend_, qvxsSortRadixDescend_.

    >>> import numpy as np, qvxs
    >>> qvxs.sort(np.float32([3, 1, 2]), descending=True)
    array([3., 2., 1.], dtype=float32)
    """
    x = native(x)
    call = _SORTS[bool(descending)].get(x.dtype)
    if call is None:
        raise TypeError(f"sort has no form for {x.dtype}")
    if x.ndim == 1 and x.size and axis in (0, -1, None) and out is None:
        rows = x.copy()
        call(rows, np.empty(x.size, x.dtype), x.size)
        return rows
    if axis is None:
        x, axis = x.reshape(-1), -1
    axis = check_axis(axis, x.ndim)
    rows = np.array(np.moveaxis(x, axis, -1), order="C", copy=True)
    if rows.size:
        raw.rows(call, rows.reshape(-1, rows.shape[-1]), np.empty(rows.shape[-1], x.dtype), rows.shape[-1])
    return deliver(back(rows, axis), out)


def argsort(x, axis=-1, descending=False, out=None):
    """The indices that sort, as np.argsort(kind="stable"): uint8, uint16, uint32, int16, int32, float32.

    Descending, equal elements still come in the order of their places. -0.0 comes before 0.0. Exports: qvxsSortRadixIndexAscend_, qvxsSortRadixIndexDescend_.

    >>> import numpy as np, qvxs
    >>> qvxs.argsort(np.int16([3, 1, 2]))
    array([1, 2, 0])
    """
    x = native(x)
    form = _INDEX_SORTS[bool(descending)].get(x.dtype)
    if form is None:
        raise TypeError(f"argsort has no form for {x.dtype}")
    if axis is None:
        x, axis = x.reshape(-1), -1
    axis = check_axis(axis, x.ndim)
    rows = last(x, axis)
    indices = np.empty(rows.shape, np.int32)
    if rows.size:
        n = rows.shape[-1]
        raw.rows(form.call, rows.reshape(-1, n), x.itemsize, indices.reshape(-1, n), np.empty(n, np.int32), n)
    return deliver(back(indices.astype(np.intp), axis), out)
