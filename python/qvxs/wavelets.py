"""Filter banks of streams, one stage each way."""

import numpy as np

from . import raw
from .forms import TAGS
from .rows import contiguous
from .streams import Stream


class _Bank(Stream):
    def __init__(self, stem, pair, dtype, low, high, offsets):
        tail = TAGS.get(np.dtype(dtype))
        if tail not in ("32f", "8u", "8s", "16u", "16s"):
            raise TypeError(f"a filter bank takes no {np.dtype(dtype)}")
        tail = tail if tail == "32f" else pair.format(tail)
        super().__init__(dtype)
        self._taps = [contiguous(np.atleast_1d(taps), np.float32) for taps in (low, high)]
        self._offsets = offsets
        self._make, self._run = getattr(raw, f"qvxs{stem}InitAlloc_{tail}"), getattr(raw, f"qvxs{stem}_{tail}")
        self._read, self._write = (getattr(raw, f"qvxs{stem}{what}DlyLine_{tail}") for what in ("Get", "Set"))
        self.reset()

    def reset(self):
        """Begins anew, after zeros."""
        with self._lock:
            self._record = self._make(*(part for taps, offset in zip(self._taps, self._offsets) for part in (taps, taps.size, offset)))

    @property
    def state(self):
        lines = [np.zeros(max(self._kept(taps.size + offset - 1), 0), np.float32) for taps, offset in zip(self._taps, self._offsets)]
        with self._lock:
            self._read(self._record, *lines)
        return tuple(lines)

    @state.setter
    def state(self, lines):
        with self._lock:
            self._write(self._record, *(contiguous(line, np.float32) for line in lines))


class WaveletSplit(_Bank):
    """One stage of a wavelet filter bank: pairs of samples become one value in the low band and one in the high band.

    low, high: the taps; offsets: of both bands; dtype of the samples: float32, uint8, int8, uint16, int16. Exports: qvxsWTFwdInitAlloc_, qvxsWTFwd_.

        >>> WaveletSplit([0.5, 0.5], [0.5, -0.5]).process(np.float32([0, 2, 4, 8]))
        (array([0., 3.], dtype=float32), array([0., 1.], dtype=float32))
    """

    def __init__(self, low, high, offsets=(0, 0), dtype=np.float32):
        super().__init__("WTFwd", "{}32f", dtype, low, high, offsets)

    def _kept(self, count):
        return count

    def process(self, block):
        """The two bands of the next samples, of which there must be an even number."""
        block = self._vector(block)
        if block.size % 2:
            raise ValueError("a filter bank takes pairs of samples")
        bands = np.empty(block.size // 2, np.float32), np.empty(block.size // 2, np.float32)
        if block.size:
            with self._lock:
                self._run(block, *bands, block.size // 2, self._record)
        return bands


class WaveletJoin(_Bank):
    """The inverse stage: with the taps reversed and the same offsets the signal comes back, later. Exports: qvxsWTInvInitAlloc_, qvxsWTInv_.

        >>> WaveletJoin([1, 1], [-1, 1]).process(np.float32([1, 3]), np.float32([1, 1]))
        array([0., 2., 2., 4.], dtype=float32)
    """

    def __init__(self, low, high, offsets=(0, 0), dtype=np.float32):
        super().__init__("WTInv", "32f{}", dtype, low, high, offsets)

    def _kept(self, count):
        return count // 2

    def process(self, low, high):
        """Two samples for each pair of values."""
        low, high = (contiguous(band, np.float32) for band in (low, high))
        if low.ndim != 1 or low.shape != high.shape:
            raise ValueError(f"the bands have the shapes {low.shape} and {high.shape}")
        result = np.empty(2 * low.size, self.dtype)
        if low.size:
            with self._lock:
                self._run(low, high, low.size, result, self._record)
        return result
