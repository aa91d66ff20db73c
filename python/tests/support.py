"""Noise, arrays between unreadable pages, and calls of any export drawn from a seed."""

import ctypes
import math
import mmap
import re
import warnings

import numpy as np

from qvxs import raw

PAGE = mmap.PAGESIZE
LIBC = ctypes.CDLL(None, use_errno=True)

DTYPES = {"8u": "u1", "8s": "i1", "16u": "u2", "16s": "i2", "32u": "u4", "32s": "i4", "64u": "u8", "64s": "i8", "16f": "f2", "32f": "f4",
          "64f": "f8", "32fc": "c8", "64fc": "c16", "8sc": "i1", "16sc": "i2", "32sc": "i4", "64sc": "i8"}
PAIRS = ("8sc", "16sc", "32sc", "64sc")


def noise(shape, dtype, seed=1):
    rng = np.random.default_rng(seed)
    dtype = np.dtype(dtype)
    if dtype.kind in "iu":
        return rng.integers(np.iinfo(dtype).min, np.iinfo(dtype).max, shape, dtype, endpoint=True)
    x = rng.standard_normal(shape)
    return (x + 1j * rng.standard_normal(shape) if dtype.kind == "c" else x).astype(dtype)


class Memory:
    """Blocks whose neighbours on both sides may not be touched."""

    def __init__(self, blocks=40, size=1 << 19):
        self.blocks, self.next, self.size = [], 0, size
        for _ in range(blocks):
            whole = mmap.mmap(-1, size + 2 * PAGE)
            address = ctypes.addressof(ctypes.c_char.from_buffer(whole))
            for page in (address, address + PAGE + size):
                assert LIBC.mprotect(ctypes.c_void_p(page), PAGE, 0) == 0
            self.blocks.append(np.frombuffer(whole, np.uint8, size, PAGE))

    def array(self, count, element, at_end=True):
        dtype = np.dtype(DTYPES[element])
        pair = element in PAIRS
        size = count * dtype.itemsize * (2 if pair else 1)
        if size > self.size:
            raise MemoryError
        block = self.blocks[self.next % len(self.blocks)]
        self.next += 1
        flat = (block[self.size - size:] if at_end else block[:size]).view(dtype)
        if dtype.kind in "iu":
            flat[:] = np.arange(1, len(flat) + 1) % 100
        else:
            flat[:] = np.linspace(0.1, 0.9, max(len(flat), 1))[:len(flat)]
        return flat.reshape(count, 2) if pair else flat


class Parameter:
    def __init__(self, text):
        kind, self.name = re.fullmatch(r"\s*(.*?)\s*(\w+)", text).groups()
        self.is_const = kind.startswith("const")
        self.type = kind.removeprefix("const ").split("*")[0].strip().removesuffix(" const")
        self.stars = kind.count("*")
        self.is_record = "State" in kind or "Spec" in kind
        self.element = "32s" if self.type in ("int", "QvxRoundMode") else self.type.removeprefix("Qvx")


class Export:
    def __init__(self, name):
        self.name, self.function = name, getattr(raw, name)
        self.result, _, listed = re.fullmatch(r"(.*?) ?(\w+)\((.*)\)", self.function.__doc__).groups()
        self.parameters = [Parameter(p) for p in listed.split(", ") if p]
        first = self.parameters[0] if self.parameters else None
        self.makes = first.type if first and first.is_record and "Init" in name else None
        if self.makes and first.stars == 2:
            self.parameters.pop(0)
        if self.makes:  # in a block of bytes
            for p in self.parameters:
                if p.is_record:
                    p.is_record, p.element = False, "8u"


EXPORTS = {name: Export(name) for name in dir(raw) if name.startswith("qvxs")}
STATUS_EXPORTS = [e for e in EXPORTS.values() if e.result == "QvxStatus"]
MAKERS = {}
for one in STATUS_EXPORTS:
    if one.makes:
        MAKERS.setdefault(one.makes, []).append(one)
ALIASES = {"QvxsFIRState_32s": "QvxsFIRState64f_32s"}
for alias, name in ALIASES.items():
    MAKERS[name] = MAKERS.get(name, []) + MAKERS.pop(alias, [])

# They refuse the records of their own makers, as their header says.
TAKES_NOTHING = {"qvxsIIRSetTaps32s_16s", "qvxsIIRSetTaps32sc_16sc", "qvxsIIRSetTaps32sc_16sc32fc"}

SHORT = re.compile(r"\w+: (\w+) has (\d+) elements, the call needs (\d+)")


