"""The stems of qvxs.stems and qvxs.spectra beside NumPy; and that every stem of the headers is reached, or told why not."""

import fnmatch
import pathlib
import re
import subprocess
import sys

import numpy as np
import pytest

import qvxs
from qvxs import raw, spectra
from support import noise

# Stems that the upper level leaves to qvxs.raw, by pattern.
LEFT = {
    "records make, measure and free themselves": ["*Free*", "*GetSize*", "*GetStateSize*", "*GetBufSize*", "*Init", "*Init_*", "Malloc"],
    "NumPy has them": ["Move", "Set", "Zero"],
    "of qvxs.raw": ["GetLibVersion"],
    "a transform by DFT goes the same way where the length is a power of two": ["FFT*"],
    "the order of the points is nobody's": ["DFTOutOrd*"],
    "streams take blocks, and keep the delay line themselves": ["FIROne*", "IIROne*", "*_Direct", "*BiQuadDirect", "*Stream*"],
    "the caller has the taps": ["FIRGetTaps"],
    "sample by sample, between which the caller decides": ["FIRLMSMR*", "FIRLMSOne_Direct*", "FIRLMSGetDlyLine", "FIRLMSSetDlyLine"],
    "another arithmetic for the same sections": ["*_DF1"],
    "the same with a float for the number in Q15": ["*Q15*"],
    "the radix sorts are as fast or faster, and stable": ["SortAscend", "SortDescend", "SortIndexAscend", "SortIndexDescend"],
    "VectorRamp, value for value": ["VectorSlope"],
    "convert with a scale rounds and saturates": ["MulC_Low"],
    "steps of a trellis decoder on its own tables": ["GetVarPointDV", "BuildSymblTableDV4D", "CalcStatesDV", "UpdatePathMetricsDV"],
}


def stem(export):
    """The stem without types: in FIR32f_Direct that of the taps is in the middle."""
    name = re.split(r"_(?=\d+[suf])", export.removeprefix("qvxs"))[0]
    return re.sub(r"(?<=[a-z A-Z])(32|64)[sf]c?(?=_|$)", "", name)


def test_every_stem_is_reached():
    headers = pathlib.Path(__file__).parents[2].glob("include/qvx/*.h")
    declared = {name for header in headers for name in re.findall(r"^(?:QVXS_SLOTLESS\()?QVXS_API\([^,]+,\s*(qvxs\w+),", header.read_text(), re.M)}
    assert len(declared) == sum(name.startswith("qvxs") for name in dir(raw))
    ran = subprocess.run([sys.executable, "-B", pathlib.Path(__file__).with_name("reach.py")], capture_output=True, text=True, check=True)
    reached = {stem(name) for name in ran.stdout.split()}
    missing = {stem(name) for name in declared} - reached
    patterns = [pattern for listed in LEFT.values() for pattern in listed]
    assert [name for name in sorted(missing) if not any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns)] == []
    assert [pattern for pattern in patterns if not any(fnmatch.fnmatchcase(name, pattern) for name in missing)] == []


def close(ours, theirs, dtype="f"):
    assert ours.shape == np.shape(theirs)
    return np.allclose(ours, theirs, rtol=1e-5 if np.dtype(dtype).char in "fF" else 1e-12, atol=1e-5 if np.dtype(dtype).char in "fF" else 1e-12)


@pytest.mark.parametrize("dtype", ["f", "d"])
@pytest.mark.parametrize("shape", [(1,), (7,), (100,), (3, 40), (2, 3, 9)])
def test_parts_of_complex_numbers(dtype, shape):
    z = noise(shape, "F" if dtype == "f" else "D")
    re, im = qvxs.split_complex(z)
    assert (re == z.real).all() and (im == z.imag).all() and (qvxs.join_complex(re, im) == z).all()
    assert (qvxs.conjugate_flip(z) == z[..., ::-1].conj()).all()
    magnitude, phase = qvxs.cart_to_polar(z)
    assert close(magnitude, np.abs(z), dtype) and close(phase, np.angle(z), dtype) and magnitude.dtype == np.dtype(dtype)
    assert all((a == b).all() for a, b in zip(qvxs.cart_to_polar(z.real, z.imag), (magnitude, phase)))
    assert close(qvxs.polar_to_cart(magnitude, phase), z, dtype)
    squared = qvxs.magnitude_squared(z.astype("F"))
    assert squared.dtype == np.float64 and close(squared, np.abs(z.astype("F").astype("D"))**2)


