"""Transforms beside NumPy and SciPy, as a backend, from threads and processes."""

import concurrent.futures
import multiprocessing

import numpy as np
import pytest
import scipy.fft

import qvxs.fft

LENGTHS = (1, 2, 3, 5, 8, 12, 64, 97, 1000, 1331)
SHAPES = ((None, (), -1), ((3,), (), -1), ((), (4,), 0), ((2,), (3,), 1))
PAIRS = ("fft", "ifft", "rfft", "irfft", "hfft", "ihfft", "dct", "idct", "dst", "idst")
EPSILON = {"f": 2.0**-23, "d": 2.0**-52}


def noise(shape, dtype, seed=1):
    rng = np.random.default_rng(seed)
    x = 100 * rng.standard_normal(shape)
    if np.dtype(dtype).kind == "c":
        x = x + 100j * rng.standard_normal(shape)
    return x.astype(dtype)


def agree(ours, theirs, what=""):
    assert ours.dtype == theirs.dtype and ours.shape == theirs.shape, what
    if theirs.size:
        size = np.linalg.norm(theirs.reshape(-1).astype("D"))
        assert np.linalg.norm((ours - theirs).reshape(-1)) <= 8 * EPSILON[theirs.real.dtype.char] * size, what


@pytest.mark.parametrize("dtype", ["f", "d", "F", "D", "e", "h", "B", ">f8", ">c8"])
def test_every_transform_at_every_length_and_axis(dtype):
    for name in PAIRS:
        if name in ("rfft", "ihfft") and np.dtype(dtype).kind == "c":
            continue
        for n in LENGTHS:
            if n == 1 and name in ("irfft", "hfft"):
                continue
            for before, after, axis in SHAPES:
                x = noise((before or ()) + (n,) + after, dtype)
                for norm in (None, "ortho", "forward"):
                    for kinds in ({"type": 2}, {"type": 3}) if name[-3:] in ("dct", "dst") else ({},):
                        agree(getattr(qvxs.fft, name)(x, axis=axis, norm=norm, **kinds),
                              getattr(scipy.fft, name)(x, axis=axis, norm=norm, **kinds), (name, n, x.shape, norm, kinds))


@pytest.mark.parametrize("name", ["fft", "ifft", "rfft", "irfft", "hfft", "ihfft", "dct", "dst", "idst"])
def test_cut_and_padded(name):
    for n in (1, 4, 7, 16, 33):
        for x in (noise(9, "d"), noise((9, 4), "f")[::2].T, noise((3, 9), "d")[:, ::-1]):
            before = x.copy()
            agree(getattr(qvxs.fft, name)(x, n=n), getattr(scipy.fft, name)(x, n=n), n)
            assert (x == before).all()


@pytest.mark.parametrize("name", ["dctn", "idctn", "dstn", "idstn"])
def test_cosines_and_sines_over_several_axes(name):
    x = noise((4, 5, 6), "d")
    for kind in (1, 2, 3, 4):
        for named in ({}, {"axes": 1}, {"axes": (0, -1), "s": (3, 9)}, {"s": (7, 2)}, {"axes": (), "s": ()}, {"norm": "ortho", "orthogonalize": False}, {"norm": "forward"}):
            agree(getattr(qvxs.fft, name)(x, kind, **named), getattr(scipy.fft, name)(x, kind, **named), (kind, named))
    with scipy.fft.set_backend(qvxs.fft, only=True):
        agree(getattr(scipy.fft, name)(x.astype("f")), getattr(qvxs.fft, name)(x.astype("f")))


@pytest.mark.parametrize("name", ["fft2", "ifft2", "fftn", "ifftn", "rfft2", "irfft2", "rfftn", "irfftn"])
def test_several_axes(name):
    x = noise((4, 5, 6), "d" if name.startswith("r") else "D")
    for arguments in ({}, {"axes": (0, 2)}, {"s": (3, 8), "axes": (-1, 0)}, {"s": (7, 4)}, {"norm": "ortho"}):
        if name.endswith("2") and "s" in arguments and "axes" not in arguments:
            arguments = {"s": (7, 4)}
        agree(getattr(qvxs.fft, name)(x, **arguments), getattr(scipy.fft, name)(x, **arguments), arguments)
    agree(getattr(qvxs.fft, name)(np.asfortranarray(x)), getattr(scipy.fft, name)(x))


