"""Vectors by stem beside NumPy and beside their definitions in wide integers."""

import inspect
import math
import pickle
import warnings

import numpy as np
import pytest

import qvxs
import qvxs.signal
from support import noise

LENGTHS = (1, 2, 7, 16, 33, 1000)
INTEGERS = (np.uint8, np.int16, np.uint16, np.int32)
FLOATS = (np.float32, np.float64, np.complex64, np.complex128)


def scaled(exact, scale, dtype):
    """Exact integers times 2^-scale, rounded to nearest with ties to even, saturated."""
    limits = np.iinfo(dtype)
    rounded = [value << -scale if scale <= 0 else _halves_to_even(value, scale) for value in exact]
    return np.array([min(max(value, limits.min), limits.max) for value in rounded], dtype)


def _halves_to_even(value, scale):
    whole, rest = divmod(value, 1 << scale)
    half = 1 << (scale - 1)
    return whole + (rest > half or rest == half and whole % 2)


@pytest.mark.parametrize("dtype", INTEGERS)
@pytest.mark.parametrize("scale", [-2, 0, 1, 5])
def test_scaled_integers(dtype, scale):
    a, b = noise(500, dtype, 1), noise(500, dtype, 2)
    wide = list(zip(a.tolist(), b.tolist()))
    assert (qvxs.add(a, b, scale) == scaled([x + y for x, y in wide], scale, dtype)).all()
    assert (qvxs.subtract(a, b, scale) == scaled([x - y for x, y in wide], scale, dtype)).all()
    assert (qvxs.multiply(a, b, scale) == scaled([x * y for x, y in wide], scale, dtype)).all()
    assert (qvxs.add(a, 7, scale) == scaled([x + 7 for x, _ in wide], scale, dtype)).all()
    assert (qvxs.subtract(7, a, scale) == scaled([7 - x for x, _ in wide], scale, dtype)).all()


@pytest.mark.parametrize("dtype", FLOATS)
def test_floats_are_numpys(dtype):
    for n in LENGTHS:
        a, b = noise(n, dtype, 1), noise(n, dtype, 2)
        for name in ("add", "subtract", "multiply", "divide"):
            ours, theirs = getattr(qvxs, name)(a, b), getattr(np, name)(a, b)
            assert ours.dtype == theirs.dtype
            if np.dtype(dtype).kind == "f" or name in ("add", "subtract"):
                assert (ours == theirs).all(), name
            else:
                assert np.allclose(ours, theirs, rtol=1e-5 if np.dtype(dtype) == np.complex64 else 1e-13)
        for number in (2, dtype(3)):
            assert np.allclose(qvxs.subtract(number, a), number - a) and np.allclose(qvxs.divide(a, number), a / number)


@pytest.mark.parametrize("name", ["add", "subtract", "multiply", "divide", "maximum"])
def test_shapes(name):
    ours, theirs = getattr(qvxs, name), getattr(np, name)
    a = noise((6, 5, 4), "d")
    for x, y in ((a, a[:, ::-1]), (a[::2], a[1::2]), (a.T, a.T), (a, a[0]), (a[:, :1], a[:1]), (a, 2), (3, a), (np.float64(2), a),
                 (a[0, 0], a), (a[:0], a[:0]), (a, np.float32(2)), (np.float32(3), np.float32(2)), (np.asfortranarray(a), a), (a[:4, :4, 0], a[:4, :4, 0].T)):
        assert (ours(x, y) == theirs(x, y)).all() and ours(x, y).shape == theirs(x, y).shape
    with pytest.raises(ValueError):
        ours(a, a[:, :3])
    b = np.arange(1.0, 7)
    assert (ours(b.reshape(2, 3).T, b.reshape(3, 2)) == theirs(b.reshape(2, 3).T, b.reshape(3, 2))).all()


def test_arrays_out_of_alignment():
    x = np.frombuffer(b"_" + noise(100, "d").tobytes(), "d", offset=1)
    assert not x.flags.aligned
    assert (qvxs.add(x, x) == 2 * x).all() and (qvxs.sort(x) == np.sort(x)).all() and qvxs.max(x) == x.max()
    assert np.allclose(qvxs.fft.rfft(x), np.fft.rfft(x)) and np.allclose(qvxs.signal.lfilter([1.0], [1, -0.5], x)[1], x[1] + x[0] / 2)


