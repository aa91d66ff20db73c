"""SciPy's own tests with our functions in the place of its own: those of scipy.fft with our backend, those of scipy.signal patched.

usage: scipy_suite.py [fft|signal] [pytest's arguments]
"""

import os
import sys

import pytest
import scipy.fft
import scipy.signal
from scipy.fft._pocketfft.tests import test_basic, test_real_transforms

import qvxs.fft
import qvxs.signal

FFT = ("fft/tests", "fft/_pocketfft/tests")
SIGNAL = ("signal/tests/test_signaltools.py", "signal/tests/test_upfirdn.py", "signal/tests/test_spectral.py",
          "signal/tests/test_fir_filter_design.py", "signal/tests/test_filter_design.py", "signal/tests/test_windows.py",
          "signal/tests/test_result_type.py")


def main(arguments):
    which = arguments.pop(0) if arguments and arguments[0] in ("fft", "signal") else None
    root = os.path.dirname(scipy.__file__)
    files = []
    if which in (None, "fft"):
        scipy.fft.set_global_backend(qvxs.fft)
        scipy.fft.register_backend("scipy")
        for module in (test_basic, test_real_transforms):  # they call pocketfft past the backends
            for name in set(qvxs.fft.__all__) & set(vars(module)):
                setattr(module, name, getattr(qvxs.fft, name))
        precisions = test_real_transforms.dec_map  # by function
        for transform, *rest in list(precisions):
            ours = getattr(qvxs.fft, transform.__name__, transform)
            precisions[(ours, *rest)] = precisions[(transform, *rest)]
        files += FFT
    if which in (None, "signal"):
        for name in qvxs.signal.COVERED:
            setattr(scipy.signal, name, getattr(qvxs.signal, name))
        files += SIGNAL
    return pytest.main(["-q", "-p", "no:cacheprovider", "--tb=short", *arguments, *(os.path.join(root, file) for file in files)])


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
