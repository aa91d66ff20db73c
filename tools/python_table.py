"""Writes table.cpp of the Python package: a row for each export, from the public headers and the tables of traits/.

usage: python_table.py INCLUDE TRAITS OUTPUT
"""

import ast
import fnmatch
import re
import sys
from pathlib import Path

from interface import headers
from interface.traits import Traits, expression

# Conditions that no extent expresses, by name of the export: on the arguments, and the message where they do not hold.
GUARDS = {
    "ConvBiased_*": (
        "!((src1Len == 4 && src2Len == 45 && dstLen == 41 && bias == 4) ||"
        " (src1Len == 11 && src2Len == 50 && dstLen == 40 && bias == 10) ||"
        " (src1Len == 16 && src2Len == 56 && dstLen == 40 && bias == 16) ||"
        " (src1Len == 31 && src2Len == 70 && dstLen == 40 && bias == 30) ||"
        " (src1Len == 31 && src2Len == 110 && dstLen == 80 && bias == 30))",
        "this shape reads elements before pSrc2"),
    "SortRadixIndex*": ("srcStride >= 0", "a negative srcStride reads elements before pSrc"),
    "CalcStatesDV_*": ("offset >= 0", "a negative offset writes before pPathTable"),
}
# Steps that trust what they have read before: their vectors must not overlap. Those of the second list may be one and the same.
APART = ["Sort*"]
UNLIKE = ["FilterMedian_*", "CalcStatesDV_*", "UpdatePathMetricsDV_*"]
CONTENTS = {"index": "kIndex", "phase": "kPhase", "bitLengths": "kBitLengths", "positions": "kPositions"}
# The names that extents use for numbers read from contents.
CONTENT_NAMES = {"phase": 0, "totalBits": 0}


def die(what):
    sys.exit("python_table.py: " + what)


def element_of(kind):
    return "k32s" if kind in ("int", "QvxRoundMode") else "k" + kind.removeprefix("Qvx")


def is_maker(export):
    return "Init" in export.name and bool(export.parameters) and export.parameters[0].is_record and export.result == "QvxStatus"


