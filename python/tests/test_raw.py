"""qvxs.raw: what is converted, what is refused, and that nothing reaches beyond an array."""

import gc
import math
import os
import pathlib
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import warnings

import numpy as np

import qvxs
from qvxs import raw
from support import EXPORTS, STATUS_EXPORTS, TAKES_NOTHING, Calls, Memory

HERE = pathlib.Path(__file__).parent


class EveryExport(unittest.TestCase):
    def test_takes_a_call_with_vectors_of_just_the_extents(self):
        calls = Calls(np.random.default_rng(1), Memory())
        self.assertEqual(len(EXPORTS), 2083)
        for e in STATUS_EXPORTS:
            with self.subTest(e.name):
                if e.name in TAKES_NOTHING:
                    self.assertRaisesRegex(AssertionError, "ContextMismatch", calls.valid, e, 20)
                else:
                    calls.valid(e)

    def test_refuses_a_vector_one_element_shorter(self):
        calls = Calls(np.random.default_rng(2), Memory())
        shortened = 0
        for e in STATUS_EXPORTS:
            if e.name in TAKES_NOTHING:
                continue
            arguments, _ = calls.valid(e)
            for i, p in enumerate(e.parameters):
                if isinstance(arguments[i], np.ndarray) and len(arguments[i]) > 1:  # drawn with 1, grown to what is needed
                    shorter = list(arguments)
                    shorter[i] = arguments[i][:-1]
                    for other, q in zip(arguments, e.parameters):
                        if q.name == "pPhase":  # which calls move on
                            other[:] = 1
                    shortened += 1
                    with self.subTest(e.name, parameter=p.name):
                        self.assertRaisesRegex(ValueError, f"{p.name} has", e.function, *shorter)
        self.assertGreater(shortened, 2500)

    def test_survives_hostile_arguments(self):
        seed = str(time.time_ns() % 100000)
        with tempfile.TemporaryFile() as log:
            done = subprocess.run([sys.executable, HERE / "hostile.py", seed, "2"], stdout=subprocess.PIPE, stderr=log, check=False)
            log.seek(0)
            self.assertEqual(done.returncode, 0, f"seed {seed}: {log.read(4000).decode(errors='replace')}")
        made, refused = map(int, done.stdout.split())
        self.assertGreater(made, 400)
        self.assertGreater(refused, 2000)


