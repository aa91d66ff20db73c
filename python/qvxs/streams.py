"""Filters that keep their state between blocks: `process(block)` gives what one call on the whole signal would.

    >>> import numpy as np
    >>> from qvxs.streams import Fir
    >>> fir = Fir([0.5, 0.5])
    >>> fir.process([1., 3.]), fir.process([5.])
    (array([0.5, 2. ]), array([4.]))

Each object holds a record of the library and a lock: threads may share it, but the order of their blocks is theirs to keep. Blocks
are vectors; they are converted to the dtype that the object was made for.
"""

import math
import threading

import numpy as np

from . import raw
from .filter_records import SAME, WIDE, direct_taps, filter_record, runner_of, section_record, tail_of, wide_type
from .rows import contiguous, native


class Stream:
    """What all filters have: a lock, the dtype, blocks converted to vectors of it, and a scale of integers."""

    scale = 0

    def __init__(self, dtype):
        self.dtype = np.dtype(dtype)
        self._lock = threading.Lock()

    def _vector(self, block):
        block = native(block)
        if self.dtype.kind not in "fc" and block.dtype != self.dtype:
            raise TypeError(f"this stream is of {self.dtype}, the block is of {block.dtype}")
        if self.dtype.kind == "f" and np.iscomplexobj(block):
            raise TypeError(f"this stream is of {self.dtype}, the block is complex")
        block = contiguous(block, self.dtype)
        if block.ndim != 1:
            raise ValueError(f"a block is a vector, not an array of shape {block.shape}")
        return block

    def _scales(self):
        return () if self.dtype.kind in "fc" else (self.scale,)

    def __getstate__(self):
        raise TypeError(f"a {type(self).__name__} is not copied: take its state")


class _OneToOne(Stream):
    """As many outputs as samples, of a record with a delay line: _record, _run, _read, _write."""

    def process(self, block, out=None):
        """The outputs for the next samples, as many."""
        block = self._vector(block)
        result = np.empty_like(block) if out is None else out
        if block.size:
            with self._lock:
                self._run(block, result, block.size, self._record, *self._scales())
        return result

    def reset(self):
        """Begins anew, after zeros."""
        with self._lock:
            self._write(self._record, None)

    def _replace(self, stem, tail, taps, count):
        """New taps from the next sample on, as many as before; the state stays."""
        if taps.size != count:
            raise ValueError(f"the stream has {count} taps, not {taps.size}")
        with self._lock:
            getattr(raw, f"qvxs{stem}SetTaps{tail}")(taps, self._record)


def _fir_taps(taps, dtype):
    return contiguous(taps, dtype if dtype.kind in "fc" else wide_type(dtype))


class Fir(_OneToOne):
    """A FIR filter of a stream: taps as of lfilter(taps, 1, x). Exports: qvxsFIRInitAlloc_ and qvxsFIR_ of 32f, 64f, 32fc, 64fc; of
    integers those with taps in doubles: results times 2^-scale are rounded and saturated.

        >>> Fir([0.5, 0.5], np.int16).process(np.int16([100, 30000, 32767]))
        array([   50, 15050, 31384], dtype=int16)

    state: the last len(taps) samples, newest first, to be read and set.
    """

    def __init__(self, taps, dtype=None, scale=0):
        taps = np.atleast_1d(taps)
        super().__init__(np.result_type(taps, np.float32) if dtype is None else dtype)
        self.scale = scale
        tail = self._tail = tail_of(self.dtype, SAME, WIDE)
        self._taps = len(taps)
        self._record = getattr(raw, "qvxsFIRInitAlloc" + tail)(_fir_taps(taps, self.dtype), len(taps), None)
        self._run = runner_of("qvxsFIR" + tail)
        self._read, self._write = (getattr(raw, f"qvxsFIR{what}{tail}") for what in ("GetDlyLine", "SetDlyLine"))

    def set_taps(self, taps):
        """Other taps from the next sample on, as many; the state stays. Exports: qvxsFIRSetTaps_.

            >>> fir = Fir([1., 1.])
            >>> first = fir.process([1., 2.])
            >>> fir.set_taps([0.5, 0.25])
            >>> fir.process([0.])
            array([0.5])
        """
        self._replace("FIR", self._tail, _fir_taps(np.atleast_1d(taps), self.dtype), self._taps)

    @property
    def state(self):
        line = np.empty(self._taps, self.dtype)
        with self._lock:
            self._read(self._record, line)
        return line

    @state.setter
    def state(self, line):
        line = self._vector(line)
        if line.size != self._taps:
            raise ValueError(f"the state has {self._taps} samples, not {line.size}")
        with self._lock:
            self._write(self._record, line)