def test_arrays_of_the_other_byte_order():
    for dtype in (np.int16, np.float32, np.complex64):
        x = noise(48, dtype, 1)
        turned = x.astype(x.dtype.newbyteorder(">"))
        names = {"i": "absolute max sort argsort haar sample_down", "f": "log std max_index win_hann haar sum", "c": "magnitude flip goertzel_two"}
        for name in names[x.dtype.kind].split():
            numbers = {"sample_down": (2,), "goertzel_two": (0.25, 0.5)}.get(name, ())
            with warnings.catch_warnings():
                warnings.simplefilter("ignore", qvxs.Warning)  # of logarithms
                results = getattr(qvxs, name)(turned, *numbers), getattr(qvxs, name)(x, *numbers)
            for ours, native in zip(*(np.atleast_1d(result) if not isinstance(result, tuple) else result for result in results)):
                assert np.array_equal(ours, native, equal_nan=True) and ours.dtype == native.dtype, name
    x = noise(48, np.float32, 1)
    assert (qvxs.convert(x.astype(">f4"), np.int16, 3) == qvxs.convert(x, np.int16, 3)).all()
    assert (qvxs.signal.medfilt(x.astype(">f4"), 5) == qvxs.signal.medfilt(x, 5)).all()
    assert (qvxs.signal.welch(x.astype(">f4"), nperseg=16)[1] == qvxs.signal.welch(x, nperseg=16)[1]).all()


def test_numbers_that_fit_no_element():
    for level in (40000, -40000):
        with pytest.raises(OverflowError):
            qvxs.clip(np.int16([1]), min(level, 0), max(level, 0))
        with pytest.raises(OverflowError):
            qvxs.threshold_gt_value(np.int16([1]), 0, level)
    with pytest.raises(TypeError):
        qvxs.threshold_lt_value(np.int16([1]), 2, 9.5)
    with pytest.raises(ValueError, match="not 'up'"):
        qvxs.convert(np.float32([1]), np.int16, rounding="up")
    with pytest.raises(ValueError, match="not 'up'"):
        qvxs.divide_round(np.int16([1]), np.int16([1]), rounding="up")


def test_out():
    a, b = noise(100, "f", 1), noise(100, "f", 2)
    out = np.empty(100, "f")
    assert qvxs.add(a, b, out=out) is out and (out == a + b).all()
    wide = np.empty((100, 2))
    assert (qvxs.add(a, b, out=wide[:, 0]) == a + b).all() and (wide[:, 0] == a + b).all()
    long = noise(101, "f")
    expected = long[:-1] + long[1:]
    assert (qvxs.add(long[:-1], long[1:], out=long[1:]) == expected).all()
    with pytest.raises(ValueError):
        qvxs.add(a, b, out=np.empty(99, "f"))
    with pytest.raises(TypeError):
        qvxs.add(a, b, out=np.empty(100, np.int16))


def test_types_without_an_export():
    for call in (lambda: qvxs.exp(np.int8([1])), lambda: qvxs.add(np.float16([1]), np.float16([1])), lambda: qvxs.sort(np.int64([2, 1])),
                 lambda: qvxs.add(np.float32([1]), np.float32([1]), scale=1), lambda: qvxs.add(["a"], ["b"]), lambda: qvxs.max(np.uint8([1])),
                 lambda: qvxs.convert(np.float32([1]), np.int64)):
        with pytest.raises(TypeError):
            call()


def test_other_results():
    a, b = noise(50, np.int16, 1), noise(50, np.int16, 2)
    assert (qvxs.add(a, b, dtype=np.float32) == a.astype("f") + b).all()
    assert (qvxs.multiply(a, b, dtype=np.int32) == a.astype("i") * b).all()
    c = np.zeros(3, qvxs.complex_int16)
    c["re"], c["im"] = (1, 2, 30000), (4, 5, 6)
    total = qvxs.add(c, c)
    assert total["re"].tolist() == [2, 4, 32767] and total["im"].tolist() == [8, 10, 12]


