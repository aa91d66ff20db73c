"""Filters, convolution, resampling and spectra beside SciPy; streams beside one call."""

import concurrent.futures
import pickle

import numpy as np
import pytest
import scipy.signal

import qvxs
import qvxs.signal
from qvxs.signal import Fir, Iir, Lms, Resampler, Sos, SparseFir, SparseIir, WaveletJoin, WaveletSplit

TYPES = ("f", "d", "F", "D")


def noise(shape, dtype="d", seed=1):
    rng = np.random.default_rng(seed)
    x = rng.standard_normal(shape)
    return (x + 1j * rng.standard_normal(shape) if np.dtype(dtype).kind == "c" else x).astype(dtype)


def same(name, *arguments, loose=1.0, **named):
    """Our result beside SciPy's of the same call, or both exceptions."""
    before = [np.array(argument) for argument in arguments if isinstance(argument, np.ndarray)]
    ours, theirs = (getattr(library, name)(*arguments, **named) for library in (qvxs.signal, scipy.signal))
    for kept, argument in zip(before, (argument for argument in arguments if isinstance(argument, np.ndarray))):
        assert (kept == argument).all()
    for a, b in zip(ours, theirs) if isinstance(theirs, tuple) else ((ours, theirs),):
        assert a.dtype == b.dtype and a.shape == b.shape, (name, a.dtype, b.dtype, a.shape, b.shape)
        if b.size:
            epsilon = np.finfo(b.dtype).eps if b.dtype.kind in "fc" else 0
            assert np.abs(a - b).max() <= 1000 * loose * epsilon * max(np.abs(b).max(), 1e-30), name


LAYOUTS = [((500,), -1), ((3, 200), 1), ((200, 3), 0), ((2, 90, 2), 1)]


@pytest.mark.parametrize("dtype", TYPES)
@pytest.mark.parametrize("shape, axis", LAYOUTS)
def test_filters(dtype, shape, axis):
    x = noise(shape, dtype)
    real = "f" if dtype in "fF" else "d"
    for x in (x, x[..., ::-1], np.asfortranarray(x)):
        for b, a in ((scipy.signal.butter(3, 0.3)), ([1.0, 2, 3], [2.0]), ([1.0], [1, -0.5]), ([0.5, 0.5], [2, 0.5, 0.1, 0.2]), ([0, 0, 1.0], [1, 0.2])):
            b, a = np.array(b, real), np.array(a, real)
            same("lfilter", b, a, x, axis)
            order = max(len(a), len(b)) - 1
            zi = noise(x.shape[:axis % x.ndim] + (order,) + x.shape[axis % x.ndim + 1:], dtype)
            same("lfilter", b, a, x, axis, zi=zi)
        sos = scipy.signal.butter(4, 0.3, output="sos").astype(real)
        same("sosfilt", sos, x, axis)
        zi = noise((2,) + x.shape[:axis % x.ndim] + (2,) + x.shape[axis % x.ndim + 1:], dtype)
        same("sosfilt", sos, x, axis, zi=zi)
        for padtype in ("odd", "even", "constant", None):
            same("filtfilt", *scipy.signal.butter(2, 0.3), x, axis, padtype)
            same("sosfiltfilt", sos.astype("d"), x, axis, padtype)


def test_filters_of_odd_input():
    for name, arguments in (("lfilter", ([1.0], [0.0, 1.0], [1.0])), ("lfilter", ([1.0], [1.0, 0.5], np.ones(3), -1, np.ones(3))),
                            ("lfilter", (np.ones((2, 2)), [1.0], np.ones(3))), ("sosfilt", (np.ones((1, 5)), np.ones(3))),
                            ("sosfilt", (np.ones((1, 6)), np.ones(3), -1, np.ones((2, 2)))), ("filtfilt", ([1.0], [1.0, 0.5], np.ones(3))),
                            ("medfilt", (np.ones(5), 2)), ("firwin", (10, 1.5)), ("hilbert", (np.ones(3) * 1j,))):
        kinds = []
        for library in (scipy.signal, qvxs.signal):
            with pytest.raises(Exception) as caught:
                print(library.__name__, name, getattr(library, name)(*arguments))
            kinds.append(caught.type)
        assert issubclass(kinds[1], kinds[0]), (name, kinds)
    same("lfilter", [1.0], [1.0, 0.5], np.empty(0))
    same("lfilter", [1], [1.0, 0.5], np.arange(5))
    same("sosfilt", [[0, 1.0, 0, 1, 0, 0]], np.arange(5.0))
    same("lfilter", [1.0], [1.0, 0.5], np.arange(5, dtype=np.longdouble))


