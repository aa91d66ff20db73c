"""Calls with wrong arguments, in a process of their own: SEED ROUNDS. A fault ends it; the last line of the log is the call."""

import faulthandler
import os
import resource
import sys
import warnings

import numpy as np

from support import STATUS_EXPORTS, TAKES_NOTHING, Calls, Memory
from qvxs import raw

EXPECTED = (TypeError, ValueError, OverflowError, NotImplementedError, MemoryError, raw.Error)


def limit_memory(more):
    with open("/proc/self/statm") as sizes:
        now = int(sizes.read().split()[0]) * resource.getpagesize()
    resource.setrlimit(resource.RLIMIT_AS, (now + more, now + more))


def trace(e, arguments):
    """The last call, at the start of the log."""
    text = f"{e.name} {[(a.dtype.str, a.shape) if hasattr(a, 'dtype') else a for a in arguments]}"
    os.pwrite(2, text[:500].ljust(500).encode() + b"\n", 0)


def main():
    seed, rounds = int(sys.argv[1]), int(sys.argv[2])
    os.lseek(2, 501, os.SEEK_SET)
    faulthandler.enable()
    warnings.simplefilter("ignore")
    calls = Calls(np.random.default_rng(seed), Memory(), trace)
    if "--unlimited" not in sys.argv:
        limit_memory(1 << 28)
    made = refused = 0
    for e in STATUS_EXPORTS:
        if not e.parameters or e.name in TAKES_NOTHING:
            continue
        for _ in range(rounds):
            arguments, _ = calls.valid(e)
            for _ in range(int(calls.rng.choice([1, 1, 2, 2 * len(arguments)]))):
                i = int(calls.rng.integers(len(arguments)))
                try:
                    arguments[i] = calls.hostile(e.parameters[i], arguments[i])
                except (TypeError, AttributeError, IndexError, OverflowError, ValueError, RuntimeError):
                    pass  # spoilt twice
            trace(e, arguments)
            try:
                e.function(*arguments)
                made += 1
            except EXPECTED:
                refused += 1
    print(made, refused)


if __name__ == "__main__":
    main()