@pytest.mark.parametrize("dtype", ["f", "d"])
def test_stems_of_floats(dtype):
    a, b, c = (noise((4, 30), dtype, seed) for seed in (1, 2, 3))
    assert (qvxs.add_product(a, b, c) == c + a * b).all() and close(qvxs.add_product(a, b[0], c[:, :1]), c[:, :1] + a * b[0], dtype)
    assert (qvxs.threshold(a, 0.5) == np.maximum(a, a.dtype.type(0.5))).all() and (qvxs.threshold(a, 0.5, relation=4) == np.minimum(a, a.dtype.type(0.5))).all()
    low, high = qvxs.haar(a[:, :29])
    assert low.shape == (4, 15) and high.shape == (4, 14) and close(qvxs.inverse_haar(low, high), a[:, :29], dtype)
    assert close(high, (a[:, 1:29:2] - a[:, :28:2]) / 2, dtype)
    assert close(qvxs.normalize(a, 2.0, 0.5), (a - 2) / 0.5, dtype)
    for name, window in (("win_hann", np.hanning(30)), ("win_hamming", np.hamming(30)), ("win_bartlett", np.bartlett(30)), ("win_blackman", np.blackman(30))):
        assert close(getattr(qvxs, name)(a), a * window, dtype), name
    assert np.allclose(qvxs.win_blackman_std(a), a * np.blackman(30), atol=1e-7)
    assert np.allclose(qvxs.win_kaiser(a, 5 * 2 / 29), a * np.kaiser(30, 5), atol=1e-5)
    assert (qvxs.sample_up(a, 3, 1)[:, 1::3] == a).all() and qvxs.sample_up(a, 3).astype(bool).sum() == a.size
    for phase in range(4):
        assert (qvxs.sample_down(a, 4, phase) == a[:, phase::4]).all()
    for norm, divisor in ((None, 1), ("biased", 30), ("unbiased", 30 - np.arange(5))):
        theirs = [np.correlate(row, row, "full")[29:34] / divisor for row in a.astype("d")]
        assert np.allclose(qvxs.autocorrelate(a, 5, norm), theirs, atol=1e-5)
    if dtype == "f":
        assert (qvxs.add_scaled(a, c, 2) == c + 2 * a).all() and close(qvxs.cauchy(a, 2), np.log1p((a / 2)**2) / 2)
        first, second = qvxs.cauchy_derivatives(a, 2)
        assert close(first, a / (4 + a * a)) and close(qvxs.cauchy_derivative(a, 2), first) and close(second, (4 - a * a) / (4 + a * a)**2)
        assert close(qvxs.preemphasize(a, 0.9)[:, 1:], a[:, 1:] - 0.9 * a[:, :-1]) and (qvxs.preemphasize(a, 0.9)[:, 0] == a[:, 0]).all()
        assert close(qvxs.convolve_part(a[0], b[0], 20, 10), np.convolve(a[0], b[0])[10:30])
        cyclic = np.fft.ifft(np.fft.fft(a[:, :8]) * np.fft.fft(b[:, :8])).real
        assert close(qvxs.convolve_cyclic(a[:, :8], b[:, :8]), cyclic)