@pytest.mark.parametrize("dtype", [*TYPES, "i", "h", "l"])
@pytest.mark.parametrize("name", ["convolve", "fftconvolve", "oaconvolve", "correlate"])
def test_convolution(name, dtype):
    for n, m in ((1, 1), (5, 3), (3, 5), (100, 7), (700, 650), (3000, 64), (2, 900)):
        x, h = (noise(n, dtype, 1), noise(m, dtype, 2)) if dtype in TYPES else (np.arange(n).astype(dtype) % 97 - 40, np.arange(m).astype(dtype) % 13)
        for mode in ("full", "same", "valid"):
            same(name, x, h, mode, loose=5)
            same(name, x[::-1], h, mode, loose=5)
    same(name, noise((20, 30), "d", 1), noise((4, 5), "d", 2))
    if name != "correlate":
        same(name, noise(8, "d"), noise(9, "F"), loose=2.0**30)


def test_integers_convolve_exactly():
    x = np.full(3000, 2**15 - 1, np.int32)
    assert (qvxs.signal.convolve(x[:2000], x) == np.convolve(x[:2000].astype(np.int64), x).astype(np.int32)).all()
    big = np.full(10, 2**40, np.int64)
    assert (qvxs.signal.convolve(big, [1, 1]) == np.convolve(big, [1, 1])).all()


@pytest.mark.parametrize("dtype", TYPES)
@pytest.mark.parametrize("shape, axis", LAYOUTS)
def test_rates(dtype, shape, axis):
    x = noise(shape, dtype)
    for up, down in ((1, 1), (2, 1), (1, 3), (3, 2), (2, 5), (16, 15)):
        same("upfirdn", noise(17, "f" if dtype in "fF" else "d", 2), x, up, down, axis)
        for padtype in ("constant", "mean", "line") if dtype in "fd" else ("constant",):
            same("resample_poly", x, up, down, axis, padtype=padtype, loose=30)
    same("upfirdn", [1.0], x[..., ::2], 2, 3, axis)
    same("upfirdn", [1.0, 2, 3], x, 2, 3, axis, mode="symmetric")


@pytest.mark.parametrize("dtype", ["B", "h", "i", "f", "d", "l"])
def test_medians(dtype):
    x = (noise(300, "d") * 50).astype(dtype)
    for size in (None, 1, 3, 9, 31, 201):
        same("medfilt", x, size)
        same("medfilt", x[::-2], 3)
    same("medfilt", x.reshape(20, 15), 3)


def test_hilbert():
    for dtype in "fdh":
        for n in (1, 2, 5, 64, 99):
            same("hilbert", (noise((3, n)) * 100).astype(dtype))
            same("hilbert", (noise((n, 3)) * 100).astype(dtype), 20, 0)


def test_design():
    for order in (1, 2, 5, 8):
        for wn in (0.2, 0.5, 0.7):
            for btype in ("low", "highpass"):
                same("butter", order, wn, btype, loose=1e5)
                same("cheby1", order, 1.5, wn, btype, loose=1e5)
    same("butter", 3, 1000, fs=8000)
    same("butter", 3, [0.2, 0.4], "band")
    same("butter", 3, 0.2, output="sos")
    for taps in (5, 31, 32):
        for window in ("hamming", "hann", "bartlett", "blackman", ("kaiser", 5.0)):
            same("firwin", taps, 0.3, window=window, loose=100)
            same("firwin", taps + 1 - taps % 2, [0.3, 0.6], window=window, pass_zero=False, loose=100)
            same("firwin", taps + 1 - taps % 2, 0.3, window=window, pass_zero="highpass", scale=False, loose=100)
    for window in ("hann", "hamming", "bartlett", "boxcar"):
        for n in (1, 2, 3, 4, 5, 64, 65):
            same("get_window", window, n, loose=100)
            same("get_window", window, n, False, loose=100)


@pytest.mark.parametrize("dtype", "fd")
@pytest.mark.parametrize("name", ["welch", "spectrogram"])
def test_spectra(name, dtype):
    for x, named in ((noise(2000, dtype), {}), (noise(2000, dtype), {"nperseg": 99, "fs": 8000}), (noise((3, 1000), dtype), {"nfft": 300}),
                     (noise((1000, 3), dtype), {"axis": 0, "noverlap": 100}), (noise(2000, dtype), {"detrend": False, "scaling": "spectrum"}),
                     (noise(2000, dtype), {"detrend": "linear"}), (noise(2000, dtype), {"return_onesided": False}),
                     (noise(2000, dtype), {"window": noise(64, dtype)}), (noise(2000, dtype), {"window": ("kaiser", 3.0)})):
        same(name, x, loose=30, **named)


# ---- streams