@pytest.mark.parametrize("dtype", ["f", "d"])
def test_elementary_functions(dtype):
    x = noise(1000, dtype) * 5
    near = {"rtol": 4 * np.finfo(dtype).eps}
    assert np.allclose(qvxs.exp(x), np.exp(x), **near) and np.allclose(qvxs.arctan(x), np.arctan(x), **near)
    assert np.allclose(qvxs.log(np.abs(x)), np.log(np.abs(x)), atol=1e-7 if dtype == "f" else 1e-15, **near)
    assert (qvxs.sqrt(np.abs(x)) == np.sqrt(np.abs(x))).all() and (qvxs.absolute(x) == np.abs(x)).all()
    z = noise(1000, "F" if dtype == "f" else "D")
    assert np.allclose(qvxs.magnitude(z), np.abs(z), **near) and (qvxs.conjugate(z) == z.conj()).all()
    assert (qvxs.clip(x, -1, 2) == np.clip(x, -1, 2)).all() and (qvxs.threshold_lt(x, 0.5) == np.maximum(x, dtype and np.dtype(dtype).type(0.5))).all()


def test_warnings():
    with pytest.warns(qvxs.Warning):
        assert qvxs.divide(np.int16([5]), np.int16([0]))[0] == 32767
    with pytest.warns(qvxs.Warning):
        assert np.isnan(qvxs.sqrt(np.float32([-1]))[0])
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(qvxs.Warning):
            qvxs.log(np.float32([-1]))


@pytest.mark.parametrize("dtype", ["f", "d", np.int16, np.int32])
def test_statistics(dtype):
    x = noise((5, 300), dtype)
    if x.dtype.kind == "i":
        x //= 4000 if dtype is np.int16 else 2**24
    for axis in (None, 0, 1, -1):
        assert np.allclose(qvxs.sum(x, axis), x.sum(axis, dtype="d"), rtol=1e-5, atol=1e-3)
        assert (qvxs.max(x, axis) == x.max(axis)).all() and (qvxs.min(x, axis) == x.min(axis)).all()
        if x.dtype.kind == "f":
            assert np.shape(qvxs.std(x, axis)) == np.shape(x.std(axis))
            assert np.allclose(qvxs.std(x, axis), x.std(axis), rtol=1e-5) and np.allclose(qvxs.std(x, axis, 1), x.std(axis, ddof=1), rtol=1e-5)
            assert np.allclose(qvxs.mean(x, axis), x.mean(axis), atol=1e-6)
    flat = x.reshape(-1)
    lowest, where, _, _ = qvxs.min_max_index(x)
    assert flat[where] == lowest == flat.min() and where == flat.argmin()
    for empty in (qvxs.sum, qvxs.mean, qvxs.max):
        with pytest.raises(ValueError):
            empty(x[:0])


def test_sums_do_not_saturate_without_a_word():
    with pytest.raises(OverflowError):
        qvxs.sum(np.full(3, 2**30, np.int32))
    assert qvxs.sum(np.int32([2**31 - 2, 1])) == 2**31 - 1  # the largest there is, and the sum
    assert qvxs.sum(np.full(60000, 32767, np.int16)) == 60000 * 32767
    assert qvxs.dot(np.full(10**5, 32767, np.int16), np.full(10**5, -32768, np.int16)) == -(10**5) * 32767 * 32768


def test_conversion():
    x = np.float32([0.5, 1.5, -2.5, 300, np.nan])
    assert qvxs.convert(x, np.uint8).tolist() == [0, 2, 0, 255, 0]
    assert qvxs.convert(x, np.int16, rounding="away").tolist()[:3] in ([1, 2, -3],)
    assert qvxs.convert(x, np.int16, rounding="zero").tolist()[:3] == [0, 1, -2]
    whole = np.int32([-8388608, 8388607, -1, 12345])
    packed = qvxs.convert(whole, "24s")
    assert packed.shape == (4, 3) and (qvxs.convert(packed, ("24s", np.int32)) == whole).all()
    assert (qvxs.convert(np.float16([1.5, -2]), np.float32) == [1.5, -2]).all()
    codes = np.arange(256, dtype=np.uint8)
    assert (qvxs.linear_to_a_law(qvxs.a_law_to_linear(codes)) == codes).all()


