#!/usr/bin/env python3
"""The manual pages: one a stem, a link to it for each of its functions, and qvxs(7), which leads to all of them.

    man.py INCLUDE TRAITS VERSION OUTPUT"""

import gzip
import os
import re
import shutil
import sys
import textwrap
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent.parent))

from interface import headers  # noqa: E402
from interface.traits import Traits  # noqa: E402

WIDTH = 76


def roff(text):
    text = text.replace("\\", r"\e").replace("-", r"\-").replace("^", r"\(ha").replace("~", r"\(ti").replace("`", r"\(ga")
    text = text.replace("'", r"\(aq")
    return re.sub(r"^(?=[.'])", r"\\&", text, flags=re.M)


def words(text):
    """Names of functions and statuses in bold."""
    return re.sub(r"\b(qvx(?:s|Stat|Warn)?[A-Z0-9]\w*)", r"\\fB\1\\fP", roff(text))


def wrapped(prototype):
    """The prototype on lines short enough not to be broken."""
    head, _, rest = prototype.partition("(")
    lines, line = [], head + "("
    for argument in re.findall(r"[^,]*\([^)]*\)\([^)]*\)[^,]*,?|[^,]+,?", rest):
        if len(line) + len(argument) > WIDTH and line.strip():
            lines.append(line.rstrip())
            line = "    " + argument.lstrip()
        else:
            line += argument
    return "\n".join(lines + [line])


def described(block):
    out = []
    for kind, part in block.parts:
        if kind == "figure":
            out += [".PP", ".RS 2", ".nf", ".ft CR", roff(part).replace("\n\n", "\n.sp\n"), ".ft P", ".fi", ".RE"]
        else:
            out += [".PP", words(part)]
    for name, value, meaning in block.constants:
        out += [".TP", rf"\fB{name}\fP ({value})", words(meaning)]
    return out


def title(name, section, version):
    return f'.TH "{name}" {section} "" "qvxs {version}" "Signal processing"'


def page(stem, families, statuses, traits, version):
    blocks = [block for family in families for block in family.documented if stem in block.stems]
    family = blocks[0].family
    out = [title(stem, 3, version), ".nh", ".ad l", ".SH NAME", rf"{stem} \- {roff(headers.summary(stem, blocks))}",
           ".SH LIBRARY", r"libqvxs, \-lqvxs", ".SH SYNOPSIS", ".nf", r"\fB#include <qvx/qvxs.h>\fP", ".sp"]
    for block in blocks:
        out += [roff(wrapped(export.prototype() + ";")) for export in block.exports if export.stem == stem]
    out += [".fi", ".SH DESCRIPTION"]
    shown = []
    for block in blocks:
        before = []
        place = block.family.blocks.index(block)
        while block.family.blocks[place].leans and place > 0:  # "The same for ...": for what comes before it
            place -= 1
            before.insert(0, block.family.blocks[place])
        for one in before + [block]:
            if one in shown:
                continue
            shown.append(one)
            others = [other for other in one.stems if other != stem]
            if stem not in one.stems and others:
                out += [".PP", r"Of " + ", ".join(rf"\fB{other}\fP" for other in others) + ":"]
            elif others and len(blocks) > 1:
                out += [".PP", r"With " + ", ".join(rf"\fB{other}\fP" for other in others) + ":"]
            out += described(one)
    notes = list(dict.fromkeys(id(b.note) for b in blocks if b.note))
    notes = [next(b.note for b in blocks if id(b.note) == note) for note in notes]
    if notes:
        out.append(".SH CONVENTIONS")
        for note in notes:
            out += described(note)
    names = set().union(*(headers.returned(block, traits, families) for block in shown))
    if any(export.result == "QvxStatus" for block in blocks for export in block.exports):
        out.append(".SH RETURN VALUE")
        for status in statuses:
            if status.name in names | {"qvxStatOk"}:
                out += [".TP", rf"\fB{status.name}\fP ({roff(str(status.value))})", words(status.meaning)]
    at = family.stems.index(stem)
    near = [s for s in family.stems[max(0, at - 6):at + 7] if s != stem]
    out += [".SH SEE ALSO", ", ".join([rf"\fB{other}\fP(3)" for other in sorted(near)] + [r"\fBqvxs\fP(7)"])]
    return "\n".join(out) + "\n"


def overview(families, statuses, version):
    count = sum(len(f.exports) for f in families)
    out = [title("qvxs", 7, version), ".nh", ".ad l", ".SH NAME", r"qvxs \- signal processing primitives over vectors", ".SH DESCRIPTION",
           f"{count} functions, each of which does one thing to whole vectors of samples. A name tells what is done, to which elements, and how:",
           r"\fBqvxsAdd_16s_ISfs\fP adds 16-bit integers in place (\fBI\fP) and scales the result by 2\(ha\-scaleFactor (\fBSfs\fP).".replace("16-bit", r"16\-bit"),
           "There is one page for each stem, under the names of all its functions."]
    for family in families:
        out += [f'.SS "{roff(family.title)}"', ", ".join(rf"\fB{stem}\fP(3)" for stem in family.stems)]
    out += [".SH STATUS CODES", "A negative status refuses the call: nothing was written. With a positive one everything was written, but some",
            "element had no proper result."]
    for status in statuses:
        out += [".TP", rf"\fB{status.name}\fP ({roff(str(status.value))})", words(status.meaning)]
    return "\n".join(out) + "\n"


def core_page(name, prototype, text, others, version):
    out = [title(name, 3, version), ".nh", ".ad l", ".SH NAME", rf"{name} \- {roff(textwrap.shorten(text.split(';')[0].split('. ')[0].rstrip('.'), 90))}",
           ".SH LIBRARY", r"libqvxcore, \-lqvxcore", ".SH SYNOPSIS", ".nf", r"\fB#include <qvx/qvxcore.h>\fP", ".sp", roff(wrapped(prototype)),
           ".fi", ".SH DESCRIPTION", words(text), ".SH SEE ALSO", ", ".join([rf"\fB{o}\fP(3)" for o in sorted(others)] + [r"\fBqvxs\fP(7)"])]
    return "\n".join(out) + "\n"


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(gzip.compress(text.encode(), 9, mtime=0))


def main(include, tables, version, output):
    families, statuses, traits = headers.read_families(include), headers.read_statuses(include), Traits(tables)
    output = Path(output)
    for section in ("man3", "man7"):
        shutil.rmtree(output / section, ignore_errors=True)
    stems = dict.fromkeys(stem for family in families for stem in family.stems)
    for stem in stems:
        write(output / f"man3/{stem}.3.gz", page(stem, families, statuses, traits, version))
    for family in families:
        for export in family.exports:
            if export.name not in stems:
                os.symlink(f"{export.stem}.3.gz", output / f"man3/{export.name}.3.gz")
    core = headers.read_core(include)
    for name, prototype, text in core:
        write(output / f"man3/{name}.3.gz", core_page(name, prototype, text, [n for n, _, _ in core if n != name], version))
    write(output / "man7/qvxs.7.gz", overview(families, statuses, version))


if __name__ == "__main__":
    main(*sys.argv[1:])
