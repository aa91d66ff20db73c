"""The tables of traits/ as data, for the programs here; tests/support/traits.cpp reads them for the tests."""

import ast
import fnmatch
import re
from collections import defaultdict
from pathlib import Path


class Row:
    """What a row says of the functions whose names fit one of its patterns."""

    def __init__(self, patterns):
        self.patterns = patterns
        self.lines = []  # (key, words), in their order
        self.words = defaultdict(list)  # by key

    def add(self, key, words):
        self.lines.append((key, words))
        self.words[key] += words

    def fits(self, name):
        return any(fnmatch.fnmatchcase(name.removeprefix("qvxs"), pattern) for pattern in self.patterns)

    def has(self, key):
        return key in self.words

    def values(self, key):
        """Words of the form NAME=VALUE."""
        return dict(word.split("=", 1) for word in self.words.get(key, []))

    def statuses(self):
        """The names of the statuses that refusals have, in the order of the checks."""
        found = []
        for key, words in self.lines:
            if key == "allocates":
                found.append("qvxStatNoMem")
            for rule in words if key == "refuses" else []:
                if rule.startswith("null"):
                    found.append("qvxStatNullPtr")
                elif rule.startswith("foreign"):
                    found.append("qvxStatContextMismatch")
                status = re.search(r":([A-Z]\w+)$", rule)
                if status and status[1] != "Ok":
                    found.append("qvxStat" + status[1])
        return found


class Traits:
    def __init__(self, folder):
        self.rows = []
        for path in sorted(Path(folder).glob("*.traits")):
            for line in path.read_text().splitlines():
                if not line.strip() or line.startswith("#"):
                    continue
                if line[0] != " ":
                    self.rows.append(Row(line.split()))
                else:
                    key, *words = line.split()
                    self.rows[-1].add(key, words)
        self.common = next(row for row in self.rows if row.patterns == ["*"])
        self.rows.remove(self.common)

    def of(self, name):
        """The first row that fits."""
        for row in self.rows:
            if row.fits(name):
                return row
        raise SystemExit(f"{name} has no row in traits/")

    def extent(self, row, parameter):
        """How many elements a vector has: as the row says by its name, as is usual for that name, or as for all others."""
        for name in (parameter, "*"):
            for one in (row, self.common):
                if name in (extents := one.values("extent")):
                    return extents[name]
        raise SystemExit(f"no extent of {parameter}")


def expression(text):
    """An extent as a tree."""
    return ast.parse(text.replace("^", "**").replace("/", "//"), mode="eval").body