def test_stems_of_integers():
    a, b = noise(200, np.int16, 1), noise(200, np.int16, 2)
    for places in (0, 1, 5, 15):
        assert (qvxs.left_shift(a, places) == a << places).all() and (qvxs.right_shift(a, places) == a >> places).all()
    assert (qvxs.swap_bytes(a.view(np.uint16)) == a.view(np.uint16).byteswap()).all()
    wide, other = noise(200, np.int32, 3), noise(200, np.int32, 4)
    assert (qvxs.multiply_low(wide, other) == (wide.astype(np.int64) * other).astype(np.int32)).all()
    exact = [(x * y + z + 2**3) >> 4 for x, y, z in zip(a.tolist(), b.tolist(), wide.tolist())]
    close_ = np.abs(qvxs.add_product(a, b, wide, scale=4) - np.array(exact))
    assert close_.max() <= 1 and (close_ == 0).mean() > 0.9  # ties to even differ from ties upward
    divisors = np.where(b == 0, 1, b)
    for rounding, rule in (("zero", np.trunc), ("even", np.rint)):
        assert (qvxs.divide_round(a, divisors, rounding=rounding) == np.clip(rule(a / divisors.astype("d")), -32768, 32767)).all()
    low, high = qvxs.haar(a, scale=-1)
    pairs = a.reshape(-1, 2).astype(int)
    assert (low == np.clip(pairs.sum(1), -32768, 32767)).all() and (high == np.clip(pairs[:, 1] - pairs[:, 0], -32768, 32767)).all()
    assert (qvxs.sum_window(a, 9) == np.convolve(a.astype("d"), np.ones(9), "valid").astype("f")).all()
    assert (qvxs.sum_window(a.reshape(2, 100).astype(np.uint8), 3)[1] == np.convolve(a.astype(np.uint8)[100:].astype("d"), np.ones(3), "valid")).all()
    table = np.unique(noise(50, np.uint16, 5))
    values, places = qvxs.find_nearest(b.view(np.uint16), table)
    distances = np.abs(b.view(np.uint16)[:, None].astype(int) - table)
    assert (values == table[places]).all() and (distances[np.arange(200), places] == distances.min(1)).all()


def test_rows_of_one_element_and_no_rows():
    x = np.float32([[3], [5]])
    low, high = qvxs.haar(x)
    assert (low == x).all() and high.shape == (2, 0)
    assert (qvxs.inverse_haar(low, high) == x).all()
    assert qvxs.sample_up(np.empty((0, 3), np.float32), 2).shape == (0, 6)
    assert qvxs.sample_down(np.empty((0, 3), np.float32), 2).shape == (0, 2)


def test_bits_and_channels():
    values, lengths = noise(100, np.uint32), np.random.default_rng(2).integers(0, 33, 100)
    packed, written = qvxs.pack_bits(values, lengths, 3)
    text = "000" + "".join(format(int(value) % 2**int(length), f"0{length}b") if length else "" for value, length in zip(values, lengths))
    assert written == len(text) - 3 and "".join(f"{byte:08b}" for byte in packed)[:len(text)] == text
    bits = np.random.default_rng(3).integers(0, 2, 160).astype(np.uint8)
    target = qvxs.copy_bits(np.packbits(bits), 13, np.full(20, 0xFF, np.uint8), 30, 101)
    expected = np.ones(160, np.uint8)
    expected[30:131] = bits[13:114]
    assert (np.unpackbits(target) == expected).all()
    with pytest.raises(ValueError):
        qvxs.copy_bits(np.packbits(bits), 100, target, 0, 61)
    for offsets in (-8, 0), (0, -8):  # no byte from the end
        with pytest.raises(ValueError):
            qvxs.copy_bits(np.packbits(bits), offsets[0], target, offsets[1], 8)
    frames = noise((40, 3), np.int16)
    channels = qvxs.split_channels(frames)
    assert channels.shape == (3, 40) and np.abs(channels).max() <= 1 and (qvxs.join_channels(channels) == frames).all()
    bytes_ = noise((40, 2, 3), np.uint8)
    assert (qvxs.join_channels(qvxs.split_channels(bytes_), "24s") == bytes_).mean() > 0.3  # 24 bits hardly fit a float32
    assert qvxs.join_channels(np.float32([[1.5, -9e9]]), scaled=False).tolist() == [[2], [-32768]]


