"""What the functions by stem have in common: the choice of an export by dtype, the arrays for results, and their texts."""

from functools import lru_cache

import numpy as np

from .forms import TAGS


def publish(module, function, name, doc):
    """The function under its name in a module's namespace and its __all__."""
    function.__name__ = function.__qualname__ = name
    function.__module__ = module["__name__"]
    function.__doc__ = doc
    module[name] = function
    module["__all__"].append(name)


def no_form(name, dtypes, found, scale=0, to=None):
    """The exception for types that no form takes; it tells those that some form takes."""
    found = [form for form in found if form.scaled or not scale]
    asked = ", ".join(map(dtype_name, dtypes)) + ("" if to is None else f" to {dtype_name(np.dtype(to))}") + (" with a scale" if scale else "")
    return TypeError(f"{name} has no form for {asked}" + (f"; it takes {types_of(found)}" if found else ""))


def choose(name, candidates, source, scale, dtype):
    """The form for a source's type: with the wanted type of result, else with the source's own, else the first one."""
    fitting = [form for form in candidates if form.source == source and (form.scaled or not scale)]
    if dtype is not None:
        fitting = [form for form in fitting if form.target == np.dtype(dtype)]
    if not fitting:
        raise no_form(name, [source], candidates, scale, dtype)
    own = [form for form in fitting if form.target == source]
    return (own or fitting)[0]


def chooser_of(name, found):
    """`choose` for the forms of one function, with a cache: searching all takes 5 us."""
    @lru_cache(maxsize=64)
    def chosen(source, scaled, dtype):
        return choose(name, found, source, scaled, dtype)

    return chosen


def choose_for(name, found, arrays, scale, dtype):
    """The form for the arrays' types, or for the one type that NumPy promotes them to."""
    fitting = [form for form in found if len(form.sources) == len(arrays) and (form.scaled or not scale)]
    if dtype is not None:
        fitting = [form for form in fitting if form.types[(form.results or form.sources)[-1]] == np.dtype(dtype)]
    own = [form for form in fitting if all(form.types[source] == x.dtype for source, x in zip(form.sources, arrays))]
    if not own and all(x.dtype.names is None for x in arrays):
        common = np.result_type(*arrays)
        own = [form for form in fitting if all(form.types[source] == common for source in form.sources)]
    if not own:
        raise no_form(name, [x.dtype for x in arrays], found, scale, dtype)
    return own[0]


def _check_out(out, shape):
    if not isinstance(out, np.ndarray):
        raise TypeError(f"out is an array, not {out!r}")
    if out.shape != shape:
        raise ValueError(f"out has the shape {out.shape}, the result {shape}")


def destination(out, shape, dtype, *sources):
    """The array to write into: `out` itself where it is contiguous and apart from the sources."""
    if out is None:
        return np.empty(shape, dtype)
    _check_out(out, shape)
    if out.dtype == dtype and out.flags.carray and not any(np.may_share_memory(out, source) for source in sources):
        return out
    return np.empty(shape, dtype)


def deliver(result, out):
    """The result, in `out` if the caller gave one."""
    if out is None or out is result:
        return result
    _check_out(out, result.shape)
    np.copyto(out, result, casting="same_kind")
    return out


def deliver_all(out, made):
    """The results, where the caller wants them."""
    if out is None:
        return made[0] if len(made) == 1 else tuple(made)
    for value, place in zip(made, (out,) if len(made) == 1 else out):
        deliver(value, place)
    return out


def dtype_name(dtype):
    return f"complex_int{TAGS[dtype][:-2]}" if dtype.names is not None and dtype in TAGS else str(dtype)


def types_of(found):
    """For the text of a function: what its first sources may hold."""
    return ", ".join(map(dtype_name, dict.fromkeys(form.types[form.sources[0]] for form in found)))


def names_of(found):
    return ", ".join(form.name for form in found)


def numbers_of(name, numbers, arguments, named):
    """The values of the numbers after the arrays: (name, parameter, default) each, None for no default."""
    if len(arguments) > len(numbers):
        raise TypeError(f"{name} takes {len(numbers)} numbers after the array: {', '.join(number for number, _, _ in numbers)}")
    values = list(arguments)
    for number, _, default in numbers[len(arguments):]:
        if number not in named and default is None:
            raise TypeError(f"{name} lacks {number}")
        values.append(named.pop(number, default))
    if named:
        raise TypeError(f"{name} takes no {', '.join(named)}")
    return values


def told(numbers):
    """For the text of a function: the numbers it takes."""
    listed = ", ".join(number if default is None else f"{number}={default}" for number, _, default in numbers)
    return f" Then {listed}." if numbers else ""