class Calls:
    """Draws calls; every vector is exactly as long as the extension demands."""

    def __init__(self, rng, memory, trace=lambda e, arguments: None):
        self.rng, self.memory, self.trace = rng, memory, trace

    def integer(self, p):
        if p.name == "nChannels":
            return 2
        if p.name.endswith("Phase"):
            return int(self.rng.integers(2))
        return int(self.rng.choice([1, 1, 2, 3, 4, 5, 8, 12, 16, 37, 0]))

    def number(self, p):
        if p.element in ("32f", "64f", "32fc", "64fc"):
            value = float(self.rng.choice([0.1, 0.2, 0.3, 0.45, 1.0, 2.5]))
            return complex(value, -value) if p.element.endswith("c") else value
        value = self.integer(p)
        return complex(value, value + 1) if p.element.endswith("c") else value

    def record(self, type_name):
        makers = MAKERS[ALIASES.get(type_name, type_name)]
        return self.valid(makers[self.rng.integers(len(makers))])[1]

    def argument(self, p, count=1):
        if p.stars == 0:
            return self.number(p)
        if p.is_record:
            return [self.record(p.type) for _ in range(2)] if p.stars == 2 else self.record(p.type)
        if p.stars == 2:
            return [self.memory.array(count, p.element) for _ in range(2)]
        return self.memory.array(count, p.element)

    def grown(self, e, arguments):
        """The outcome of a call once its vectors are long enough, and its arguments."""
        for _ in range(2 * len(arguments) + 2):
            self.trace(e, arguments)
            try:
                return e.function(*arguments), None
            except ValueError as error:
                short = SHORT.fullmatch(str(error))
                if not short:
                    return None, error
                index = next(i for i, p in enumerate(e.parameters) if p.name == short[1])
                p = e.parameters[index]
                if p.stars == 2 and isinstance(arguments[index], list) and len(arguments[index]) == int(short[2]) != 1:
                    return None, error
                at_end = bool(self.rng.integers(4))
                try:
                    arrays = [self.memory.array(int(short[3]), p.element, at_end) for _ in range(p.stars)]
                except MemoryError as lack:
                    return None, lack
                arguments[index] = arrays if p.stars == 2 else arrays[0]
            except (raw.Error, NotImplementedError, MemoryError) as error:
                return None, error
        raise AssertionError(f"{e.name} asks for more and more")

    def valid(self, e, tries=200):
        """Arguments that are taken, and the result; the last refusal otherwise."""
        error = None
        with warnings.catch_warnings():
            warnings.simplefilter("ignore", raw.Warning)
            for _ in range(tries):
                arguments = [self.argument(p) for p in e.parameters]
                result, error = self.grown(e, arguments)
                if error is None:
                    return arguments, result
        raise AssertionError(f"{e.name} took no call: {error}")

    # ---- what nobody should pass

    def hostile_integer(self):
        return int(self.rng.choice([-2**31, -1, 0, 1, 2, 3, 7, 1000, 65535, 2**30, 2**31 - 1, self.rng.integers(-2**31, 2**31)]))

    def hostile(self, p, old):
        """Another argument in the place of one that was taken."""
        choice = self.rng.integers(12)
        if p.stars == 0:
            if choice == 0:
                return [None, "1", 2**63, -2**64, b"", (1, 2, 3), object()][self.rng.integers(7)]
            if p.element in ("32f", "64f"):
                return [math.nan, math.inf, -math.inf, 0.0, -1e300, 1e38, -0.49][self.rng.integers(7)]
            return self.hostile_integer()
        if choice == 0:
            return [None, 1, "array", [], (), [None], np.float32(1)][self.rng.integers(7)]
        if p.is_record:
            types = list(MAKERS)
            other = self.record(p.type if choice < 7 else types[self.rng.integers(len(types))])
            return [old[0], old[0]] if p.stars == 2 and choice < 6 else [other] if p.stars == 2 else other
        if p.stars == 2:
            return [[], old[:1], [old[0], old[1][:-1]], [old[0], None], 5][self.rng.integers(5)]
        if choice == 1:
            return old.astype(self.rng.choice(["f4", "f8", "i2", "u1", "c8", ">f4", "O"]))
        if choice == 2:
            old = old.copy()
            old.flags.writeable = False
            return old
        if choice == 3:
            return np.repeat(old, 2, axis=0)[::2]
        if choice == 4:
            return old[:0]
        if choice == 5:
            flat = np.frombuffer(b"\xa5" * (old.nbytes + 1), np.uint8)[1:]
            return flat.view(old.dtype).reshape(old.shape)
        if choice < 9:  # contents
            if old.dtype.kind in "iu":
                old[...] = self.rng.integers(0, 256, old.nbytes, np.uint8).view(old.dtype).reshape(old.shape)
            else:
                old[...] = self.rng.choice([math.nan, math.inf, -math.inf, 1e38, -3.0], old.shape)
            return old
        return old[:-1]