class Conversion(unittest.TestCase):
    def test_complex_integers_are_pairs_or_records(self):
        pairs = np.array([[1, 2], [3, -4]], np.int16)
        records = np.array([(5, 6), (7, 8)], [("re", "i2"), ("im", "i2")])
        sums = np.zeros((2, 2), np.int16)
        raw.qvxsAdd_16sc_Sfs(pairs, records, sums, 2, 0)
        np.testing.assert_array_equal(sums, [[6, 8], [10, 4]])
        for wrong in (np.array([(5, 6)], [("im", "i2"), ("re", "i2")]), np.array([(5, 6)], [("re", "i2"), ("im", "u2")]),
                      np.zeros((2, 3), np.int16), np.zeros(2, np.int32)):
            self.assertRaises(TypeError, raw.qvxsAdd_16sc_Sfs, wrong, pairs, sums, 1, 0)

    def test_numbers_are_held_against_their_types(self):
        vector = np.zeros(4, np.int16)
        for value, kind in ((32768, OverflowError), (-32769, OverflowError), (2**80, OverflowError), (1.0, TypeError), ("1", TypeError),
                            (None, TypeError)):
            self.assertRaises(kind, raw.qvxsSet_16s, value, vector, 4)
        raw.qvxsSet_16s(np.int64(-32768), vector, 4)
        self.assertEqual(vector.tolist(), [-32768] * 4)
        floats = np.zeros(2, np.float32)
        self.assertRaises(OverflowError, raw.qvxsSet_32f, 1e39, floats, 2)
        raw.qvxsSet_32f(math.inf, floats, 2)
        self.assertTrue(np.isinf(floats).all())
        whole = np.zeros((1, 2), np.int32)
        for value in (3 - 4j, (3, -4), np.complex64(3 - 4j)):
            whole[:] = 0
            raw.qvxsSet_32sc(value, whole, 1)
            self.assertEqual(whole.tolist(), [[3, -4]])
        self.assertRaises(ValueError, raw.qvxsSet_32sc, 0.5j, whole, 1)
        self.assertRaises(OverflowError, raw.qvxsSet_32sc, complex(math.nan, 0), whole, 1)

    def test_every_kind_of_number_reaches_its_place(self):
        doubles = np.zeros(3, np.complex128)
        raw.qvxsSet_64fc(1.5 - 2.5j, doubles, 3)
        self.assertEqual(doubles.tolist(), [1.5 - 2.5j] * 3)
        long = np.zeros(2, np.int64)
        raw.qvxsSet_64s(-2**63, long, 2)
        self.assertEqual(long.tolist(), [-2**63] * 2)
        # More arguments than fit registers, of both kinds.
        tone, phase = np.zeros(64, np.float32), np.array([0.25], np.float32)
        raw.qvxsTone_Direct_32f(tone, 64, 2.0, 1 / 16, phase, 0)
        np.testing.assert_allclose(tone, 2 * np.cos(2 * np.pi * np.arange(64) / 16 + 0.25), atol=1e-5)

    def test_memory_of_the_library_frees_itself(self):
        for name, dtype in (("8u", "u1"), ("64s", "i8"), ("32fc", "c8")):
            vector = getattr(raw, "qvxsMalloc_" + name)(5)
            self.assertEqual((vector.dtype, vector.shape, vector.ctypes.data % 64), (np.dtype(dtype), (5,), 0))
        self.assertEqual(raw.qvxsMalloc_16sc(3).shape, (3, 2))
        self.assertRaises(ValueError, raw.qvxsMalloc_8u, 0)

    def test_views_that_are_no_vectors_are_refused(self):
        a, out = np.arange(8, dtype=np.float32), np.zeros(8, np.float32)
        fixed = np.zeros(8, np.float32)
        fixed.flags.writeable = False
        bytes_of = np.zeros(33, np.uint8)
        for bad in (a[::2], a[::-1], bytes_of[1:].view(np.float32)):
            self.assertRaisesRegex(ValueError, "contiguous", raw.qvxsCopy_32f, bad, out, 4)
        self.assertRaisesRegex(ValueError, "read-only", raw.qvxsCopy_32f, a, fixed, 8)
        self.assertRaises(TypeError, raw.qvxsCopy_32f, a.astype(">f4"), out, 8)
        self.assertRaises(TypeError, raw.qvxsCopy_32f, memoryview(a), out, 8)
        raw.qvxsCopy_32f(fixed.reshape(2, 4), out, 8)

    def test_numbers_that_run_code_change_nothing_already_checked(self):
        vector = np.zeros(1 << 16, np.float32)

        class Trap:
            def __index__(self):
                vector.resize(1, refcheck=False)
                return 1 << 16

        self.assertRaisesRegex(ValueError, "1 elements", raw.qvxsZero_32f, vector, Trap())


class Statuses(unittest.TestCase):
    def test_errors_tell_their_status(self):
        with self.assertRaises(qvxs.Error) as caught:
            raw.qvxsDivC_32f_I(0.0, np.ones(2, np.float32), 2)
        self.assertEqual((caught.exception.status, caught.exception.name), (-10, "qvxStatDivByZero"))
        self.assertIn("divisor", caught.exception.text)
        for bad, status in ((0, -6), (-2**31, -6)):
            with self.assertRaises(qvxs.Error) as caught:
                raw.qvxsZero_32f(np.ones(0, np.float32), bad)
            self.assertEqual(caught.exception.status, status)

    def test_warnings_come_after_the_results(self):
        vector = np.array([4.0, -1.0], np.float32)
        with self.assertWarnsRegex(qvxs.Warning, "qvxWarnSqrtNegArg"):
            raw.qvxsSqrt_32f_I(vector, 2)
        self.assertEqual(vector[0], 2)
        with warnings.catch_warnings():
            warnings.simplefilter("error")
            self.assertRaises(qvxs.Warning, raw.qvxsSqrt_32f_I, np.array([-1.0], np.float32), 1)

    def test_what_extents_cannot_tell_is_refused(self):
        f = lambda n: np.zeros(n, np.float32)
        self.assertRaises(NotImplementedError, raw.qvxsConvBiased_32f, f(4), 4, f(45), 45, f(41), 41, 4)
        raw.qvxsConvBiased_32f(f(4), 4, f(45), 45, f(41), 41, 5)
        keys, places = np.arange(9, dtype=np.int32), np.zeros((2, 9), np.int32)
        self.assertRaises(NotImplementedError, raw.qvxsSortRadixIndexAscend_32s, keys, -4, places[0], places[1], 9)
        self.assertRaisesRegex(ValueError, "overlap", raw.qvxsSortRadixIndexAscend_32s, keys, 4, keys, places[1], 9)