@pytest.mark.parametrize("name", ["welch", "spectrogram"])
def test_spectra_of_short_signals(name):
    with pytest.warns(UserWarning, match="nperseg = 256 is greater than input length  = 99"):
        same(name, noise(99), loose=30)


def cuts(n, seed=3):
    rng = np.random.default_rng(seed)
    places = np.sort(rng.integers(0, n, 20))
    return list(zip([0, *places], [*places, n]))


@pytest.mark.parametrize("dtype", TYPES)
def test_streams_may_be_cut_anywhere(dtype):
    x = noise(3000, dtype)
    b, a = scipy.signal.butter(4, 0.3)
    sos = scipy.signal.butter(5, 0.3, output="sos")
    taps = noise(90, dtype, 2)
    tolerance = 1e-4 if dtype in "fF" else 1e-11
    for stream, whole in ((Fir(taps, dtype), qvxs.signal.lfilter(taps, [1], x)), (Iir(b, a, dtype), qvxs.signal.lfilter(b, a, x)),
                          (Sos(sos, dtype), qvxs.signal.sosfilt(sos, x))):
        for _ in range(2):
            pieces = [stream.process(x[first:past]) for first, past in cuts(len(x))]
            assert np.allclose(np.concatenate(pieces), whole, atol=tolerance) and pieces[0].dtype == np.dtype(dtype)
            stream.reset()
        stream.process(x[:1000])
        state = stream.state
        rest = stream.process(x[1000:])
        stream.reset()
        stream.state = state
        assert np.allclose(stream.process(x[1000:]), rest, atol=tolerance) and np.allclose(rest, whole[1000:], atol=tolerance)


@pytest.mark.parametrize("dtype", [*TYPES, np.int16])
def test_new_taps_leave_the_state(dtype):
    """As a filter that is made with the new taps and the old state."""
    x = (1000 * noise(300, "d")).astype(dtype)
    designs = [scipy.signal.butter(3, edge) for edge in (0.2, 0.4)]
    sections = [scipy.signal.butter(4, edge, output="sos") for edge in (0.2, 0.4)]
    for make, old, new in ((Fir, (noise(20, "d", 1),), (noise(20, "d", 2),)), (Iir, *designs), (Sos, (sections[0],), (sections[1],))):
        stream, other = make(*old, dtype), make(*new, dtype)
        stream.process(x)
        other.state = stream.state
        stream.set_taps(*new)
        assert np.array_equal(stream.process(x), other.process(x))
        with pytest.raises(ValueError):
            stream.set_taps(*(np.concatenate((part, part)) for part in new))


@pytest.mark.parametrize("dtype", TYPES)
@pytest.mark.parametrize("up, down", [(1, 1), (2, 1), (1, 4), (3, 2), (7, 16), (4, 6), (3, 3)])
def test_resampled_streams(dtype, up, down):
    taps = noise(40, dtype, 2)
    for n in (1, 3, 100, 1003):
        x = noise(n, dtype)
        stream = Resampler(up, down, taps, dtype)
        for _ in range(2):
            pieces = [stream.process(x[first:past]) for first, past in cuts(n)] + [stream.flush()]
            whole = scipy.signal.upfirdn(taps, x, up, down)
            joined = np.concatenate(pieces)
            assert joined.shape == whole.shape and np.allclose(joined, whole, atol=1e-3 if dtype in "fF" else 1e-11)


@pytest.mark.parametrize("dtype, full, near", [(np.float32, 1, 1e-2), (np.int16, 4000, 2)])
def test_lms_finds_an_echo(dtype, full, near):
    x = np.rint(full * noise(20000, "d")).astype(dtype) if full > 1 else noise(20000, "f")
    echo = np.float32([0.5, 0, -0.3, 0.1])
    lms = Lms(8, 0.005 / full**2, dtype)
    reference = scipy.signal.lfilter(echo, [1], x).astype(dtype)
    error = np.concatenate([reference[a:b] - lms.process(x[a:b], reference[a:b]) for a, b in cuts(len(x))])
    assert np.allclose(lms.taps[:4], echo, atol=1e-3) and np.abs(error[-100:]).max() < near and error.dtype == dtype