class _Recursive(_OneToOne):
    def _begin(self, memory, taps, calls):
        self._memory, self._taps = memory, taps
        self._record, self._run, self._read, self._write = calls

    @property
    def state(self):
        line = np.empty(self._memory, wide_type(self.dtype))
        with self._lock:
            self._read(self._record, line.reshape(-1))
        return line

    @state.setter
    def state(self, line):
        line = contiguous(line, wide_type(self.dtype))
        if line.shape != self._memory:
            raise ValueError(f"the state has the shape {self._memory}, not {line.shape}")
        with self._lock:
            self._write(self._record, line.reshape(-1))


class Iir(_Recursive):
    """A recursive filter of a stream: taps as of lfilter(b, a, x). Exports: qvxsIIRInitAlloc, qvxsIIR of 64f_32f, 64f, 64fc_32fc, 64fc,
    and of integers, whose results times 2^-scale are rounded and saturated.

    state: what lfilter calls zi, in doubles.

        >>> iir = Iir([1.], [1, -0.5])
        >>> iir.process([1., 0]), iir.process([0., 0])
        (array([1. , 0.5]), array([0.25 , 0.125]))
    """

    def __init__(self, b, a, dtype=None, scale=0):
        self.scale = scale
        b, a = np.atleast_1d(b), np.atleast_1d(a)
        super().__init__(np.result_type(b, a, np.float32) if dtype is None else dtype)
        order = max(len(a), len(b)) - 1
        if order < 1:
            raise ValueError("a filter of order 0 is a factor")
        self._begin((order,), 2 * order + 2, filter_record(b, a, self.dtype))

    def set_taps(self, b, a):
        """Another filter of the same order from the next sample on; the state stays. Exports: qvxsIIRSetTaps."""
        taps = direct_taps(np.atleast_1d(b), np.atleast_1d(a), wide_type(self.dtype))
        self._replace("IIR", tail_of(self.dtype, WIDE), taps, self._taps)


class Sos(_Recursive):
    """Second-order sections of a stream, as sosfilt; b0 of each must not be 0; types and scale as of `Iir`. Exports:
    qvxsIIRInitAlloc_BiQuad_, qvxsIIR_.

    state: what sosfilt calls zi, (sections, 2), in doubles.

        >>> Sos([[1., 0, 0, 1, -0.5, 0]]).process([1., 0, 0])
        array([1.  , 0.5 , 0.25])
    """

    def __init__(self, sos, dtype=None, scale=0):
        self.scale = scale
        sos = np.atleast_2d(sos)
        if sos.ndim != 2 or sos.shape[1] != 6:
            raise ValueError("sos array must be shape (n_sections, 6)")
        super().__init__(np.result_type(sos, np.float32) if dtype is None else dtype)
        self._begin((len(sos), 2), sos.size, section_record(sos, self.dtype))

    def set_taps(self, sos):
        """Other sections from the next sample on, as many; the state stays: a stream whose equaliser is turned. Exports: qvxsIIRSetTaps.

            >>> sos = Sos([[1., 0, 0, 1, -0.5, 0]])
            >>> first = sos.process([1., 0])
            >>> sos.set_taps([[1., 0, 0, 1, 0.5, 0]])
            >>> sos.process([0., 0])
            array([ 0.25 , -0.125])
        """
        self._replace("IIR", tail_of(self.dtype, WIDE), contiguous(sos, wide_type(self.dtype)).reshape(-1), self._taps)