def test_of_what_is_wrong():
    for call, kind in ((lambda f: f.fft([]), ValueError), (lambda f: f.fft([1, 2], n=0), ValueError), (lambda f: f.fft([1], norm="x"), ValueError),
                       (lambda f: f.rfft([1j]), TypeError), (lambda f: f.fft(np.ones((2, 2)), axis=2), (IndexError, ValueError)),
                       (lambda f: f.fft([1, 2], workers=0), ValueError), (lambda f: f.fftn(np.ones((2, 2)), axes=(0, 0)), ValueError),
                       (lambda f: f.fftn(np.ones(2), s=(2, 2)), ValueError), (lambda f: f.fft([1.0], plan=1), NotImplementedError),
                       (lambda f: f.irfft([1.0]), ValueError)):
        for library in (scipy.fft, qvxs.fft):
            with pytest.raises(kind):
                call(library)


def test_overwrite_is_a_permission():
    x = noise(64, "D")
    agree(qvxs.fft.fft(x.copy(), overwrite_x=True), scipy.fft.fft(x))
    fixed = x.copy()
    fixed.flags.writeable = False
    agree(qvxs.fft.fft(fixed, overwrite_x=True), scipy.fft.fft(x))


def test_what_is_left_to_scipy():
    x = noise(12, "d")
    agree(qvxs.fft.dct(x, 1), scipy.fft.dct(x, 1))
    wide = qvxs.fft.fft(x.astype(np.longdouble))
    assert wide.dtype == np.clongdouble and np.allclose(wide.astype(complex), np.fft.fft(x))
    with scipy.fft.set_backend(qvxs.fft):
        agree(scipy.fft.dst(x), scipy.fft.dst(x))
        assert scipy.fft.fft(x.astype(np.longdouble)).dtype == np.clongdouble
    with scipy.fft.set_backend(qvxs.fft, only=True):
        agree(qvxs.fft.dct(x, 1), qvxs.fft.dct(x, 1, workers=1))


def test_what_is_left_to_scipy_changes_no_backend(monkeypatch):
    # Called from four threads, 20000 times by each, that of SciPy 1.10 ended 8 processes of 12.
    monkeypatch.setattr(scipy.fft, "set_backend", None)
    x = noise(12, "d")
    agree(qvxs.fft.dct(x, 1), scipy.fft.dct(x, 1))


def test_as_a_backend():
    x = noise((3, 100), "d")
    expected = scipy.fft.rfft(x)
    before = qvxs.transforms.record_for.cache_info().misses + qvxs.transforms.record_for.cache_info().hits
    with scipy.fft.set_backend(qvxs.fft, only=True):
        agree(scipy.fft.rfft(x), expected)
    assert qvxs.transforms.record_for.cache_info().misses + qvxs.transforms.record_for.cache_info().hits > before


def test_one_transform_from_many_threads():
    x = noise((40, 777), "D")
    expected = [qvxs.fft.fft(row) for row in x]
    with concurrent.futures.ThreadPoolExecutor(8) as pool:
        for _ in range(20):
            for ours, theirs in zip(pool.map(qvxs.fft.fft, x), expected):
                assert (ours == theirs).all()
    for workers in (1, 2, -1):
        assert (qvxs.fft.fft(x, workers=workers) == np.array(expected)).all()


def test_more_lengths_than_records_are_kept():
    for n in range(1, 100):
        x = noise(n, "d")
        agree(qvxs.fft.rfft(x), scipy.fft.rfft(x))
    assert qvxs.transforms.record_for.cache_info().currsize <= 32


def test_a_child_of_a_process_with_workers():
    x = noise((8, 64), "d")
    expected = qvxs.fft.rfft(x, workers=2)
    with multiprocessing.get_context("fork").Pool(2) as pool:
        for ours in pool.map(_with_workers, [x] * 4):
            assert (ours == expected).all()


def _with_workers(x):
    return qvxs.fft.rfft(x, workers=2)
