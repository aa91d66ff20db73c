"""The public headers as data: families, blocks and exports, of which the C++ face, the Python package, the site and the manual pages
are made.

A header is one family. Its first comment is the title, each `/** ... */` a block, which documents the QVXS_API lines up to the next
comment. A plain comment that stands directly before such lines is a block too ("The same for complex samples"); any other one is a
note, which holds for all blocks up to the next note. Text is kept as written; `parts` tells its paragraphs from its figures."""

import re
import textwrap
from dataclasses import dataclass, field
from pathlib import Path

ELEMENT = r"(?:8|16|24|32|64)(?:sc|fc|[usf])"
TOKEN = re.compile(
    r"/\*(?P<comment>.*?)\*/"
    r"|#define\s+(?P<constant>QVX_(?!QVXS_)\w+)\s+(?P<value>\d+)[ \t]*/\*(?P<meaning>.*?)\*/"
    r"|QVXS_API\((?P<result>[^,]+),\s*(?P<name>\w+),\s*\((?P<arguments>[^()]*)\)\)"
    r"|typedef\s+(?:struct\s+)?(?P<record>\w+)\s+(?P<type>\w+);", re.S)


@dataclass
class Parameter:
    type: str  # const Qvx16s*
    name: str

    @property
    def pointee(self):
        return re.sub(r"\bconst\b|\*", "", self.type).strip()

    @property
    def is_const(self):
        return self.type.startswith("const")

    @property
    def depth(self):
        return self.type.count("*")

    @property
    def is_record(self):
        return self.depth > 0 and self.pointee.startswith("Qvxs")


@dataclass
class Export:
    name: str
    result: str
    parameters: list
    block: "Block"

    @property
    def arguments(self):
        return [f"{parameter.type} {parameter.name}" for parameter in self.parameters]

    @property
    def header(self):
        return f"qvxs_{self.block.family.name}.h"

    @property
    def stem(self):
        """qvxsAdd_16s_Sfs, qvxsFIR32f_16s, qvxsFIRLMSOne_DirectQ15_16s: the name up to its types and forms."""
        return re.match(rf"\w+?(?={ELEMENT}|_|$)", self.name)[0]

    def prototype(self):
        return f"{self.result} {self.name}({', '.join(self.arguments)})"


@dataclass
class Block:
    text: str
    family: "Family"
    note: "Block | None" = None  # the note that holds for it
    exports: list = field(default_factory=list)
    constants: list = field(default_factory=list)  # (name, value, meaning)

    @property
    def stems(self):
        return list(dict.fromkeys(export.stem for export in self.exports))

    @property
    def parts(self):
        return parts(self.text)

    @property
    def leans(self):
        """Whether it refers to the block before it."""
        return re.match(r"(The same|Their?|Its|Both derivatives|That|As|One sample)\b", self.text) is not None


@dataclass
class Family:
    name: str  # arith
    title: str
    blocks: list = field(default_factory=list)  # in order, notes among them: a note has no exports
    types: dict = field(default_factory=dict)  # of records: their structures by name; one structure may have two

    @property
    def documented(self):
        return [block for block in self.blocks if block.exports]

    @property
    def stems(self):
        return list(dict.fromkeys(stem for block in self.documented for stem in block.stems))

    @property
    def exports(self):
        return [export for block in self.documented for export in block.exports]


@dataclass
class Status:
    name: str
    value: int
    meaning: str


def clean(comment):
    """A comment without its stars, and without the blank that all its lines begin with."""
    first, *rest = comment.lstrip("*").strip().split("\n")  # the first line may begin with a star of its own: *pSum = ...
    rest = [re.sub(r"^ ?\*", "", line).rstrip() for line in rest]
    indent = min((len(line) - len(line.lstrip()) for line in rest if line), default=0)
    return "\n".join([first.rstrip()] + [line[indent:] for line in rest])


def parts(text):
    """The text cut into ("text", paragraph) and ("figure", lines): a figure is indented, or stands where columns are."""
    result, lines = [], []

    def flush(kind):
        nonlocal lines
        while lines and not lines[-1]:
            lines.pop()
        if lines:
            if kind == "figure":
                indent = min(len(line) - len(line.lstrip()) for line in lines if line)
                result.append((kind, "\n".join(line[indent:] for line in lines)))
            else:
                result.append((kind, " ".join(line.strip() for line in lines)))
        lines = []

    kind = "text"
    for line in text.split("\n"):
        if not line:
            if kind == "text":
                flush(kind)
            else:
                lines.append(line)
            continue
        now = "figure" if line.startswith("  ") else "text"
        # A line that begins with "name:" or "Returns" begins a paragraph of its own.
        starts = now == "text" and re.match(r"[\w*\[\]]+(?:(?:, | and )[\w*\[\]]+)*(?: \([^)]*\))?: |Returns ", line)
        if now != kind or starts:
            flush(kind)
        kind = now
        lines.append(line)
    flush(kind)
    return result


