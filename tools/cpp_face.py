#!/usr/bin/env python3
"""Writes the lists of the C++ face, include/qvx/qvxs_functions.hpp, qvxs_handles.hpp and qvxs_names.hpp, from the C headers and the
extents in traits/.

usage: cpp_face.py [--check | --calls FILE]
  --check: writes nothing, fails if a file is not what it would write
  --calls: writes a program that calls every function through the C++ face and says which did not end in its export

A function without a record becomes an overload of its stem: vectors are spans, a length that is the extent of a vector is taken from
it, the others are checked against their extents, a result of one element is a reference, and the scale factor comes last. A function
with a record keeps the arguments it has in C; the classes of qvxs_transforms.hpp and its like, which know the record's lengths, call it.
"""
import ast
import re
import sys
import textwrap
from collections import defaultdict
from pathlib import Path

from interface import headers
from interface.traits import Traits, expression

ROOT = Path(__file__).resolve().parent.parent
INCLUDE = ROOT / 'include' / 'qvx'
ELEMENT = r'\d+(?:fc|sc|f|s|u)'
COLUMNS = 130
# What the library takes below 0, where a span has nothing.
NOT_NEGATIVE = {'qvxsSortRadixIndexAscend_8u': 'srcStride', 'qvxsSortRadixIndexDescend_8u': 'srcStride', 'qvxsCalcStatesDV_16sc': 'offset'}
# An integer constant would fit two overloads.
FRACTIONS = {'qvxsMulC_64f64s_ISfs': 'val'}


FAMILIES = headers.read_families(INCLUDE)
TRAITS = Traits(ROOT / 'traits')


def plain(parameter):
    """The name without the p of pointers."""
    name = re.sub(r'^pp?(?=[A-Z])', '', parameter.name)
    return name[0].lower() + name[1:]


def key_of(export):
    """The name without the types and forms that C needs in it."""
    first, *rest = export.name[4:].split('_')
    forms = {'I', 'Sfs', 'ISfs', 'D2L', 'P', 'IP', 'PSfs', 'IPSfs'}
    if any(p.is_record for p in export.parameters):
        forms |= {'C', 'R'}  # which the record's type determines
    tokens = [first] + [t for t in rest if t not in forms]
    key = '_'.join(t for t in (re.sub(f'(?:{ELEMENT})+$', '', t) for t in tokens) if t)
    return 'Ten' + key[2:] if key.startswith('10') else key


def elements_of(export):
    """The element types in its name, in their order."""
    return [f'Qvx{t}' for token in export.name[4:].split('_') for t in re.findall(ELEMENT, (re.search(f'(?:{ELEMENT})+$', token) or [''])[0])]


def wrapped(text, indent):
    """Lines of at most COLUMNS columns, whose later ones are indented by 4 more."""
    return '\n'.join(textwrap.wrap(text, COLUMNS, initial_indent=' ' * indent, subsequent_indent=' ' * (indent + 4),
                                   break_long_words=False, break_on_hyphens=False))


def quoted(text):
    """The text as adjacent literals of one line each."""
    lines = textwrap.wrap(text, COLUMNS - 12, drop_whitespace=False, break_long_words=False, break_on_hyphens=False)
    return '\n'.join(f'        "{line}"' for line in lines)


class Expression(ast.NodeVisitor):
    """An extent of traits/ in C++, in 64 bits."""

    def __init__(self, values):
        self.values = values

    def visit_Constant(self, node):
        return str(node.value)

    def visit_Name(self, node):
        return self.values[node.id]

    def visit_BinOp(self, node):
        a, b = self.visit(node.left), self.visit(node.right)
        if isinstance(node.op, ast.FloorDiv):
            return f'quotient({a}, {b})'
        if isinstance(node.op, ast.Mult):
            a, b = (f'({t})' if self.is_sum(n) else t for t, n in ((a, node.left), (b, node.right)))
            return f'{a} * {b}'
        return f'{a} + {b}' if isinstance(node.op, ast.Add) else f'{a} - ({b})' if self.is_sum(node.right) else f'{a} - {b}'

    @staticmethod
    def is_sum(node):
        return isinstance(node, ast.BinOp) and isinstance(node.op, (ast.Add, ast.Sub))

    def visit_Call(self, node):
        return f'largest({", ".join(self.visit(a) for a in node.args)})'


