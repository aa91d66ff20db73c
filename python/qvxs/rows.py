"""Rows of arrays: the first and the last steps of functions along one axis."""

import os
import threading
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache

import numpy as np

_scratch = threading.local()


def scratch(size):
    """Working memory of at least `size` bytes for the calling thread, or None for 0; the largest so far is kept.

    A call without working memory allocates it: 4 MB in each transform of 100003 complex doubles.
    """
    if not size:
        return None
    block = getattr(_scratch, "block", None)
    if block is None or len(block) < size:
        block = _scratch.block = np.empty(size, np.uint8)
    return block[:size] if len(block) != size else block


def check_axis(axis, ndim):
    """The axis counted from 0; ValueError outside of the array, as NumPy's AxisError is one."""
    if not -ndim <= axis < ndim:
        raise np.AxisError(axis, ndim)
    return axis % ndim


def native(x):
    """As an array of the machine's byte order: one from a file may have the other, for which there is no export."""
    x = np.asarray(x)
    return x if x.dtype.isnative else x.astype(x.dtype.newbyteorder("="))


def contiguous(x, dtype=None):
    """The array in C order and aligned: one that came over a network may be neither. A number stays one, without an axis."""
    x = np.asarray(x, dtype, order="C")
    return x if x.flags.aligned else x.copy()


def last(x, axis):
    """The array with `axis` last, contiguous; no copy where it is so already."""
    if axis not in (-1, x.ndim - 1):
        x = np.moveaxis(x, axis, -1)
    return contiguous(x)


def back(x, axis):
    """The array with its last axis at `axis` again."""
    return x if axis in (-1, x.ndim - 1) else np.moveaxis(x, -1, axis)


@lru_cache(maxsize=4)
def _pool(workers):
    return ThreadPoolExecutor(workers, thread_name_prefix="qvxs")


os.register_at_fork(after_in_child=_pool.cache_clear)  # the child has none of the threads


def for_rows(work, rows, workers=None):
    """Calls work(first, past) for the rows in as many parts as there are workers."""
    workers = min(count_workers(workers), rows)
    if workers <= 1:
        work(0, rows)
        return
    cuts = [rows * part // workers for part in range(workers + 1)]
    for done in [_pool(workers).submit(work, first, past) for first, past in zip(cuts, cuts[1:])]:
        done.result()


def count_workers(workers):
    """The number of threads that `workers` stands for, by SciPy's rule: negative numbers count down from the number of processors."""
    if workers is None:
        return 1
    processors = os.cpu_count()
    if workers == 0:
        raise ValueError("workers must not be zero")
    if workers < -processors:
        raise ValueError(f"workers value out of range; got {workers}, must not be less than {-processors}")
    return workers if workers > 0 else workers + 1 + processors
