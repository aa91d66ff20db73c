"""Signal processing on NumPy arrays."""

from . import raw
from .raw import Error, Warning

__all__ = ["Error", "Warning", "raw"]