class Overload:
    """An export as a C++ function."""

    def __init__(self, export):
        self.export = export
        self.row = TRAITS.of(export.name)
        names = {p.name for p in export.parameters}
        self.standard = 'len' if 'len' in names else 'numIters' if 'numIters' in names else '1'
        self.kinds = {p.name: self.kind(p) for p in export.parameters}
        # The first vector that has just as many elements as a length says gives it.
        self.givers = {}
        for p in export.parameters:
            extent = self.extent(p)
            if self.kinds[p.name] == 'vector' and extent in names and p.name not in self.row.words['optional'] + self.row.words['scratch']:
                self.givers.setdefault(extent, p)
        for p in export.parameters:
            if self.kinds[p.name] == 'vectors':
                self.givers.setdefault('nChannels', p)

    def extent(self, p):
        text = TRAITS.extent(self.row, p.name)
        if text == TRAITS.common.values('extent')['*']:
            return self.standard
        return text[2:] if self.packed(p) else text

    def packed(self, p):
        """Whether three bytes are an element."""
        return p.pointee == 'Qvx8u' and TRAITS.extent(self.row, p.name).startswith('3*')

    def element(self, p):
        if self.packed(p):
            return 'UInt24' if '24u' in self.export.name else 'Int24'
        return 'Half' if p.pointee == 'Qvx16f' else p.pointee

    def kind(self, p):
        if p.depth == 0:
            return 'value'
        if p.depth == 2:
            return 'vectors'
        return 'reference' if self.extent(p) == '1' else 'vector'

    def declared(self, p):
        kind, const = self.kinds[p.name], 'const ' if p.is_const else ''
        if kind == 'value':
            if p.type == 'QvxRoundMode':
                return f'Rounding {plain(p)}'
            wrapper = 'Fraction' if FRACTIONS.get(self.export.name) == p.name else 'Value'
            return f'{wrapper}<{p.type}> {plain(p)}' + (' = 0' if p.name == 'hint' else '')
        if kind == 'reference':
            return f'{const}{p.pointee}& {plain(p)}'
        if kind == 'vectors':
            return f'In<{const}{p.pointee}*> {plain(p)}'
        return f'{"In" if p.is_const else "Out"}<{self.element(p)}> {plain(p)}'

    def passed(self, p):
        if p.name in self.givers:
            giver = plain(self.givers[p.name])
            return f'length({giver}.size())' if p.type == 'int' else f'unsignedLength({giver}.size())'
        kind = self.kinds[p.name]
        if kind == 'value':
            return f'static_cast<QvxRoundMode>({plain(p)})' if p.type == 'QvxRoundMode' else f'{plain(p)}.number'
        if kind == 'reference':
            return f'&{plain(p)}'
        if p.name in self.row.words['optional']:
            return f'optional({plain(p)})'
        return f'pointer({plain(p)})' if kind == 'vector' and self.element(p) != p.pointee else f'{plain(p)}.data()'

    def value(self, p):
        if p.name in self.givers:
            return f'int64_t({plain(self.givers[p.name])}.size())'
        return f'int64_t({plain(p)}.number)'

    def requirements(self):
        parts = []
        values = {p.name: self.value(p) for p in self.export.parameters if self.kinds[p.name] == 'value'}
        values['phase'] = 'int64_t(phase)'
        for length, giver in self.givers.items():
            type_ = next(p.type for p in self.export.parameters if p.name == length)
            parts.append(f'{"countable" if type_ == "int" else "countableUnsigned"}({plain(giver)}.size())')
        if self.export.name in NOT_NEGATIVE:
            parts.append(f'{NOT_NEGATIVE[self.export.name]}.number >= 0')
        for p in self.export.parameters:
            extent = self.extent(p)
            if self.kinds[p.name] != 'vector' or self.givers.get(extent) is p:
                continue
            if extent in self.givers and p.name not in self.row.words['scratch']:
                test = f'{plain(p)}.size() == {plain(self.givers[extent])}.size()'
            else:
                tree = expression(extent)
                unknown = {n.id for n in ast.walk(tree) if isinstance(n, ast.Name)} - set(values) - {'max'}
                if unknown == {'totalBits'}:
                    values['totalBits'] = 'totalBits(srcBitLen)'
                elif unknown:
                    sys.exit(f'{self.export.name}: {p.name} has {extent} elements, and nothing tells {unknown}')
                test = f'atLeast({plain(p)}.size(), {Expression(values).visit(tree)})'
            parts.append(f'({plain(p)}.empty() || {test})' if p.name in self.row.words['optional'] else test)
        return parts

    def kept(self):
        """The parameters of the overload, in its order."""
        return sorted((p for p in self.export.parameters if p.name not in self.givers), key=lambda p: p.name == 'scaleFactor')

    def signature(self):
        return ', '.join(self.declared(p) for p in self.kept())

    def argument(self, p):
        """The type of an argument that a caller has for a parameter."""
        return re.sub(r'^(?:(?:Value|Fraction)<(\w+)>|const (.*)&|(.*)&)$', r'\1\2\3', self.declared(p).removesuffix(' = 0').rsplit(' ', 1)[0])

    def text(self):
        lines = [wrapped(f'static Status call({self.signature()}) {{', 2)]
        parts = self.requirements()
        if parts:
            lines.append(wrapped(f'QVX_REQUIRE({" && ".join(parts)});', 4))
        lines.append(wrapped(f'return {self.export.name}({", ".join(self.passed(p) for p in self.export.parameters)});', 4))
        return '\n'.join(lines + ['  }'])


