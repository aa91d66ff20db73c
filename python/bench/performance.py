"""Times of calls from Python beside NumPy, SciPy and pyFFTW, in one run; the page docs/performance-python.md.

usage: performance.py OUTPUT
"""

import math
import platform
import re
import sys
import time

import numpy as np
import pyfftw
import scipy.fft
import scipy.signal

import qvxs
import qvxs.forms
import qvxs.signal

ROUNDS = 7


def seconds(call, least=0.004):
    """The least time of a call, over rounds of at least so many seconds."""
    call()
    count, spent = 1, 0.0
    while True:
        start = time.perf_counter()
        for _ in range(count):
            call()
        spent = time.perf_counter() - start
        if spent >= least:
            return spent / count
        count = max(count + 1, int(count * least / max(spent, 1e-7)))


def measure(calls):
    """The least time of each call in seconds; the calls take turns, so that noise affects all alike."""
    best = [math.inf] * len(calls)
    for _ in range(ROUNDS):
        for i, call in enumerate(calls):
            best[i] = min(best[i], seconds(call))
    return best


def noise(shape, dtype):
    rng = np.random.default_rng(1)
    x = rng.standard_normal(shape)
    return (x + 1j * rng.standard_normal(shape) if np.dtype(dtype).kind == "c" else x).astype(dtype)


def plan(x, real):
    """A planned transform of pyFFTW, with its own arrays, so that calls allocate nothing."""
    source = pyfftw.empty_aligned(x.shape, x.dtype)
    last = x.shape[-1] // 2 + 1 if real else x.shape[-1]
    target = pyfftw.empty_aligned(x.shape[:-1] + (last,), np.result_type(x.dtype, np.complex64))
    planned = pyfftw.FFTW(source, target, flags=("FFTW_MEASURE",), planning_timelimit=2.0)
    source[:] = x
    return planned.execute


