"""Filters, resamples and measures a recording that is longer than the memory allowed, on a cluster of dask.

    long_recording.py                           makes a recording of an hour and works on it, two workers of 300 MB on this machine
    long_recording.py recording.raw --memory 400MB
    long_recording.py recording.raw --address tcp://scheduler:8786

Raw files of 16-bit samples at 48 kHz. The share of time in our calls is what the workers spent in them, of what they spent in tasks.
"""

import argparse
import os
import tempfile
import threading
import time

import dask
import dask.array as da
import distributed
import numpy as np

import qvxs
import qvxs.dask
import qvxs.signal

RATE = 48000
CALLS = ("lfilter", "sosfilt", "upfirdn", "spectrogram")


def make(path, minutes):
    """A tone that comes and goes, in noise; minute by minute, so that it may be of any length."""
    with open(path, "wb") as file:
        for minute in range(minutes):
            x = qvxs.gauss(60 * RATE, 0, 0.02, seed=minute) + np.float32(0.5 * (minute % 2)) * qvxs.tone(60 * RATE, 1, 440 / RATE)
            qvxs.convert(x, np.int16, scale=-15).tofile(file)


def read(path, first, count):
    return qvxs.convert(np.fromfile(path, np.int16, count, offset=2 * first), np.float32, scale=15)


def recording(path, chunk):
    """The file as a dask array; chunks are read when they are needed, by the worker that needs them."""
    size = os.path.getsize(path) // 2
    parts = [(first, min(chunk, size - first)) for first in range(0, size, chunk)]
    return da.concatenate([da.from_delayed(dask.delayed(read, pure=True)(path, *part), part[1:], np.float32) for part in parts])


class Clock(distributed.WorkerPlugin):
    """Adds up on each worker the seconds in our calls and those in tasks."""

    name = "clock"

    def setup(self, worker):
        self.calls = self.tasks = 0.0
        self.started = {}
        self.lock = threading.Lock()
        worker.clock = self
        self.originals = {name: getattr(qvxs.signal, name) for name in CALLS}
        for name, call in self.originals.items():
            setattr(qvxs.signal, name, self.timed(call))

    def teardown(self, worker):
        for name, call in self.originals.items():
            setattr(qvxs.signal, name, call)

    def timed(self, call):
        def public(*arguments, **named):
            start = time.perf_counter()
            try:
                return call(*arguments, **named)
            finally:
                with self.lock:
                    self.calls += time.perf_counter() - start

        return public

    def transition(self, key, start, finish, **_):
        with self.lock:
            if finish == "executing":
                self.started[key] = time.perf_counter()
            elif start == "executing":
                self.tasks += time.perf_counter() - self.started.pop(key, time.perf_counter())


def spent(dask_worker):
    return dask_worker.clock.calls, dask_worker.clock.tasks


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("recording", nargs="?")
    parser.add_argument("--address", help="of a scheduler; workers must see the file and have this package")
    parser.add_argument("--memory", default="300MB", help="of each of the two local workers")
    parser.add_argument("--minutes", type=int, default=60, help="of the recording that is made")
    parser.add_argument("--chunk", type=int, default=60 * RATE, help="samples")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        path = arguments.recording or os.path.join(folder, "made.raw")
        if not arguments.recording:
            make(path, arguments.minutes)
        cluster = arguments.address or distributed.LocalCluster(
            n_workers=2, threads_per_worker=1, memory_limit=arguments.memory, dashboard_address=None, processes=True)
        with distributed.Client(cluster) as client:
            work(client, os.path.abspath(path), arguments.chunk)
        if not arguments.address:
            cluster.close()


def work(client, path, chunk):
    client.register_worker_plugin(Clock())
    x = recording(path, chunk)
    print(f"{x.size / RATE / 60:.1f} minutes, {x.nbytes / 1e6:.0f} MB as floats, in {x.npartitions} chunks")
    sections = qvxs.signal.butter(4, [300, 3400], "bandpass", fs=RATE, output="sos").astype(np.float32)
    speech = qvxs.dask.sosfilt(sections, x)
    slow = qvxs.dask.resample_poly(speech, 1, 6)
    frequencies, density = qvxs.dask.welch(slow, RATE / 6, nperseg=4096)
    results = {"density": density, "deviation": qvxs.dask.std(slow), "peak": qvxs.dask.max(slow)}
    start = time.perf_counter()
    futures = client.compute(list(results.values()))
    distributed.progress(futures, notebook=False)
    made = dict(zip(results, client.gather(futures)))
    print(f"\n{time.perf_counter() - start:.1f} s; the strongest frequency is {frequencies[made['density'].argmax()]:.0f} Hz, "
          f"the deviation {float(made['deviation']):.4f}, the peak {float(made['peak']):.3f}")
    calls, tasks = np.sum(list(client.run(spent).values()), axis=0)
    print(f"in our calls {calls:.2f} s of the {tasks:.2f} s that the workers spent in tasks: {100 * calls / max(tasks, 1e-9):.0f} %")


if __name__ == "__main__":
    main()