def has_record(export):
    return any(p.is_record for p in export.parameters) or re.search(r'Get\w*Size', export.name) is not None


def heading(export):
    """The first sentence or formula of a documentation block."""
    line = export.block.text.splitlines()[0]
    return line if len(line) < COLUMNS - 30 else textwrap.shorten(line, COLUMNS - 30, placeholder=' ...')


STEM = '''// {heading} ({header})
namespace exports {{
struct {key} {{
{overloads}
}};
}}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status {key}(Arguments&&... arguments) {{
  if constexpr (requires {{ exports::{key}::call(detail::view(arguments)...); }}) {{
    return exports::{key}::call(detail::view(arguments)...);
  }} else {{
    static_assert(detail::kNever<Arguments...>,
{message});
    return qvxStatBadArg;
  }}
}}
'''

TOP = '''// {what}
// Written by tools/cpp_face.py from the C headers and traits/: change those and run it.
// clang-format off
#ifndef QVX_{guard}
#define QVX_{guard}
'''


def functions(all_exports):
    stems = defaultdict(list)
    for e in all_exports:
        if e.result == 'QvxStatus' and not has_record(e):
            stems[key_of(e)].append(Overload(e))
    text = TOP.format(what='All functions without a record, as overloads by stem.', guard='QVXS_FUNCTIONS_HPP')
    text += '\n#include <qvx/qvxs_result.hpp>\n#include <qvx/qvxs_vectors.hpp>\n\n'
    text += 'namespace qvx {\ninline namespace QVX_POLICY {\nnamespace exports {\nusing namespace qvx::detail;\n}\n\n'
    for key, overloads in stems.items():
        signatures = defaultdict(list)
        for o in overloads:
            signatures[re.sub(r' \w+(?=,|$)| = 0', '', o.signature())].append(o.export.name)
        for same in signatures.values():
            if len(same) > 1:
                sys.exit(f'{same} cannot be told apart')
        names = ' '.join(o.export.name[4:] for o in overloads)
        message = quoted(f'qvx::{key}: no such function for elements of these types in this order. There are {names}')
        text += STEM.format(heading=heading(overloads[0].export), header=overloads[0].export.header, key=key,
                            overloads='\n'.join(o.text() for o in overloads), message=message) + '\n'
    return text + '}  // namespace QVX_POLICY\n}  // namespace qvx\n\n#endif\n'


def typed(export, known):
    """The argument that determines the types where nothing else does."""
    # QvxsFIRState_32s is another name of a type.
    signature = (key_of(export), *(p.type.replace('FIRState_32s', 'FIRState64f_32s') for p in export.parameters))
    unclear = signature in known or not any(p.is_record for p in export.parameters)
    known.add(signature)
    return f'Types<{", ".join(elements_of(export))}>' if elements_of(export) and unclear else None


