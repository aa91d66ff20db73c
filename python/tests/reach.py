"""Prints the stems of the exports that the upper level looks up while it is imported and its examples run: for test_stems.py."""

import doctest
import importlib.util
import pathlib
import re
import sys
import types

# The extension under its own name, and in its place a module that notes what is asked of it.
found = next(pathlib.Path(folder, "qvxs") for folder in sys.path if list(pathlib.Path(folder, "qvxs").glob("raw.*.so")))
spec = importlib.util.spec_from_file_location("qvxs.raw", next(found.glob("raw.*.so")))
extension = importlib.util.module_from_spec(spec)
spec.loader.exec_module(extension)
asked = set()


class Noted(types.ModuleType):
    def __getattr__(self, name):
        value = getattr(extension, name)
        asked.add(name)
        return value

    def __dir__(self):
        return dir(extension)


sys.modules["qvxs.raw"] = Noted("qvxs.raw")
for name in sorted(path.stem for path in found.glob("[a-z]*.py") if path.stem != "dask"):
    doctest.testmod(importlib.import_module("qvxs." + name), optionflags=doctest.NORMALIZE_WHITESPACE, report=False)

# What the examples leave out.
import numpy as np  # noqa: E402

import qvxs  # noqa: E402
from qvxs import signal, spectra  # noqa: E402

x = np.arange(1.0, 9)
for norm in ("biased", "unbiased"):
    qvxs.autocorrelate(x, 2, norm)
for layout in ("perm", "pack"):
    spectra.expand(spectra.inverse(spectra.multiply(spectra.forward(x, layout), x, layout), layout), layout)
spectra.multiply(x, x, conjugate=True)
signal.convolve(x, 1j * x), signal.hilbert(x.astype("f")), signal.butter(2, 0.3, "high")
for kind in ("bandpass", "bandstop"):
    signal.firwin(31, [0.2, 0.4], pass_zero=kind)
signal.firwin(31, 0.2, pass_zero="highpass")
qvxs.join_channels(x.reshape(2, 4), scaled=False), qvxs.find_nearest(np.uint16(3), np.uint16([2, 5]))
qvxs.uniform(3, dtype="d"), qvxs.gauss(3, dtype="d")
print("\n".join(sorted({re.split(r"_(?=\d+[suf])", export[4:])[0] for export in asked if export.startswith("qvxs")})))