class Records(unittest.TestCase):
    def test_filters_and_transforms_compute(self):
        rng = np.random.default_rng(5)
        taps, x, y = rng.random(9, np.float32), rng.random(50, np.float32), np.zeros(50, np.float32)
        state = raw.qvxsFIRInitAlloc_32f(taps, 9, None)
        raw.qvxsFIR_32f(x, y, 25, state)
        raw.qvxsFIR_32f(x[25:], y[25:], 25, state)
        np.testing.assert_allclose(y, np.convolve(x, taps)[:50], rtol=1e-5)
        spectrum = np.zeros(26, np.complex64).view(np.float32)
        record = raw.qvxsDFTInitAlloc_R_32f(50, 8, 0)
        raw.qvxsDFTFwd_RToCCS_32f(x, spectrum, record, None)
        np.testing.assert_allclose(spectrum.view(np.complex64), np.fft.rfft(x), atol=1e-4)

    def test_channels_are_sequences(self):
        left, right = np.full(3, 0.5, np.float32), np.full(3, -0.25, np.float32)
        joined = np.zeros(6, np.int16)
        raw.qvxsJoin_32f16s_D2L([left * 8, right * 8], 2, 3, joined)
        self.assertEqual(joined.tolist(), [4, -2] * 3)
        both = np.zeros((2, 3), np.float32)
        raw.qvxsSplitScaled_16s32f_D2L(np.array([32767, -32768] * 3, np.int16), both, 2, 3)
        self.assertEqual(both.tolist(), [[1, 1, 1], [-1, -1, -1]])
        self.assertRaises(ValueError, raw.qvxsJoin_32f16s_D2L, [left], 2, 3, joined)
        accumulate = np.array([1, 0, 0, 1, -1, 0], np.float32)
        states = [raw.qvxsIIRInitAlloc_BiQuad_32f(accumulate, 1, None) for _ in range(2)]
        raw.qvxsIIR_32f_IP([left, right], 3, 2, states)
        self.assertEqual(left.tolist(), [0.5, 1, 1.5])
        self.assertRaisesRegex(ValueError, "twice", raw.qvxsIIR_32f_IP, [left, right], 3, 2, [states[0]] * 2)

    def test_only_their_own_functions_take_them(self):
        taps, x = np.ones(4, np.float32), np.ones(8, np.float32)
        fir = raw.qvxsFIRInitAlloc_32f(taps, 4, None)
        self.assertRaises(TypeError, raw.qvxsIIR_32f_I, x, 8, fir)
        self.assertRaises(TypeError, raw.qvxsFIR_32f_I, x, 8, x)
        self.assertRaises(qvxs.Error, raw.qvxsFIR_32f_I, x, 8, None)
        up = raw.qvxsFIRMRInitAlloc_32f(taps, 4, 2, 0, 1, 0, None)
        self.assertRaisesRegex(ValueError, "takes no record", raw.qvxsFIROne_32f, 1.0, x[:1], up)
        self.assertRaisesRegex(ValueError, "needs 16", raw.qvxsFIR_32f, x, x.copy(), 8, up)
        self.assertIsNone(raw.qvxsFIRFree_32f(fir))
        with self.assertRaises(qvxs.Error) as caught:
            raw.qvxsFIR_32f_I(x, 8, fir)
        self.assertEqual(caught.exception.name, "qvxStatContextMismatch")
        self.assertRaises(TypeError, raw.Record)

    def test_a_block_overwritten_spoils_no_record(self):
        size = np.zeros(1, np.int32)
        raw.qvxsFIRGetStateSize_32f(4, size)
        block, x = np.zeros(size[0], np.uint8), np.ones(4, np.float32)
        state = raw.qvxsFIRInit_32f(np.ones(4, np.float32), 4, None, block)
        block[:] = 255
        raw.qvxsFIR_32f_I(x, 4, state)
        self.assertEqual(x.tolist(), [1, 2, 3, 4])

    def test_one_record_serves_threads_in_turn(self):
        samples, rounds, count = 20000, 40, 4
        state = raw.qvxsIIRInitAlloc_64f(np.array([1.0, 0, 1, -1]), 1, None)
        faults = []

        def run():
            try:
                vector = np.empty(samples)
                for _ in range(rounds):
                    vector[:] = 1
                    raw.qvxsIIR_64f_I(vector, samples, state)
                    if vector[-1] - vector[0] != samples - 1:
                        faults.append("two calls at once")
            except Exception as error:
                faults.append(error)

        threads = [threading.Thread(target=run) for _ in range(count)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        total = np.zeros(1)
        raw.qvxsIIR_64f_I(total, 1, state)
        self.assertEqual((faults, total[0]), ([], samples * rounds * count))

    def test_a_record_freed_in_use_lives_until_the_call_ends(self):
        rows = np.ones((3, 1 << 18), np.complex64)
        for _ in range(3):  # tables so large that they are unmapped when they are released
            record = raw.qvxsFFTInitAlloc_C_32fc(18, 8, 0)
            faults = []

            def run(row):
                try:
                    for _ in range(20):
                        raw.qvxsFFTFwd_CToC_32fc(row, row, record, None)
                except qvxs.Error as error:
                    if error.name != "qvxStatContextMismatch":
                        faults.append(error)

            threads = [threading.Thread(target=run, args=(rows[i],)) for i in range(3)]
            for thread in threads:
                thread.start()
            time.sleep(0.002)
            raw.qvxsFFTFree_C_32fc(record)
            for thread in threads:
                thread.join()
            self.assertEqual(faults, [])


class Interpreter(unittest.TestCase):
    def test_long_calls_let_other_threads_run(self):
        vector = np.random.default_rng(1).random(1 << 21)
        times = []

        def run():
            times.append(time.perf_counter())
            raw.qvxsSortAscend_64f_I(vector, len(vector))
            times.append(time.perf_counter())

        thread = threading.Thread(target=run)
        thread.start()
        between = 0
        while thread.is_alive():
            between += len(times) == 1
            time.sleep(0.001)
        self.assertGreater(between, 1)
        self.assertTrue((np.diff(vector) >= 0).all())

    def test_nothing_leaks(self):
        a, square, pair = np.ones(16, np.float32), np.ones((4, 4), np.float32), [np.ones(4, np.float32)] * 2
        joined, size = np.zeros(8, np.int16), np.zeros(1, np.int32)
        raw.qvxsRandUniformGetSize_16s(size)

        def refused(call, *arguments):
            try:
                call(*arguments)
            except (ValueError, TypeError, OverflowError, qvxs.Error):
                pass

        def once():
            raw.qvxsAdd_32f(a, a, a, 16)
            raw.qvxsJoin_32f16s_D2L(pair, 2, 4, joined)
            refused(raw.qvxsAdd_32f, a, a, a, 17)
            refused(raw.qvxsAdd_32f, a, a, None, 16)
            refused(raw.qvxsAdd_32f, a, a, a, 1 << 40)
            refused(raw.qvxsFIRInitAlloc_32f, a, 0, None)
            state = raw.qvxsFIRInitAlloc_32f(a, 16, None)
            refused(raw.qvxsFIR_32f, a, a, 17, state)
            raw.qvxsFIR_32f_I(a, 16, state)
            raw.qvxsRandUniformInit_16s(np.zeros(size[0], np.uint8), 0, 9, 1)
            raw.qvxsFFTFree_R_32f(raw.qvxsFFTInitAlloc_R_32f(4, 8, 0))
            raw.qvxsMalloc_32f(100)
            raw.rows(raw.qvxsAdd_32f, square, square, square, 4)
            refused(raw.rows, raw.qvxsAdd_32f, square, square[:3], square, 4)
            refused(raw.rows, raw.qvxsAdd_32f, square, None, square, 4)
            qvxs.add(a, a, out=qvxs.add(a, a))
            refused(qvxs.add, a, a[:3])
            raw.elementwise((raw.qvxsAdd_32f,), once)

        def resident():
            gc.collect()
            with open("/proc/self/statm") as sizes:
                return int(sizes.read().split()[1]) * 4096

        for _ in range(500):
            once()
        references = [sys.getrefcount(x) for x in (a, pair, joined, None)]
        before = resident()
        for _ in range(8000):  # 1.4 * 10^5 calls
            once()
        if "asan" not in os.environ.get("LD_PRELOAD", ""):  # the address sanitizer keeps what was freed for a while
            self.assertLess(resident() - before, 1 << 20)
        np.testing.assert_allclose([sys.getrefcount(x) for x in (a, pair, joined, None)], references, atol=1000)  # a leak has 8000


if __name__ == "__main__":
    unittest.main()