def handles(all_exports):
    """Functions with records: as in C, but overloaded. Where no argument determines the type, there is one that does."""
    text = TOP.format(what='All functions with a record, and those that return no status, with the arguments they have in C, as overloads.',
                      guard='QVXS_HANDLES_HPP')
    text += '\n#include <qvx/qvxs_vectors.hpp>\n\nnamespace qvx::handles {\n'
    stem = None
    first, known = {}, set()
    for e in all_exports:
        if e.result == 'QvxStatus' and not has_record(e):
            continue
        if key_of(e) != stem:
            # A block that leans on another ("The same for 16-bit samples") says less than that of the stem's first function.
            same = first.setdefault(key_of(e), e)
            text += f'\n// {e.header}: {heading(same if e.block.leans else e)}\n'
            stem = key_of(e)
        parameters = [f'{p.type} {p.name}' for p in e.parameters]
        types = typed(e, known)
        if types:
            parameters.insert(0, types)
        call = f'{e.name}({", ".join(p.name for p in e.parameters)})'
        text += wrapped(f'inline {e.result} {key_of(e)}({", ".join(parameters)}) {{ return {call}; }}', 0) + '\n'
    text += '\n// The record of a stem for element types, in the order of its name: taps first.\n'
    text += 'template <class Stem, class... T>\nstruct RecordOf;\n'
    seen = set()
    for family in FAMILIES:
        for name in family.types:
            stem, elements = re.match(rf'Qvxs(\w+?)(?:State|Spec)_?((?:[CR]_)?(?:_?{ELEMENT})*)$', name).groups()
            kind = re.match(r'[CR](?=_)', elements)
            stem += f'_{kind[0]}' if kind else ''
            types = ''.join(f', Qvx{t}' for t in re.findall(ELEMENT, elements))
            if stem not in seen:
                seen.add(stem)
                text += f'struct {stem}Stem;\n'
            text += f'template <> struct RecordOf<{stem}Stem{types}> {{ using type = {name}; }};\n'
    return text + '\n}  // namespace qvx::handles\n\n#endif\n'


def names():
    text = TOP.format(what='The names of statuses, and what they say.', guard='QVXS_NAMES_HPP')
    text += '\n#include <qvx/qvxdefs.h>\n\nnamespace qvx {\n\ninline const char* describe(QvxStatus status) {\n  switch (status) {\n'
    for status in headers.read_statuses(INCLUDE):
        text += f'    case {status.name}: return "{status.name}{": " + status.meaning if status.value else ""}";\n'
    return text + '  }\n  return "an unknown status";\n}\n\n}  // namespace qvx\n\n#endif\n'


CALLS = '''// Stands in for the library: every function returns its number, or throws it if it returns no status.
#define NDEBUG
#define QVX_LENGTHS QVX_LENGTHS_ASSERTED
#include <cstdio>
#include <qvx/qvxs.hpp>

using namespace qvx;

int calls = 0;
int wrong = 0;
template <class Call>
void expect(const char* name, int number, Call call) {{
  int got = 0;
  try {{
    if constexpr (requires {{ static_cast<int>(call()); }}) got = static_cast<int>(call());
    else static_cast<void>(call());
  }} catch (int thrown) {{
    got = thrown;
  }}
  ++calls;
  if (got != number) std::printf("%s: the call ends elsewhere\\n", name), ++wrong;
}}

{stubs}

int main() {{
{calls}
  std::printf("%d functions called, %d of them wrongly\\n", calls, wrong);
  return wrong != 0;
}}
'''


def calls(all_exports):
    stubs, lines, known = [], [], set()
    for number, e in enumerate(all_exports, 1):
        parameters = ', '.join(f'{p.type} {p.name}' for p in e.parameters)
        end = f'return static_cast<QvxStatus>({number});' if e.result == 'QvxStatus' else f'throw {number};'
        stubs.append(f'extern "C" {e.result} {e.name}({parameters}) {{ {end} }}')
        if e.result == 'QvxStatus' and not has_record(e):
            overload = Overload(e)
            types, callee, first = [overload.argument(p) for p in overload.kept()], key_of(e), []
        else:
            types, callee, first = [p.type for p in e.parameters], f'handles::{key_of(e)}', [t for t in [typed(e, known)] if t]
        declared = ' '.join(f'std::remove_const_t<{t}> a{i}{{}};' for i, t in enumerate(types))
        arguments = ', '.join([f'{t}()' for t in first] + [f'a{i}' for i in range(len(types))])
        lines.append(f'  expect("{e.name}", {number}, [] {{ {declared} return {callee}({arguments}); }});')
    return CALLS.format(stubs='\n'.join(stubs), calls='\n'.join(lines))


def main():
    every = [export for family in FAMILIES for export in family.exports]
    if sys.argv[1:2] == ['--calls']:
        Path(sys.argv[2]).write_text(calls(every))
        return False
    bad = False
    for name, text in {'qvxs_functions.hpp': functions(every), 'qvxs_handles.hpp': handles(every), 'qvxs_names.hpp': names()}.items():
        path = INCLUDE / name
        if '--check' not in sys.argv[1:]:
            path.write_text(text)
        elif not path.exists() or path.read_text() != text:
            print(f'include/qvx/{name} is not what tools/cpp_face.py makes of the headers and traits/')
            bad = True
    return bad


if __name__ == '__main__':
    sys.exit(main())
