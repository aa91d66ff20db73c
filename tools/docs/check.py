#!/usr/bin/env python3
"""Proves the reference site and the manual pages: no link is dead, and every function that the library exports has its place in both.

    check.py SITE MANUAL LIBRARY..."""

import gzip
import json
import re
import subprocess
import sys
from collections import Counter
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.ids, self.links, self.words = Counter(), [], []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id":
                self.ids[value] += 1
            if name in ("href", "src"):
                self.links.append(value)

    def handle_data(self, data):
        self.words.append(data)


def exports(library):
    """The exports as the dynamic loader sees them, not by the headers."""
    symbols = subprocess.run(["nm", "--dynamic", "--defined-only", library], check=True, capture_output=True, text=True).stdout
    return set(re.findall(r" T (\w+)", symbols))


def site_faults(site, names):
    pages = {path.name: Page(path) for path in site.glob("*.html")}
    for name, page in pages.items():
        yield from (f"{name}: the id {i} stands {n} times" for i, n in page.ids.items() if n > 1)
        for link in page.links:
            file, _, place = unquote(link).partition("#")
            if re.match(r"\w+:|/", file) or not (site / (file or name)).is_file():
                yield f"{name}: {link} leads nowhere"
            elif place and place not in pages[file or name].ids:
                yield f"{name}: {link} leads to a page without that place"
    places = Counter(i for page in pages.values() for i in page.ids if i in names)
    yield from (f"{name} has {places[name]} places in the site" for name in names if places[name] < 1)
    words = {name: set(re.findall(r"\w+", " ".join(page.words))) for name, page in pages.items()}
    for name in names:
        where = [page for page in pages if name in pages[page].ids]
        if not any(name in words[page] for page in where):
            yield f"{name} has a place, but no page tells of it there"
    index = json.loads((site / "search-index.js").read_text().removeprefix("var qvxsIndex = ").rstrip(";\n"))
    found = {stem + end for stem, _, _, ends in index["stems"] for end in ends.split(" ")} | {stem for stem, *_ in index["stems"]}
    found |= {name for name, *_ in index["rest"]}
    yield from (f"search does not know {name}" for name in names - found)
    targets = [f"{page}.html#{stem}{end}" for stem, page, _, ends in index["stems"] for end in ends.split(" ")]
    for target in targets + [url for _, url, _ in index["rest"]]:
        file, _, place = target.partition("#")
        if file not in pages or (place and place not in pages[file].ids):
            yield f"search leads to {target}, which is not there"


def manual_faults(manual, names):
    for name in sorted(names):
        path = manual / "man3" / f"{name}.3.gz"
        if not path.is_file():
            yield f"there is no manual page {name}"
        elif not re.search(rf"\b{name}\(", gzip.decompress(path.read_bytes()).decode()):
            yield f"the manual page of {name} does not tell of it"
    pages = {path.name.removesuffix(".gz") for path in manual.glob("man?/*.gz")}
    for path in manual.glob("man?/*.gz"):
        if not path.is_symlink():
            for name, section in re.findall(r"\\fB(\w+)\\fP\((\d)\)", gzip.decompress(path.read_bytes()).decode()):
                if f"{name}.{section}" not in pages:
                    yield f"{path.name} refers to {name}({section}), which is not there"


def warnings(manual):
    """The warnings of groff for all pages, in one run."""
    pages = [path for path in sorted(manual.glob("man?/*.gz")) if not path.is_symlink()]
    text = b"".join(gzip.decompress(path.read_bytes()) for path in pages)
    said = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z", "-rLL=78n"], input=text, capture_output=True)
    return said.stderr.decode().splitlines()


def main(site, manual, *libraries):
    names = set().union(*(exports(library) for library in libraries))
    site, manual = Path(site), Path(manual)
    faults = [*site_faults(site, names), *manual_faults(manual, names), *warnings(manual)]
    print(*faults[:40], sep="\n", end="\n" if faults else "")
    print(f"{len(names)} exports, {len(list(site.glob('*.html')))} pages, {len(list(manual.glob('man?/*')))} manual pages and links, "
          f"{len(faults)} faults")
    sys.exit(bool(faults))


if __name__ == "__main__":
    main(*sys.argv[1:])
