"""Records of FIR and recursive filters by dtype, and the exports that run them."""

import numpy as np

from . import raw
from .forms import TAGS
from .rows import contiguous

# The tail of an export's name by that of the samples' type: filters with taps of that type, and those whose taps and memory are doubles.
SAME = {"32f": "_32f", "64f": "_64f", "32fc": "_32fc", "64fc": "_64fc"}
WIDE = {"32f": "64f_32f", "64f": "_64f", "32fc": "64fc_32fc", "64fc": "_64fc",
         "16s": "64f_16s", "32s": "64f_32s", "16sc": "64fc_16sc", "32sc": "64fc_32sc"}


def tail_of(dtype, *tables):
    for tails in tables:
        tail = tails.get(TAGS.get(np.dtype(dtype)))
        if tail is not None:
            return tail
    raise TypeError(f"filters take float32, float64, complex64, complex128 and, as streams, integers of 16 and 32 bits, not {np.dtype(dtype)}")


def wide_type(dtype):
    return np.float64 if np.dtype(dtype).kind in "fi" else np.complex128


def runner_of(name):
    """The export that runs a filter; those of integers take a scale."""
    call = getattr(raw, name, None)
    return call or getattr(raw, name + "_Sfs")


def _calls(tail):
    return runner_of("qvxsIIR" + tail), *(getattr(raw, f"qvxsIIR{what}{tail}") for what in ("GetDlyLine", "SetDlyLine"))


def direct_taps(b, a, dtype):
    """b and a as one vector, the shorter with zeros at its end."""
    count = max(len(a), len(b))
    taps = np.zeros(2 * count, dtype)
    taps[:len(b)] = b
    taps[count:count + len(a)] = a
    return taps


def filter_record(b, a, dtype, wide=True):
    """A record of the direct form and the exports that run it, read its state and write it.

    wide: taps and state are doubles; else they are of the samples' type: 3.4 ns a sample of float32 at order 4, 10 through doubles.
    """
    tail = tail_of(dtype, WIDE if wide else SAME)
    taps = direct_taps(b, a, wide_type(dtype) if wide else dtype)
    return getattr(raw, "qvxsIIRInitAlloc" + tail)(taps, len(taps) // 2 - 1, None), *_calls(tail)


def section_record(sos, dtype, wide=True):
    """The same for second-order sections."""
    tail = tail_of(dtype, WIDE if wide else SAME)
    stem, _, samples = tail.partition("_")
    taps = contiguous(sos, wide_type(dtype) if wide else dtype).reshape(-1)
    return getattr(raw, f"qvxsIIRInitAlloc{stem}_BiQuad_{samples}")(taps, len(taps) // 6, None), *_calls(tail)
