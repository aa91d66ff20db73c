"""Dask arrays in chunks beside the same in one piece."""

import doctest

import dask.array as da
import numpy as np
import pytest
import scipy.signal

import qvxs.dask
import qvxs.signal

CHUNKS = (1000, (300, 700), (1, 998, 1), (37,) * 27 + (1,))


def noise(shape, dtype="d"):
    return np.random.default_rng(1).standard_normal(shape).astype(dtype)


def same(ours, theirs):
    assert ours.shape == theirs.shape and ours.dtype == theirs.dtype
    made = ours.compute(scheduler="synchronous")
    assert made.dtype == theirs.dtype and made.shape == theirs.shape
    assert np.allclose(made, theirs, rtol=1e-9, atol=1e-4 * np.abs(theirs).max() if theirs.dtype == "f" else 1e-11)


@pytest.mark.parametrize("chunks, dtype", [*((chunks, "d") for chunks in CHUNKS), ((300, 700), "f")])
def test_any_cut_gives_the_same(chunks, dtype):
    chunks = (chunks,) if isinstance(chunks, tuple) else chunks
    x = noise(1000, dtype)
    cut = da.from_array(x, chunks=chunks)
    b, a = (taps.astype(dtype) for taps in scipy.signal.butter(3, 0.3))
    sos = scipy.signal.butter(4, 0.3, output="sos").astype(dtype)
    h = noise(40, dtype)
    same(qvxs.dask.lfilter(b, a, cut), qvxs.signal.lfilter(b, a, x))
    same(qvxs.dask.lfilter(h, [np.dtype(dtype).type(2)], cut), qvxs.signal.lfilter(h / 2, [np.dtype(dtype).type(1)], x))
    same(qvxs.dask.sosfilt(sos, cut), qvxs.signal.sosfilt(sos, x))
    for up, down in ((1, 1), (3, 1), (1, 3), (5, 7)):
        if up != down:
            same(qvxs.dask.resample_poly(cut, up, down), qvxs.signal.resample_poly(x, up, down))
        same(qvxs.dask.upfirdn(h, cut, up, down), qvxs.signal.upfirdn(h, x, up, down))
    for named in ({"nperseg": 64}, {"nperseg": 99, "noverlap": 98, "fs": 8000}, {"nperseg": 50, "noverlap": 3, "nfft": 75}):
        for ours, theirs in zip(qvxs.dask.spectrogram(cut, **named), qvxs.signal.spectrogram(x, **named)):
            same(da.asarray(ours), theirs)
        for ours, theirs in zip(qvxs.dask.welch(cut, **named), qvxs.signal.welch(x, **named)):
            same(da.asarray(ours), theirs)


def test_channels():
    x = noise((3, 1000))
    b, a = scipy.signal.butter(3, 0.3)
    sos = scipy.signal.butter(4, 0.3, output="sos")
    for chunks in ((2, 300), (1, 1000), (3, 77)):
        cut = da.from_array(x, chunks=chunks)
        same(qvxs.dask.lfilter(b, a, cut), qvxs.signal.lfilter(b, a, x))
        same(qvxs.dask.sosfilt(sos, cut.T, axis=0), qvxs.signal.sosfilt(sos, x.T, axis=0))
        same(qvxs.dask.resample_poly(cut, 3, 2, axis=1), qvxs.signal.resample_poly(x, 3, 2, axis=1))
        same(qvxs.dask.spectrogram(cut, nperseg=64)[2], qvxs.signal.spectrogram(x, nperseg=64)[2])


def test_statistics():
    for x in (noise(1000) + 1e9, noise((30, 40)), np.arange(100, dtype=np.int16), noise(500, "f")):
        cut = da.from_array(x, chunks=17)
        for ours, theirs in (("sum", np.sum), ("mean", np.mean), ("std", np.std), ("min", np.min), ("max", np.max), ("norm_l2", np.linalg.norm)):
            wide = x.astype("d").reshape(-1)
            assert np.isclose(float(getattr(qvxs.dask, ours)(cut)), theirs(wide), rtol=1e-5 if x.dtype != "d" else 1e-7, atol=1e-12), ours
        assert np.isclose(float(qvxs.dask.std(cut, 1)), x.astype("d").std(ddof=1))


def test_examples():
    assert doctest.testmod(qvxs.dask, optionflags=doctest.NORMALIZE_WHITESPACE).failed == 0