def parameters_of(text):
    text = re.sub(r"\s*\*", "*", re.sub(r"\s+", " ", text.strip()))
    return [] if text == "void" else [Parameter(*re.match(r"(.*?) ?(\w+)$", one).groups()) for one in text.split(", ")]


def read_family(path):
    text = path.read_text()
    tokens = list(TOKEN.finditer(text))
    words = clean(tokens[0]["comment"])
    title, _, rest = words.partition(". ")
    family = Family(path.stem.removeprefix("qvxs_"), re.sub(r"\s+", " ", title).rstrip("."))
    note = None
    if rest:
        note = Block(rest, family)
        family.blocks.append(note)
    block = None
    for token, after in zip(tokens[1:], tokens[2:] + [None]):
        if token["comment"] is not None:
            if token["comment"].startswith("*"):
                block = Block(clean(token["comment"]), family, note)
                family.blocks.append(block)
            elif after is not None and after["name"] and "\n" not in token["comment"]:
                block = Block(clean(token["comment"]), family, note)
                family.blocks.append(block)
            elif "\n" in token["comment"] or "----" in token["comment"]:
                note = block = Block(clean(token["comment"]), family)
                family.blocks.append(note)
        elif token["constant"]:
            block.constants.append((token["constant"], int(token["value"]), token["meaning"].strip()))
        elif token["record"]:
            family.types[token["type"]] = token["record"]
        else:
            result = re.sub(r"\s+", " ", token["result"].strip())
            block.exports.append(Export(token["name"], result, parameters_of(token["arguments"]), block))
    if len(family.exports) != len(re.findall(r"^(?:QVXS_SLOTLESS\()?QVXS_API\(", text, re.M)):
        raise SystemExit(f"{path}: a line that is no declaration")
    return family


def read_families(include):
    """The families in the order of the umbrella header."""
    include = Path(include)
    names = re.findall(r"#include <qvx/(qvxs_\w+\.h)>", (include / "qvxs.h").read_text())
    return [read_family(include / name) for name in names]


def read_statuses(include):
    text = (Path(include) / "qvxdefs.h").read_text()
    found = re.findall(r"^\s+(qvx(?:Stat|Warn)\w+) = (-?\d+),?\s*(?:/\* (.*?) \*/)?$", text, re.M)
    return [Status(name, int(value), meaning or "done") for name, value, meaning in found]


def summary(stem, blocks):
    """What a stem does, in one line."""
    text = next((block for block in blocks if not block.leans), blocks[0]).text
    sentence = re.split(r"(?<!\.)[.;](?: |$)", re.sub(r"\s+", " ", text))[0].strip().rstrip(".:").lstrip("*")
    for cut in (r": ", r", (?:times|as|where|with|which|who|so that) "):
        head = re.split(cut, sentence)[0]
        if len(sentence) > 80 and len(head) > 24:
            sentence = head
    return textwrap.shorten(sentence, 110, placeholder=" ...") or stem


def returned(block, traits, families):
    """The names of the statuses that the functions of a block return beside qvxStatOk: refusals by traits, the others by the text, or by
    that of the block whose returns it says it has."""
    found = {name for export in block.exports for name in traits.of(export.name).statuses()}
    found |= set(re.findall(r"\bqvx(?:Stat|Warn)\w+", block.text)) - {"qvxStatOk"}
    for stem in re.findall(r"(?:[Rr]eturns|[Oo]therwise) as (qvxs[A-Z]\w*)", block.text):
        for other in (b for family in families for b in family.documented if stem in b.stems and b is not block):
            found |= set(re.findall(r"\bqvxWarn\w+", other.text))
    return found


def read_core(include):
    """The functions of the core library: (name, prototype, text)."""
    text = (Path(include) / "qvxcore.h").read_text()
    found = re.findall(r"/\*\*(.*?)\*/\n([^;#]*?\b(\w+)\((?:[^;]*)\);)", text, re.S)
    return [(name, re.sub(r"\s+", " ", prototype), re.sub(r"\s+", " ", clean(comment))) for comment, prototype, name in found]