class _Sparse(_OneToOne):
    """Filters of float32 with few taps, each at a delay of its own."""

    def __init__(self, stem, sides):
        super().__init__(np.float32)
        taps = [contiguous(np.atleast_1d(values), np.float32) for values, _ in sides]
        places = [contiguous(np.atleast_1d(positions), np.int32) for _, positions in sides]
        if any(values.shape != positions.shape or values.ndim != 1 or not values.size for values, positions in zip(taps, places)):
            raise ValueError("a sparse filter takes as many positions as taps, from 1 on")
        counts = [values.size for values in taps]
        size = np.empty(1, np.int32)
        getattr(raw, f"qvxs{stem}GetStateSize_32f")(*counts, *(max(int(positions[-1]), 1) for positions in places), size)
        self._make = getattr(raw, f"qvxs{stem}Init_32f")
        self._arguments = np.concatenate(taps), np.concatenate(places), *counts, None, np.empty(size[0], np.uint8)
        self._run = getattr(raw, f"qvxs{stem}_32f")
        self.reset()

    def reset(self):
        """Begins anew, after zeros."""
        with self._lock:
            self._record = self._make(*self._arguments)


class SparseFir(_Sparse):
    """y[n] = the sum of taps[i] * x[n - positions[i]], positions increasing from 0 on. Exports: qvxsFIRSparseInit_32f, qvxsFIRSparse_32f.

        >>> SparseFir([1, 0.5], [0, 3]).process(np.float32([1, 0, 0, 0, 0]))
        array([1. , 0. , 0. , 0.5, 0. ], dtype=float32)
    """

    def __init__(self, taps, positions):
        super().__init__("FIRSparse", [(taps, positions)])


class SparseIir(_Sparse):
    """The same with feedback: plus the sum of a[i] * y[n - a_positions[i]], these from 1 on. Exports: qvxsIIRSparseInit_32f, qvxsIIRSparse_32f.

        >>> SparseIir([1], [0], [0.5], [3]).process(np.float32([1, 0, 0, 0, 0]))
        array([1. , 0. , 0. , 0.5, 0. ], dtype=float32)
    """

    def __init__(self, b, b_positions, a, a_positions):
        super().__init__("IIRSparse", [(b, b_positions), (a, a_positions)])


