"""The examples of all docstrings, and of the README."""

import doctest
import importlib
import pathlib
import pkgutil
import re

import pytest

import qvxs

FLAGS = doctest.NORMALIZE_WHITESPACE
MODULES = sorted(module.name for module in pkgutil.iter_modules(qvxs.__path__) if module.name not in ("raw", "dask"))


@pytest.mark.parametrize("name", MODULES)
def test_examples(name):
    assert doctest.testmod(importlib.import_module("qvxs." + name), optionflags=FLAGS).failed == 0


def test_everything_public_has_an_example():
    for module in (qvxs.fft, qvxs.vectors, qvxs.signal):
        for name in module.__all__:
            thing = getattr(module, name)
            if getattr(thing, "__module__", "").startswith("qvxs") and not name.endswith(("fft2", "fftn")):
                assert ">>>" in (thing.__doc__ or "") or isinstance(thing, type), name


def test_the_readme():
    readme = pathlib.Path(__file__).parents[2] / "README.md"
    blocks = re.findall(r"```python\n(.*?)```", readme.read_text(), re.S)
    assert blocks
    for block in blocks:
        exec(compile(block, "README.md", "exec"), {})