@pytest.mark.parametrize("dtype", [np.uint8, np.int16, np.uint16, np.int32, np.uint32, "f", "d"])
def test_sorting(dtype):
    for shape, axis in (((0,), -1), ((1,), 0), ((1000,), -1), ((20, 30), 0), ((20, 30), 1), ((20, 30), None)):
        x = noise(shape, dtype)
        assert (qvxs.sort(x, axis) == np.sort(x, axis)).all()
        down = qvxs.sort(x, axis, descending=True)
        assert (np.flip(down, axis if axis is not None else 0) == np.sort(x, axis)).all()
        if dtype != "d":
            x = x // 64 if x.dtype.kind in "iu" else x.round() + 0  # the library tells -0 from 0
            assert (qvxs.argsort(x, axis) == np.argsort(x, axis, kind="stable")).all()


REFUSALS = (TypeError, ValueError, OverflowError, qvxs.Error, NotImplementedError)


@pytest.mark.filterwarnings("ignore")
@pytest.mark.parametrize("dtype", ["u1", "i2", "u4", "i8", "f2", "f4", "F", "?", "g", "O", "U3", qvxs.complex_int8, qvxs.complex_int16])
def test_wrong_arguments_are_refused_by_name(dtype):
    """No function stumbles over types, shapes and numbers that it does not take: other exceptions would be faults."""
    functions = {name: thing for name in dir(qvxs) if callable(thing := getattr(qvxs, name)) and not isinstance(thing, type) and name[0] != "_"}
    assert len(functions) > 100
    for shape in ((5,), (0,), (), (2, 3)):
        x = np.zeros(shape, dtype)
        for name, function in functions.items():
            for arguments in ((x,), (x, x), (x, x, x), (x, 2), (x, 2, 3), (x, x, 2), (x, 2, 3, 1), (5, x), (x, -1), (x, None), (x, "x"), (x, 10**30), (x, math.nan)):
                try:
                    function(*arguments)
                except REFUSALS:
                    pass
                except Exception as fault:
                    raise AssertionError(f"{name} of {[getattr(a, 'shape', a) for a in arguments]}") from fault


def test_generators():
    n = np.arange(1000)
    for dtype in ("f", "d", "D"):
        theirs = 3 * np.exp(1j * (2 * np.pi * 0.01 * n + 0.5))
        assert np.allclose(qvxs.tone(1000, 3, 0.01, 0.5, dtype), theirs if dtype == "D" else theirs.real, atol=1e-5)
    for dtype in ("F", "D", qvxs.complex_int16):  # below zero frequencies of complex tones alone
        for phase in (0, 1e-9, 0.5, 6.2831853):
            out = np.empty((1000, 2), dtype)[:, 0]
            qvxs.tone(1000, 3000, -1 / 128, phase, out=out)
            made = out["re"] + 1j * out["im"] if out.dtype.names else out
            assert np.abs(made - 3000 * np.exp(1j * (-2 * np.pi * n / 128 + phase))).max() < (1e-8 if dtype == "D" else 2e-3 if dtype == "F" else 0.8)
    for call in (lambda: qvxs.tone(9, 1, -0.1), lambda: qvxs.tone(9, 1, -0.5, dtype="D"), lambda: qvxs.tone(9, 1, -0.1, 7, "D"), lambda: qvxs.tone(9, 1, -0.1, -1, "D")):
        with pytest.raises(qvxs.Error):
            call()
    assert (qvxs.ramp(300, -5, 2, np.int8) == np.clip(-5 + 2 * n[:300], -128, 127)).all()
    for make in (qvxs.uniform, qvxs.gauss):
        assert (make(100, seed=7) == make(100, seed=7)).all() and (make(100, seed=7) != make(100, seed=8)).any() and make(0).size == 0
    noise_ = qvxs.uniform(10000, -2, 2, dtype="d")
    assert abs(noise_.std() - 4 / np.sqrt(12)) < 0.03 and noise_.min() >= -2 and noise_.max() <= 2