class Table:
    def __init__(self, families, traits):
        self.exports = [export for family in families for export in family.exports]
        self.by_name = {export.name: export for export in self.exports}
        self.structures = {name: structure for family in families for name, structure in family.types.items()}
        self.traits = traits
        self.types = []  # of records
        self.record_names = []  # what records bring to extents
        self.extents = {}  # functions by their text
        self.sizes = []

    def type_number(self, parameter):
        kind = self.structures[parameter.pointee]
        if kind not in self.types:
            self.types.append(kind)
        return self.types.index(kind)

    # An expression of traits/ as one of C++.
    def translate(self, text, export, row):
        places = {p.name: i for i, p in enumerate(export.parameters)}
        takes_record = any(p.is_record for p in export.parameters) and not is_maker(export)
        fills = row.values("fill")

        def name_of(name):
            if name in places:
                return f"Extent(n[{places[name]}])"
            if name in CONTENT_NAMES and name in ("totalBits", *fills.values()) or name == "totalBits":
                return f"Extent(n[kContents + {CONTENT_NAMES[name]}])"
            if "positions" in fills.values() and name in ("order", "orderA", "orderB"):
                return f"Extent(n[kContents + {int(name == 'orderA')}])"
            if not takes_record:
                return "Extent(0)"
            if name not in self.record_names:
                self.record_names.append(name)
            return f"Extent(r[{self.record_names.index(name)}])"

        def emit(node):
            if isinstance(node, ast.BinOp):
                a, b = emit(node.left), emit(node.right)
                if isinstance(node.op, ast.Pow):
                    return f"power({a}, {b})"
                sign = {ast.Add: "+", ast.Sub: "-", ast.Mult: "*", ast.FloorDiv: "/"}[type(node.op)]
                return f"({a} {sign} {b})"
            if isinstance(node, ast.Constant):
                return f"Extent({node.value})"
            if isinstance(node, ast.Name):
                return name_of(node.id)
            if isinstance(node, ast.Attribute):
                return name_of("made." + node.attr)
            if isinstance(node, ast.Call):
                all_of = [emit(a) for a in node.args]
                while "Extent(0)" in all_of and len(all_of) > 1 and "Extent(1)" in all_of:
                    all_of.remove("Extent(0)")
                result = all_of.pop()
                while all_of:
                    result = f"most({all_of.pop()}, {result})"
                return result
            die("what is " + text + "?")

        return emit(expression(text))

    def extent_function(self, text):
        return self.extents.setdefault(text, f"extent{len(self.extents)}")

    # A call of the function that reports the size of a maker's block.
    def block_size(self, export, wanted):
        for size in ("GetStateSize", "GetSize"):
            teller = self.by_name.get(export.name.replace("Init", size, 1))
            if teller is not None:
                break
        else:
            die(f"no size of {export.name}")
        places = {p.name: i for i, p in enumerate(export.parameters)}
        fills = self.traits.of(export.name).values("fill")
        arguments, sum_of = [], []
        for p in teller.parameters:
            if p.type == "int*":
                arguments.append("&size" if p.name == wanted else "&other")
                continue
            if p.name in places:
                number = f"n[{places[p.name]}]"
            elif "positions" in fills.values() and p.name in ("order", "orderA", "orderB"):
                number = f"n[kContents + {int(p.name == 'orderA')}]"
            else:
                die(f"{teller.name} takes {p.name}")
            arguments.append(f"static_cast<int>({number})")
            sum_of.append(number)
        name = f"size{len(self.sizes)}"
        # Sizes are reported modulo 2^32: far below that they can be trusted.
        limit = f"  if ({' || '.join(f'{n} > 1 << 20' for n in sum_of)}) return INT64_MIN;\n" if sum_of else ""
        self.sizes.append(f"int64_t {name}([[maybe_unused]] const int64_t* n) {{\n  [[maybe_unused]] int size = 0, other = 0;\n{limit}"
                          f"  const QvxStatus status = {teller.name}({', '.join(arguments)});\n"
                          f"  return status == qvxStatOk ? size : status;\n}}\n")
        return name

    def parameter(self, export, row, index):
        p = export.parameters[index]
        maker = is_maker(export)
        work = row.values("work")
        fills = row.values("fill")
        refused = row.words["refuses"]
        optional = p.name in row.words["optional"] or f"{p.name}=null:Ok" in refused
        element, kind, extent, number = "k8u", "kVector", None, -1
        if "**" in p.type:
            kind, number = "kHandle", self.type_number(p)
        elif maker and p.name in work and p.name != "pInit":
            kind = "kBlock"
        elif p.type.count("*") == 2:
            kind = "kRecords" if p.is_record else "kVectors"
        elif "*" not in p.type:
            kind = "kNumber"
        elif p.is_record:
            kind = "kRecord"
        if kind in ("kRecord", "kRecords") or (kind == "kBlock" and p.is_record):
            number = self.type_number(p)
        if kind in ("kVector", "kVectors", "kNumber"):
            element = element_of(p.pointee) if p.type != "void*" else "k8u"
        content = "kNone"
        if kind in ("kVector", "kVectors") and export.result == "QvxStatus":
            content = CONTENTS.get(fills.get(p.name), "kNone")
            if p.name == "pInit":
                extent = self.extent_function(f"Extent({self.block_size(export, work[p.name])}(n))")
            elif p.name in work:
                if "work" not in self.record_names:
                    self.record_names.append("work")
                extent = self.extent_function(f"Extent(r[{self.record_names.index('work')}])")
            else:
                extent = self.extent_function(self.translate(self.traits.extent(row, p.name), export, row))
        is_const = re.search(r"const ?\*$", p.type) is not None and p.type.count("*") == 2
        is_const = p.type.startswith("const ") if kind != "kNumber" else is_const
        boolean = {False: "false", True: "true"}
        return (f'{{"{p.name}", Kind::{kind}, Element::{element}, {boolean[is_const]}, {boolean[optional]}, Content::{content}, '
                f"{extent or 'nullptr'}, {number}}}")

    def write(self, output, statuses):
        body, rows = [], []
        remembers = []
        for number, export in enumerate(self.exports):
            row = self.traits.of(export.name)
            parameters = [self.parameter(export, row, i) for i in range(len(export.parameters))]
            if parameters:
                body.append(f"const Parameter parameters{number}[] = {{{', '.join(parameters)}}};")
            refusals = []
            for word in row.words["refuses"]:
                match = re.fullmatch(r"(\w+)<1:(\w+)", word)
                places = [i for i, p in enumerate(export.parameters) if match and p.name == match[1]]
                if places and match[2] != "Ok":
                    refusals.append(f"{{{places[0]}, qvxStat{match[2]}}}")
            if refusals:
                body.append(f"const Refusal refusals{number}[] = {{{', '.join(refusals)}}};")
            guard = "nullptr"
            for pattern, (condition, text) in GUARDS.items():
                if fnmatch.fnmatchcase(export.name[4:], pattern):
                    for i, p in enumerate(export.parameters):
                        condition = re.sub(rf"\b{p.name}\b", f"n[{i}]", condition)
                    guard = f'[](const int64_t* n) -> const char* {{ return {condition} ? nullptr : "{text}"; }}'
            strangers = "nullptr"
            if row.words["without"]:
                strangers = f"strangers{number}"
                names = ", ".join(f'"{s}"' for s in row.words["without"])
                body.append(f"const char* const {strangers}[] = {{{names}, nullptr}};")
            block = [p.split("Element")[0] for p in parameters if "kBlock" in p]
            size = "nullptr"
            if block:
                name = re.match(r'\{"(\w+)"', block[0])[1]
                size = self.block_size(export, row.values("work")[name])
            remember = "nullptr"
            if is_maker(export):
                remember = f"remember{number}"
                remembers.append((remember, export, row))
                body.append(f"void {remember}(const int64_t* n, int64_t* r);")
            result = {"QvxStatus": "kStatus", "void": "kNothing", "const QvxLibraryVersion*": "kVersion"}.get(export.result, "kVector")
            element = element_of(re.sub(r"^const |\*", "", export.result)) if result == "kVector" else "k8u"
            erased = [re.sub(r".*\*$", "void*", p.type) for p in export.parameters]
            call = f"call<{', '.join(['QvxStatus', *erased])}>" if result == "kStatus" else "nullptr"
            is_free = result == "kStatus" and "Free" in export.name
            one_of = lambda patterns: any(fnmatch.fnmatchcase(export.name[4:], p) for p in patterns)
            flags = [is_free, one_of(APART), one_of(UNLIKE), row.has("allocates") or is_maker(export)]
            rows.append(f'{{"{export.name}", "{export.prototype()}", reinterpret_cast<Function>(&{export.name}), {call}, Result::{result}, '
                        f"Element::{element}, {f'parameters{number}' if parameters else 'nullptr'}, {len(parameters)}, "
                        f"{f'refusals{number}' if refusals else 'nullptr'}, {len(refusals)}, {guard}, {size}, {remember}, {strangers}, "
                        f"{', '.join(str(flag).lower() for flag in flags)}}}")
        for name, export, row in remembers:  # when all is known that records are asked for
            lines = []
            for i, wanted in enumerate(self.record_names):
                places = [k for k, p in enumerate(export.parameters) if p.name == wanted.removeprefix("made.")]
                if not places:
                    continue
                p = export.parameters[places[0]]
                if wanted.startswith("made.") and "*" in p.type:
                    expression = self.translate(self.traits.extent(row, p.name), export, row)
                    lines.append(f"  r[{i}] = {expression}.value();\n")
                elif "*" not in p.type:
                    lines.append(f"  r[{i}] = n[{places[0]}];\n")
            body.append(f"void {name}([[maybe_unused]] const int64_t* n, [[maybe_unused]] int64_t* r) {{\n{''.join(lines)}}}")
        types = []
        for kind in self.types:
            alike = [e for e in self.exports if any(self.structures.get(p.pointee) == kind for p in e.parameters)]
            release = [e for e in alike if "Free" in e.name]
            teller = [e for e in alike if "GetBufSize" in e.name]
            size = "nullptr"
            if teller:
                size = (f"[](const void* record) -> int64_t {{ int size = 0; return {teller[0].name}(static_cast<const {kind}*>(record), "
                        f"&size) == qvxStatOk ? size : 0; }}")
            types.append(f'{{"{kind}", {f"reinterpret_cast<Function>(&{release[0].name})" if release else "nullptr"}, {size}}}')
        if len(self.record_names) > 24 or max(len(e.parameters) for e in self.exports) > 16:
            die("too many names or parameters for table.h and record.h")
        texts = ",\n  ".join(f'{{{status.value}, "{status.name}", "{status.meaning}"}}' for status in statuses)
        work = self.record_names.index("work")
        extents = "".join(f"Extent {name}([[maybe_unused]] const int64_t* n, [[maybe_unused]] const int64_t* r) {{ return {text}; }}\n"
                          for text, name in self.extents.items())
        newline = ",\n  "
        output.write_text(
            "// Made by python_table.py from the public headers and traits/.\n#include <qvx/qvxs.h>\n\n#include \"table.h\"\n\n"
            "namespace raw {\n\nnamespace {\n\n" + "\n".join(self.sizes) + "\n" + extents + "\n" + "\n".join(body) + "\n\n}  // namespace\n\n"
            f"const Export kExports[] = {{\n  {newline.join(rows)}}};\nconst int kExportCount = {len(rows)};\n"
            f"const RecordType kRecordTypes[] = {{\n  {newline.join(types)}}};\n"
            f"const StatusRow kStatuses[] = {{\n  {texts}}};\nconst int kStatusCount = {len(statuses)};\n"
            f"const int kWorkName = {work};\n\n}}  // namespace raw\n")


def main():
    include, traits, output = map(Path, sys.argv[1:])
    include /= "qvx"
    Table(headers.read_families(include), Traits(traits)).write(output, headers.read_statuses(include))


if __name__ == "__main__":
    main()