@pytest.mark.parametrize("dtype", [np.int16, np.int32])
def test_streams_of_integers(dtype):
    """Exact sums of doubles, rounded once: beside SciPy's in doubles, rounded and saturated."""
    x = np.random.default_rng(5).integers(-30000, 30000, 2000).astype(dtype)
    limits = np.iinfo(dtype)
    b, a = scipy.signal.butter(3, 0.2)
    sos = scipy.signal.butter(4, 0.2, output="sos")
    taps = scipy.signal.firwin(31, 0.3)
    for make, exact in ((lambda scale: Fir(taps, dtype, scale), scipy.signal.lfilter(taps, [1], x)), (lambda scale: Iir(b, a, dtype, scale), scipy.signal.lfilter(b, a, x)),
                        (lambda scale: Sos(sos, dtype, scale), scipy.signal.sosfilt(sos, x))):
        for scale in (0, 2, -4):
            stream = make(scale)
            ours = np.concatenate([stream.process(x[first:past]) for first, past in cuts(len(x))])
            theirs = np.clip(np.rint(exact * 2.0**-scale), limits.min, limits.max)
            assert ours.dtype == dtype and np.abs(ours - theirs).max() <= 1 and (ours == theirs).mean() > 0.999
    stream, whole = Resampler(3, 2, taps, dtype, 1), scipy.signal.upfirdn(taps, x.astype(float), 3, 2)
    ours = np.concatenate([stream.process(x[first:past]) for first, past in cuts(len(x))] + [stream.flush()])
    assert ours.dtype == dtype and np.abs(ours - np.rint(whole / 2)).max() <= 1 and (ours == np.rint(whole / 2)).mean() > 0.999
    pairs = np.zeros(4, qvxs.complex_int16)
    pairs["re"], pairs["im"] = (100, 0, 0, 0), (0, 0, 40, 0)
    result = Fir([1, 0.5j], qvxs.complex_int16).process(pairs)
    assert result["re"].tolist() == [100, 0, 0, -20] and result["im"].tolist() == [0, 50, 40, 0]


def test_sparse_streams():
    x = noise(500, "f")
    taps, places = np.float32([1, -0.5, 0.25]), [0, 7, 90]
    full, back = np.zeros(91), np.zeros(31)
    full[places] = taps
    back[[0, 4, 30]] = 1, -0.3, -0.2
    for stream, whole in ((SparseFir(taps, places), np.convolve(x, full)[:500]), (SparseIir(taps, places, [0.3, 0.2], [4, 30]), scipy.signal.lfilter(full, back, x))):
        for _ in range(2):
            assert np.allclose(np.concatenate([stream.process(x[first:past]) for first, past in cuts(500)]), whole, atol=1e-4)
            stream.reset()
    for wrong in (lambda: SparseFir([1, 2], [0]), lambda: SparseFir([], []), lambda: SparseFir([1, 2], [3, 3]), lambda: SparseIir([1], [0], [1], [0])):
        with pytest.raises((ValueError, qvxs.Error)):
            wrong()


@pytest.mark.parametrize("dtype", [np.float32, np.int16, np.uint8])
def test_filter_banks_give_the_signal_back(dtype):
    root = np.sqrt(3)
    low = np.array([1 + root, 3 + root, 3 - root, 1 - root]) / (4 * np.sqrt(2))
    high = low[::-1] * [1, -1, 1, -1]
    x = (noise(400, "d") * 30 + 100).astype(dtype)
    split, join = WaveletSplit(low, high, dtype=dtype), WaveletJoin(low[::-1], high[::-1], dtype=dtype)
    bands = split.process(x)
    assert np.allclose(bands[0], np.convolve(x, low)[:400:2], rtol=1e-4, atol=1e-3)
    back = join.process(*bands)
    assert back.dtype == dtype and np.allclose(back[3:], x[:-3], atol=1e-3)
    split.reset(), join.reset()
    split.process(x[:100])
    state = split.state
    split.reset()
    split.state = state
    again = split.process(x[100:])
    assert (again[0] == bands[0][50:]).all() and (again[1] == bands[1][50:]).all()
    with pytest.raises(ValueError):
        split.process(x[:3])


def test_one_stream_from_many_threads():
    fir, ones = Fir(np.ones(3)), np.ones(5000)
    fir.process(ones)
    with concurrent.futures.ThreadPoolExecutor(8) as pool:
        assert all((y == 3).all() for y in pool.map(fir.process, [ones] * 200))


def test_streams_refuse_what_they_are_not_for():
    for call in (lambda: Fir([1, 2], np.int8), lambda: Fir([1, 2], np.int16).process(np.ones(3)), lambda: pickle.dumps(Fir([1.0])), lambda: Lms(3, 0.1, np.int32), lambda: Lms(3, 0.1, np.int16).process(np.ones(2), np.ones(2)), lambda: Lms(3, 0.1).process(1j * np.ones(2), np.ones(2))):
        with pytest.raises(TypeError):
            call()
    for call in (lambda: Fir([1.0]).process(np.ones((2, 2))), lambda: Sos(np.ones((1, 5))), lambda: Iir([1.0], [1.0]),
                 lambda: Lms(3, 0.1).process(np.ones(2), np.ones(3))):
        with pytest.raises(ValueError):
            call()
    assert Fir([1.0, 2]).process([]).size == 0