def test_rows_of_a_batch():
    rows, call = qvxs.raw.rows, qvxs.raw.qvxsAdd_64f
    a, b = noise((50, 8), "d", 1), noise((50, 8), "d", 2)
    wide = np.zeros((50, 20))
    assert rows(call, a, b[::-1], wide[:, 3:11], 8) is None
    assert (wide[:, 3:11] == a + b[::-1]).all() and not wide[:, 11:].any() and not wide[:, :3].any()
    rows(call, a, b[7], wide[:, :8], 8)
    assert (wide[:, :8] == a + b[7]).all()
    assert rows(call, a[:0], b[:0], wide[:0], 8) is None
    packed = np.frombuffer(bytearray(60), np.uint8).reshape(5, 12)
    for arguments, kind in (((call, a, b, wide.T, 8), TypeError), ((call, a, b[:49], wide, 8), ValueError), ((call, a, b, wide, 9), ValueError),
                            ((call, a, b[:, ::2], wide, 4), TypeError), ((call, a, b, wide, 8, 8), TypeError), ((call, a, b, 8), TypeError),
                            ((call, a[0], b[0], wide[0], 8), TypeError), ((len, a, b, wide, 8), TypeError), ((call, [a, b, wide], 8), TypeError),
                            ((call, a, b, None, 8), qvxs.Error), ((call, a.astype("f"), b, wide, 8), TypeError), ((call, 8), TypeError),
                            ((call, *(packed[:, 1:9].view("d"),) * 3, 1), TypeError), ((), TypeError), ((call,), TypeError),
                            ((qvxs.raw.qvxsFFTInitAlloc_C_32fc, 3, 2, a), TypeError)):
        with pytest.raises(kind):
            rows(*arguments)
    fixed = np.zeros((50, 8))
    fixed.flags.writeable = False
    with pytest.raises(ValueError):
        rows(call, a, b, fixed, 8)
    assert not fixed.any()
    # Row by row, where a call looks into its vectors; and refused, warned of, as a call is.
    phases, made, lengths = np.tile(np.int32([0]), (4, 1)), np.zeros((4, 6), "f"), np.zeros((4, 1), np.int32)
    rows(qvxs.raw.qvxsSampleUp_32f, np.float32([[1, 2], [3, 4], [5, 6], [7, 8]]), 2, made, lengths, 3, phases)
    assert (made[:, ::3] == [[1, 2], [3, 4], [5, 6], [7, 8]]).all() and (lengths == 6).all()
    with pytest.raises(qvxs.Error):
        rows(call, a, b, wide, 0)
    with pytest.warns(qvxs.Warning):
        rows(qvxs.raw.qvxsSqrt_64f, np.float64([[1, 2], [-3, 4]]), wide[:2, :2], 2)


def test_usual_calls_and_their_exceptions():
    """Calls that the extension serves alone, and calls that it must not."""
    a, b = noise((5, 60), "d", 1), noise((5, 60), "d", 2)
    out = np.empty_like(a)
    assert qvxs.subtract(a, b, out=out) is out and (out == a - b).all()
    expected = a + b
    assert qvxs.add(a, b, out=a) is a and (a == expected).all()
    line = noise(100, "d")
    expected = line[:-1] - line[1:]
    assert (qvxs.subtract(line[:-1], line[1:], out=line[1:]) == expected).all()
    assert qvxs.add(np.float32(2), np.float32(3)) == 5 and qvxs.add(np.ma.array([1.0]), np.ones(1)) == 2
    swapped = b.astype(">f8")
    assert (qvxs.add(swapped, swapped) == 2 * b).all() and (qvxs.exp(b[:, ::2]) == qvxs.exp(b)[:, ::2]).all()
    assert qvxs.add.__name__ == "add" and pickle.loads(pickle.dumps(qvxs.add)) is qvxs.add
    assert list(inspect.signature(qvxs.add).parameters) == ["a", "b", "scale", "out", "dtype"]
    for wrong in ((lambda: qvxs.add(b)), (lambda: qvxs.add(b, b, b, b, b, b)), (lambda: qvxs.add(b, b, into=b)), (lambda: qvxs.exp(b, out=[0]))):
        with pytest.raises((TypeError, AttributeError)):
            wrong()
    for table in ((), (len,), (qvxs.raw.qvxsSum_64f,), (qvxs.raw.qvxsAdd_64f, qvxs.raw.qvxsExp_32f), (qvxs.raw.qvxsSortAscend_64f_I,)):
        with pytest.raises(TypeError):
            qvxs.raw.elementwise(table, len)
