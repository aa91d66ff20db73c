"""The exports by stem: what they take and give, read from the table of `qvxs.raw`."""

import re
from typing import NamedTuple

import numpy as np

from . import raw

# Complex integers as NumPy has no type for them: fields re and im.
complex_int8, complex_int16, complex_int32, complex_int64 = (
    np.dtype([("re", f"i{size}"), ("im", f"i{size}")]) for size in (1, 2, 4, 8))

DTYPES = {
    "Qvx8u": np.dtype(np.uint8), "Qvx8s": np.dtype(np.int8), "Qvx16u": np.dtype(np.uint16), "Qvx16s": np.dtype(np.int16),
    "Qvx32u": np.dtype(np.uint32), "Qvx32s": np.dtype(np.int32), "Qvx64u": np.dtype(np.uint64), "Qvx64s": np.dtype(np.int64),
    "Qvx16f": np.dtype(np.float16), "Qvx32f": np.dtype(np.float32), "Qvx64f": np.dtype(np.float64),
    "Qvx32fc": np.dtype(np.complex64), "Qvx64fc": np.dtype(np.complex128), "int": np.dtype(np.int32),
    "Qvx8sc": complex_int8, "Qvx16sc": complex_int16, "Qvx32sc": complex_int32, "Qvx64sc": complex_int64,
}
TAGS = {dtype: name[3:] for name, dtype in DTYPES.items() if name != "int"}


_ROUNDING = {"zero": 0, "even": 1, "away": 2}


def round_mode(rounding):
    """The library's number for a rounding."""
    if rounding not in _ROUNDING:
        raise ValueError(f'a rounding is "even", "zero" or "away", not {rounding!r}')
    return _ROUNDING[rounding]


class Form(NamedTuple):
    """One export: its function, the names of its parameters, the types of its first source and of what it writes."""

    name: str
    call: object
    parameters: tuple
    source: np.dtype
    second: np.dtype
    target: np.dtype
    types: dict  # the type of each parameter, for pointers that of the elements
    sources: tuple  # the parameters that are read, then those that are only written
    results: tuple

    @property
    def scaled(self):
        return "scaleFactor" in self.parameters or "magnScaleFactor" in self.parameters

    def __call__(self, **values):
        return self.call(*[values[parameter] for parameter in self.parameters])


def _form(name):
    call = getattr(raw, name)
    pairs = re.findall(r"(\w[\w ]*[\w*]) (\w+)[,)]", call.__doc__)  # from "QvxStatus qvxsAbs_32f(const Qvx32f* pSrc, ...)"
    types = {parameter: DTYPES.get(re.sub(r"const |\W", "", kind)) for kind, parameter in pairs}
    read = tuple(parameter for kind, parameter in pairs if "*" in kind and kind.startswith("const "))
    written = tuple(parameter for kind, parameter in pairs if "*" in kind and parameter not in read)
    both = tuple(parameter for parameter in written if parameter.startswith("pSrcDst"))
    dtypes = [types[parameter] for parameter in read]
    return Form(name, call, tuple(types), dtypes[0] if read else None, dtypes[1] if len(read) > 1 else None,
                types[written[0]] if written else None, types, read + both, tuple(parameter for parameter in written if parameter not in both))


def forms(stem, tail=""):
    """All forms of a stem that are not in place, plain ones before scaled ones: `forms("Threshold_LT")`. tail: of the names, "_I"."""
    found = []
    for name in dir(raw):
        if re.fullmatch(rf"qvxs{stem}_?(?:[0-9]+[suf]c?)+{tail}(?:_Sfs)?", name):
            found.append(_form(name))
    if not found:
        raise LookupError(f"there is no export of {stem}")
    return sorted(found, key=lambda form: form.scaled)