def test_single_frequencies():
    for dtype in "fdFD":
        x = noise((3, 100), dtype)
        turns = np.exp(2j * np.pi * 0.13 * (100 - np.arange(100)))
        assert np.allclose(qvxs.goertzel(x, 0.13, axis=1), x @ turns, atol=1e-3 if dtype in "fF" else 1e-9)
        both = qvxs.goertzel_two(x, 0.13, 0.4)
        assert both.shape == (3, 2) and np.allclose(both[:, 0], x @ turns, atol=1e-3 if dtype in "fF" else 1e-9)
    with pytest.raises(qvxs.Error):
        qvxs.goertzel(x, 1.5)


def test_more_statistics():
    for dtype in ("f", "d", np.int16):
        a, b = noise((5, 60), dtype, 1), noise((5, 60), dtype, 2)
        wide, difference = a.astype("d"), a.astype("d") - b
        for axis in (None, 0, 1):
            order = {"rtol": 1e-5}
            assert np.allclose(qvxs.norm_diff_inf(a, b, axis), np.abs(difference).max(axis), **order)
            assert np.allclose(qvxs.norm_diff_l1(a, b, axis), np.abs(difference).sum(axis), **order)
            assert np.allclose(qvxs.norm_diff_l2(a, b, axis), np.sqrt((difference**2).sum(axis)), **order)
            if a.dtype.kind == "i":
                assert (qvxs.norm_l2_squared(a, axis) == (wide**2).sum(axis)).all() and (qvxs.norm_diff_l2_squared(a, b, axis) == (difference**2).sum(axis)).all()
                assert (qvxs.max_abs_index(a, axis)[0] == np.minimum(np.abs(wide).max(axis), 32767)).all() and (qvxs.min_abs(a, axis) == np.abs(wide).min(axis)).all()
            else:
                mean, deviation = qvxs.mean_deviation(a, axis)
                assert np.allclose(mean, wide.mean(axis), atol=1e-6) and np.allclose(deviation, wide.std(axis, ddof=1), **order)
                assert np.allclose(qvxs.sum_log(np.abs(a), axis), np.log(np.abs(wide)).sum(axis), **order)
            assert (qvxs.max_index(a, axis)[1] == a.argmax(axis)).all() and (qvxs.min_index(a, axis)[1] == a.argmin(axis)).all()
        signs = np.sign(wide).reshape(-1)
        if a.dtype.char in "fh":
            assert qvxs.zero_crossings(a, kind=2) == np.abs(np.diff(signs)).sum() / 2
    counted = noise(1000, np.int32) // 2**20
    assert qvxs.count_in_range(counted, -100, high=300) == ((counted > -100) & (counted < 300)).sum()
    assert qvxs.sum(np.int16([1000, 2001]), scale=1) == 1500 and qvxs.norm_l1(np.int16([100, -50]), scale=1) == 75
    for wrong in ((lambda: qvxs.count_in_range(counted, 1)), (lambda: qvxs.count_in_range(counted, 1, 2, 3)), (lambda: qvxs.goertzel(counted, 0.1)),
                  (lambda: qvxs.zero_crossings(noise(3, "f"), sort=1)), (lambda: qvxs.max(noise(3, "f"), scale=1))):
        with pytest.raises(TypeError):
            wrong()