class Resampler(Stream):
    """Resampling of a stream by up / down through taps, as upfirdn; what is due later comes with later blocks or with `flush`.

    taps: None for those of resample_poly, which are for up / down in lowest terms. Exports: qvxsFIRMRInitAlloc_ and qvxsFIR_ of 32f, 64f, 32fc, 64fc;
    of integers those with taps in doubles: results times 2^-scale are rounded and saturated.

        >>> double = Resampler(2, 1, [1., 1])
        >>> double.process([1., 2.]), double.process([3.])
        (array([1., 1., 2., 2.]), array([3., 3.]))
    """

    def __init__(self, up, down, taps=None, dtype=None, scale=0):
        self.scale = scale
        if taps is None:
            from .design import resampling_taps  # with SciPy, which streams do without else
            common = math.gcd(up, down)
            up, down = up // common, down // common
            rate = max(up, down)
            taps = resampling_taps(rate) * up if rate > 1 else np.ones(1)
        self.up, self.down = up, down
        taps = np.atleast_1d(taps)
        super().__init__(np.result_type(taps, np.float32) if dtype is None else dtype)
        self._tail = tail_of(self.dtype, SAME, WIDE)
        self.taps = _fir_taps(taps, self.dtype)
        self._run = runner_of("qvxsFIR" + self._tail)
        self.reset()

    def reset(self):
        """Begins anew, after zeros."""
        with self._lock:
            self._begin()

    def _begin(self):
        self._record = getattr(raw, "qvxsFIRMRInitAlloc" + self._tail)(self.taps, len(self.taps), self.up, 0, self.down, 0, None)
        self._waiting = np.empty(0, self.dtype)  # fewer than down samples
        self._taken = self._given = 0

    @property
    def state(self):
        """All that the next outputs depend on: the delay line, the samples that wait for their group, and the counts."""
        line = np.empty((len(self.taps) + self.up - 1) // self.up, self.dtype)
        with self._lock:
            getattr(raw, "qvxsFIRGetDlyLine" + self._tail)(self._record, line)
            return line, self._waiting.copy(), self._taken, self._given

    @state.setter
    def state(self, state):
        line, waiting, taken, given = state
        with self._lock:
            getattr(raw, "qvxsFIRSetDlyLine" + self._tail)(self._record, self._vector(line))
            self._waiting, self._taken, self._given = waiting.copy(), taken, given

    def _groups(self, samples):
        groups = samples.size // self.down
        result = np.empty(groups * self.up, self.dtype)
        if groups:
            self._run(contiguous(samples[:groups * self.down]), result, groups, self._record, *self._scales())
        return result

    def process(self, block):
        """The outputs of the groups of `down` samples that are complete."""
        block = self._vector(block)
        with self._lock:
            samples = np.concatenate((self._waiting, block)) if self._waiting.size else block
            self._taken += block.size
            result = self._groups(samples)
            self._waiting = samples[samples.size - samples.size % self.down:].copy()
            self._given += result.size
        return result

    def flush(self):
        """The rest of the outputs, as upfirdn has them, after zeros; the stream begins anew."""
        with self._lock:
            wanted = ((self._taken - 1) * self.up + len(self.taps) - 1) // self.down + 1 if self._taken else 0
            missing = max(wanted - self._given, 0)
            zeros = np.zeros(-(-missing // self.up) * self.down, self.dtype)
            zeros[:self._waiting.size] = self._waiting[:zeros.size]
            result = self._groups(zeros)[:missing]
            self._begin()
        return result


class Lms(Stream):
    """An adaptive FIR filter of float32 or int16 samples: its taps, float32, follow a reference by the least-mean-squares rule.

    taps: a number of zeros, or the first taps; step: the step size, which goes with 1 / the power of the samples. Exports:
    qvxsFIRLMSInitAlloc, qvxsFIRLMS of 32f and 32f_16s.

        >>> rng = np.random.default_rng(1)
        >>> x = rng.standard_normal(4000).astype(np.float32)
        >>> lms = Lms(2, 0.01)
        >>> _ = lms.process(x, 0.5 * x)
        >>> lms.taps.round(3) + 0
        array([0.5, 0. ], dtype=float32)
    """

    def __init__(self, taps, step, dtype=np.float32):
        super().__init__(dtype)
        tail = {np.dtype(np.float32): "_32f", np.dtype(np.int16): "32f_16s"}.get(self.dtype)
        if tail is None:
            raise TypeError(f"an adaptive filter takes float32 and int16, not {self.dtype}")
        first = np.zeros(taps, np.float32) if np.ndim(taps) == 0 else contiguous(taps, np.float32)
        self.step = step
        self._taps = len(first)
        self._record = getattr(raw, "qvxsFIRLMSInitAlloc" + tail)(first, len(first), None, 0)
        self._run, self._read = (getattr(raw, f"qvxsFIRLMS{what}{tail}") for what in ("", "GetTaps"))

    def process(self, block, reference):
        """The outputs for the next samples, each with the taps as the step before left them."""
        block, reference = self._vector(block), self._vector(reference)
        if block.shape != reference.shape:
            raise ValueError(f"the block has {block.size} samples, the reference {reference.size}")
        result = np.empty_like(block)
        if block.size:
            with self._lock:
                self._run(block, reference, result, block.size, self._record, self.step)
        return result

    @property
    def taps(self):
        taps = np.empty(self._taps, np.float32)
        with self._lock:
            self._read(self._record, taps)
        return taps