def recorded(x, real):
    """The same with a record of this library."""
    tag = qvxs.forms.TAGS[x.dtype]
    n = x.shape[-1]
    kind, call = ("R_" + tag, "RToCCS_" + tag) if real else ("C_" + tag, "CToC_" + tag)
    record, size = qvxs.transforms.record_for("DFT", kind, n, 2)
    target = np.empty(x.shape[:-1] + (2 * (n // 2 + 1) if real else n,), x.dtype)
    export, work = getattr(qvxs.raw, "qvxsDFTFwd_" + call), np.empty(size, np.uint8) if size else None
    if x.ndim == 1:
        return lambda: export(x, target, record, work)
    return lambda: qvxs.raw.rows(export, x, target, record, work)


def transforms():
    for name, dtype in (("fft", "F"), ("fft", "D"), ("rfft", "f"), ("rfft", "d")):
        for shape in ((64,), (256,), (1000,), (1024,), (4096,), (4099,), (15625,), (16384,), (65536,), (100003,), (2**20,), (1000, 64), (256, 1024)):
            x = noise(shape, dtype)
            yield (f"{name} {np.dtype(dtype)}", " x ".join(map(str, shape)), x.size,
                   {"record": recorded(x, name == "rfft"), "ours": lambda: getattr(qvxs.fft, name)(x), "NumPy": lambda: getattr(np.fft, name)(x),
                    "SciPy": lambda: getattr(scipy.fft, name)(x), "pyFFTW": plan(x, name == "rfft")})


def filters():
    b, a = scipy.signal.butter(4, 0.2)
    sos = scipy.signal.butter(8, 0.2, output="sos")
    for n in (1000, 30000, 1000000):
        for dtype in "fd":
            x = noise(n, dtype)
            h = scipy.signal.firwin(63, 0.3).astype(dtype)
            typed = [taps.astype(dtype) for taps in (b, a, sos)]
            one = np.ones(1, dtype)
            ours, theirs = qvxs.signal, scipy.signal
            for name, call in (("lfilter, order 4", lambda s: s.lfilter(typed[0], typed[1], x)), ("lfilter, 63 taps", lambda s: s.lfilter(h, one, x)),
                               ("sosfilt, 4 sections", lambda s: s.sosfilt(typed[2], x)), ("filtfilt, order 4", lambda s: s.filtfilt(b, a, x)),
                               ("upfirdn 3/2, 63 taps", lambda s: s.upfirdn(h, x, 3, 2)), ("resample_poly 160/147", lambda s: s.resample_poly(x, 160, 147)),
                               ("medfilt 5", lambda s: s.medfilt(x, 5)), ("medfilt 31", lambda s: s.medfilt(x, 31)),
                               ("convolve, 63", lambda s: s.convolve(x, h)), ("convolve, itself", lambda s: s.convolve(x[:30000], x[:30000])),
                               ("hilbert", lambda s: s.hilbert(x)), ("spectrogram", lambda s: s.spectrogram(x)), ("welch", lambda s: s.welch(x))):
                if name.startswith("medfilt") and n > 30000 or name == "convolve, itself" and n > 30000:
                    continue
                yield f"{name} {np.dtype(dtype)}", str(n), n, {"ours": lambda call=call: call(ours), "SciPy": lambda call=call: call(theirs)}


def vectors():
    for n in (16, 1000, 30000, 1000000):
        for dtype in "fd":
            x, y = noise(n, dtype), noise(n, dtype)[::-1].copy()
            positive = np.abs(x)
            for name, ours, theirs in (("add", lambda: qvxs.add(x, y), lambda: np.add(x, y)), ("multiply", lambda: qvxs.multiply(x, y), lambda: np.multiply(x, y)),
                                       ("exp", lambda: qvxs.exp(x), lambda: np.exp(x)), ("log", lambda: qvxs.log(positive), lambda: np.log(positive)),
                                       ("sqrt", lambda: qvxs.sqrt(positive), lambda: np.sqrt(positive)), ("sort", lambda: qvxs.sort(x), lambda: np.sort(x)),
                                       ("sum", lambda: qvxs.sum(x), lambda: np.sum(x)), ("std", lambda: qvxs.std(x), lambda: np.std(x))):
                yield f"{name} {np.dtype(dtype)}", str(n), n, {"ours": ours, "NumPy": theirs}
        a, b = np.arange(n).astype(np.int16), np.arange(n)[::-1].astype(np.int16)
        yield "add int16", str(n), n, {"ours": lambda: qvxs.add(a, b), "NumPy": lambda: np.add(a, b)}


def shown(time_):
    return f"{time_ * 1e6:.3g}"


def section(title, rows, peers):
    own = "us | by record, us" if "pyFFTW" in peers else "us"
    columns = f"| Call | Elements | {own} | {' | '.join(peers)} |"
    lines = [f"## {title}", "", columns, "| --- " * (columns.count("|") - 1) + "|"]
    ratios, slower = {peer: [] for peer in peers}, []
    for name, shape, size, calls in rows:
        times = dict(zip(calls, measure(list(calls.values()))))
        cells = []
        for peer in peers:
            if peer not in times:
                cells.append("")
                continue
            ratio = times[peer] / times["record" if peer == "pyFFTW" else "ours"]
            cells.append(f"{ratio:.2f}")
            if size >= 1000:
                ratios[peer].append(ratio)
                if ratio < 0.98:
                    slower.append(f"{name} of {shape} beside {peer} ({ratio:.2f})")
        ours = " | ".join(shown(times[key]) for key in ("ours", "record") if key in times)
        lines.append(f"| {name} | {shape} | {ours} | {' | '.join(cells)} |")
        print(lines[-1], flush=True)
    means = [f"{math.exp(sum(map(math.log, all_)) / len(all_)):.2f} beside {peer}" for peer, all_ in ratios.items() if all_]
    lines += ["", f"The geometric mean from 1000 elements on: {', '.join(means)}.", "Slower: " + ("; ".join(slower) or "none") + ".", ""]
    return lines


def main(output):
    library = ", ".join(f"{name} {module.__version__}" for name, module in (("NumPy", np), ("SciPy", scipy), ("pyFFTW", pyfftw)))
    lines = ["# Performance from Python", "",
             "Written by `./run bench --python`. Columns after the time of our call are the peer's time over ours: above 1 we are faster. The least of",
             f"{ROUNDS} rounds, which go round the peers; one thread of each peer, our library's own two where it divides a vector.",
             "pyFFTW is a planned transform (FFTW_MEASURE) between arrays of its own, beside a call of ours by its record (qvxs.raw) between arrays of",
             "its own, too: neither allocates anything. The others make their result.", "",
             f"Python {platform.python_version()}, {library}; {processor()}. A ratio within 2 % of 1 is a tie; where other work ran beside it, cells vary by more.", ""]
    lines += section("Transforms", transforms(), ["NumPy", "SciPy", "pyFFTW"])
    lines += section("Filters", filters(), ["SciPy"])
    lines += section("Vectors", vectors(), ["NumPy"])
    with open(output, "w") as page:
        page.write("\n".join(lines).rstrip() + "\n")


def processor():
    with open("/proc/cpuinfo") as info:
        told = dict(re.split(r"\s*:\s*", line.strip(), maxsplit=1) for line in info if ":" in line)
    return f"a processor of family {told['cpu family']}, model {told['model']}, variant {qvxs.raw.qvxsGetLibVersion()['cpuTag']}"


if __name__ == "__main__":
    main(sys.argv[1])