def test_results_where_the_caller_wants_them():
    x = noise((4, 50), "f")
    for call, result in ((lambda out: qvxs.sum(x, 1, out=out), np.empty(4, "f")), (lambda out: qvxs.max(x, 0, out=out), np.empty(50, "d")),
                         (lambda out: qvxs.std(x, 1, out=out), np.empty(4, "f")), (lambda out: qvxs.mean(x, out=out), np.empty((), "f")),
                         (lambda out: qvxs.dot(x[0], x[1], out=out), np.empty((), "f")), (lambda out: qvxs.argsort(x, out=out), np.empty((4, 50), int)),
                         (lambda out: qvxs.sort(x, out=out), np.empty((4, 100), "f")[:, ::2]), (lambda out: qvxs.haar(x, out=out)[1], (np.empty((4, 25), "f"), np.empty((4, 25), "f"))),
                         (lambda out: qvxs.gauss(50, out=out), np.empty((50, 2), "f")[:, 1]), (lambda out: qvxs.tone(50, 1, 0.1, out=out), np.empty((50, 2), "f")[:, 0]),
                         (lambda out: qvxs.ramp(50, 1, 2, out=out), np.empty(50, np.int8)), (lambda out: qvxs.left_shift(x.view(np.int32), 1, out=out), np.empty((4, 50), "i")),
                         (lambda out: qvxs.sample_up(x, 2, out=out), np.empty((4, 100), "f")), (lambda out: qvxs.clip(x, -1, 1, out=out), x.T.copy().T)):
        expected = call(None)
        made = call(result)
        assert made is (result[1] if isinstance(result, tuple) else result)
        assert (made == expected).all()
    with pytest.raises(ValueError):
        qvxs.sum(x, 1, out=np.empty(3, "f"))
    with pytest.raises(ValueError):
        qvxs.tone(50, 1, 0.1, out=np.empty(49, "f"))


def test_radio():
    t = np.arange(500)
    phase = 2 * np.pi * np.cumsum(0.1 + 0.05 * np.sin(t / 40))
    re, im = (np.rint(30000 * part).astype(np.int16) for part in (np.cos(phase), np.sin(phase)))
    angles, last = qvxs.demodulate_fm(re, im)
    assert np.allclose(angles[1:], np.diff(phase) / np.pi * 32768, atol=3) and last == (re[-1], im[-1])
    assert (qvxs.demodulate_fm(re[250:], im[250:], (re[249], im[249]))[0] == angles[250:]).all()
    mean = power = 0
    for sample in re[:50].tolist():
        mean, power = (round((30000 * old + 2768 * new) / 32768) for old, new in ((mean, sample >> 2), (power, sample * sample >> 3)))
    assert qvxs.running_mean(re[:50], 0, 30000, 2) == mean and qvxs.running_power(re[:50], 0, 30000, 3) == power


@pytest.mark.parametrize("dtype", ["f", "d", np.int16])
@pytest.mark.parametrize("n", [1, 2, 3, 8, 15, 100])
def test_layouts_of_spectra(dtype, n):
    x, y = (noise((3, n), dtype, seed) for seed in (1, 2))
    if dtype is np.int16:
        x, y = x // 256, y // 256
    exact = np.fft.fft(x.astype("d"))
    near = {"atol": 1.0 if dtype is np.int16 else 1e-4}
    for layout in ("perm", "pack", "ccs"):
        made = spectra.forward(x, layout)
        all_ = spectra.expand(made, layout, n)
        values = all_["re"] + 1j * all_["im"] if dtype is np.int16 else all_
        assert np.allclose(values, exact, **near) and np.allclose(spectra.inverse(made, layout, n), x, **near)
        if layout != "ccs" and dtype is not np.int16:
            cyclic = np.fft.ifft(exact * np.fft.fft(y)).real
            assert np.allclose(spectra.inverse(spectra.multiply(made, spectra.forward(y, layout), layout), layout), cyclic, atol=1e-3)
    if dtype is not np.int16:
        lagged = np.fft.ifft(exact.conj() * np.fft.fft(y)).real
        assert np.allclose(spectra.inverse(spectra.multiply(spectra.forward(x, "pack"), spectra.forward(y, "pack"), conjugate=True), "pack"), lagged, atol=1e-3)
    for wrong in (lambda: spectra.forward(x, "row"), lambda: spectra.inverse(x, "ccs", n + 5), lambda: spectra.multiply(x, y, "ccs"), lambda: spectra.forward(x * 1j)):
        with pytest.raises((TypeError, ValueError)):
            wrong()
