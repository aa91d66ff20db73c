#!/usr/bin/env python3
"""The reference site: static pages, one a family, made of the public headers, traits, docs/*.md and the examples.

    site.py --version 7.0 --output build/docs [--build build/release --variant w4]

With a build, the examples run and their pages hold what they printed and drew. The pages need no server: search is a script over an
index in a script."""

import argparse
import html
import json
import re
import shutil
import sys
from pathlib import Path

import jinja2
import markdown
import markupsafe
from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import CLexer, CppLexer

import examples
import formula
import pictures

sys.path.insert(0, str(Path(__file__).parent.parent))

from interface import headers  # noqa: E402
from interface.traits import Traits  # noqa: E402

HERE = Path(__file__).parent
ROOT = HERE.parent.parent

# The pages of docs/ and their place in the menu; others follow in the order of their names.
PAGES = {"guide": "Guide", "contracts": "Contracts", "scaling": "Scaling", "performance": "Performance"}


class Site:
    def __init__(self, options):
        self.options = options
        self.output = Path(options.output)
        self.families = headers.read_families(ROOT / "include/qvx")
        self.stems = {stem for family in self.families for stem in family.stems}  # those of the FFT are in two families
        self.statuses = headers.read_statuses(ROOT / "include/qvx")
        self.core = headers.read_core(ROOT / "include/qvx")
        self.traits = Traits(ROOT / "traits")
        self.docs = {path.stem: path for path in sorted((ROOT / "docs").glob("*.md"))}
        self.pictures = pictures.draw()
        for family in self.families:
            family.short = re.split(r": |, in ", family.title)[0]
        self.examples = examples.read(ROOT)
        self.templates = jinja2.Environment(loader=jinja2.FileSystemLoader(HERE / "templates"), autoescape=True, trim_blocks=True,
                                            lstrip_blocks=True)
        self.templates.filters["power"] = lambda words: markupsafe.Markup(re.sub(r"\^(\w+)", r"<sup>\1</sup>", html.escape(words)))
        self.where = {}  # name of a function or status -> page#place
        for family in self.families:
            for block in family.documented:
                for export in block.exports:
                    self.where[export.name] = f"{family.name}.html#{export.name}"
                    self.where.setdefault(export.stem, f"{family.name}.html#{export.stem}")
            for block in family.blocks:
                for name, _, _ in block.constants:
                    self.where[name] = f"{family.name}.html#{name}"
        for status in self.statuses:
            self.where[status.name] = f"statuses.html#{status.name}"
        for name, _, _ in self.core:
            self.where[name] = f"core.html#{name}"

    # ---- text

    def linked(self, text):
        """Escaped text in which names of functions, statuses and headers lead to them."""
        def link(found):
            name = found[0]
            if name in self.where:
                return f'<a href="{self.where[name]}"><code>{name}</code></a>'
            header = re.fullmatch(r"qvxs_(\w+)\.h", name)
            if header and any(f.name == header[1] for f in self.families):
                return f'<a href="{header[1]}.html"><code>{name}</code></a>'
            return f"<code>{name}</code>"
        # A stem may be written without its end: qvxsFFTFwd_, QVX_FFT_SCALE_.
        text = html.escape(text, quote=False)
        text = re.sub(r"(?<![\w\[])(2|10|e)\^(?:\((-?\w+(?: ?[-+] ?\w+)?)\)|(-?\w+))", r"\1<sup>\2\3</sup>", text).replace("<sup>-", "<sup>−")
        return re.sub(r"\b(?:qvxs_\w+\.h|qvx[A-Zs]\w*|QVX_\w+|(?:8|16|32|64)(?:sc|fc|[usf])\w*)\b", link, text)

    def prose(self, text):
        """Running text, its formulas set."""
        result, at = "", 0
        for begin, end, markup in formula.find(text):
            result += self.linked(text[at:begin]) + formula.math(markup)
            at = end
        result += self.linked(text[at:])
        # The parameters at the beginning of a paragraph.
        return re.sub(r"^((?:[\w*\[\]]+)(?:(?:, | and )[\w*\[\]]+)*)(?= ?(?:\([^)]*\))?: )", r'<span class="parameter">\1</span>', result)

    def block(self, block):
        """The block's text: a formula that it begins with is displayed on its own."""
        out = []
        for i, (kind, part) in enumerate(block.parts):
            if kind == "figure":
                lines = formula.lines(part)
                if lines:
                    rows = "".join(f"<tr><th>{html.escape(label)}</th><td>{formula.math(markup, True)}</td><td>{html.escape(remark)}</td></tr>"
                                   for label, markup, remark in lines)
                    out.append(f'<div class="wide"><table class="formulas">{rows}</table></div>')
                else:
                    out.append(f"<pre>{html.escape(part)}</pre>")
                continue
            if part.startswith("Returns "):
                out.append(f'<p class="returns">{self.prose(part)}</p>')
                continue
            # The formula that a block begins with, maybe after a name: "Hann: w[n] = ...".
            if i == 0:
                head = re.match(r"(?:[^.;:=]{1,90}: )?\*?", part)
                first = formula.read(part, head.end(), True)
                if first and re.match(r"[.;:,]( |$)|$", part[first[1]:]):
                    label = head[0].rstrip("*")
                    out.append(f"<p>{self.prose(label)}</p>" if label else "")
                    out.append(f'<div class="formula">{formula.math(first[0], True)}</div>')
                    part = part[first[1]:].lstrip(".;:, ")
                    part = part[:1].upper() + part[1:] if re.match(r"[a-z]+[ ,]", part) else part
            if part:
                out.append(f"<p>{self.prose(part)}</p>")
        for name, value, meaning in block.constants:
            out.append(f'<p id="{name}"><code>{name}</code> = {value}: {self.prose(meaning)}</p>')
        return "\n".join(out)

    def returned(self, block):
        """The statuses of a block's functions that its text leaves to another block's."""
        found = headers.returned(block, self.traits, self.families)
        return [status for status in self.statuses if status.name in found and not re.search(rf"\b{status.name}\b", block.text)]

    def prototype(self, export):
        arguments = ", ".join(html.escape(re.sub(r"\* ", "*\u00a0", a)) for a in export.arguments) or "void"
        arguments = re.sub(r"(\w+)(?=,|$)", r"<i>\1</i>", arguments) if export.arguments else arguments
        return f"{html.escape(export.result)} <b>{export.name}</b>({arguments})"

    # ---- pages

    def write(self, name, template, **values):
        menu = [(f"{page}.html", title) for page, title in PAGES.items() if page in self.docs]
        menu += [(f"{page}.html", self.titles[page]) for page in self.docs if page not in PAGES and page != "HACKING"]
        page = self.templates.get_template(template).render(
            name=name, version=self.options.version, families=self.families, menu=menu, stylesheet="style.css", **values)
        (self.output / name).write_text(page)

    def family(self, family):
        blocks = []
        near = {stem: [] for stem in family.stems}
        for example in self.examples:
            for stem in near:
                if re.search(rf"\b{stem}(?:_|(?:8|16|24|32|64)[usf])", example.text):
                    near[stem].append(example)
        seen = set()
        for block in family.blocks:
            stems = [stem for stem in block.stems if stem not in seen and not seen.add(stem)]
            used = list({example.name: example for stem in block.stems for example in near[stem]}.values())
            blocks.append({"block": block, "text": self.block(block), "anchors": stems, "statuses": self.returned(block), "examples": used,
                           "named": [export.name for export in block.exports],
                           "prototypes": [(export.name, self.prototype(export)) for export in block.exports],
                           "summary": headers.summary(block.stems[0], [block]) if block.stems else ""})
        self.write(f"{family.name}.html", "family.html", title=family.title, family=family, blocks=blocks,
                   pictures=[p for p in self.pictures if family.name in p.families])

    def status_page(self):
        returns = {status.name: {} for status in self.statuses}
        for family in self.families:
            for block in family.documented:
                for name in headers.returned(block, self.traits, self.families) & set(returns):
                    returns[name].setdefault(family.name, {}).update(dict.fromkeys(block.stems))
        rows = []
        for status in self.statuses:
            by_family = [(f, list(returns[status.name][f.name])) for f in self.families if f.name in returns[status.name]]
            rows.append((status, by_family, len({stem for _, stems in by_family for stem in stems})))
        self.write("statuses.html", "statuses.html", title="Status codes", rows=rows, total=len(self.stems))

    def document(self, name, text):
        """A page of docs/: Markdown, its links turned to pages of the site, the functions it names to their blocks."""
        converter = markdown.Markdown(extensions=["tables", "fenced_code", "toc", "sane_lists", "md_in_html"],
                                      extension_configs={"toc": {"toc_depth": "2-3"}})
        body = converter.convert(text)
        body = re.sub(r'href="(?:docs/)?([\w-]+)\.md(#[^"]*)?"', lambda m: f'href="{m[1]}.html{m[2] or ""}"', body)
        body = re.sub(r'>([\w-]+)\.md</a>', lambda m: f">{self.titles.get(m[1], m[1])}</a>", body)
        body = re.sub(r'href="(?:\.\./)*include/qvx/qvxs_(\w+)\.h"', r'href="\1.html"', body)
        body = re.sub(r'href="(?:\.\./)*examples/(\w+)/?"', r'href="example-\1.html"', body)
        # Links to what the site does not hold: the text stays.
        body = re.sub(r'<a href="(?:\.\./)*(?:traits|tests|src|bench|examples)[^"]*">(.*?)</a>', r"\1", body)
        body = re.sub(r'(src|href)="(?:docs/)?performance/([^"]+)"', r'\1="performance/\2"', body)
        body = re.sub(r"<code>((?:qvx(?:s|Stat|Warn)?)[A-Z0-9]\w*)</code>(?!</a>)",
                      lambda m: f'<a href="{self.where[m[1]]}"><code>{m[1]}</code></a>' if m[1] in self.where else m[0], body)
        body = body.replace("<table>", '<div class="wide"><table>').replace("</table>", "</table></div>")
        body = re.sub(r"<code class=\"language-(c|cpp)\">(.*?)</code>",
                      lambda m: f"<code>{self.coloured(html.unescape(m[2]), m[1] == 'c')}</code>", body, flags=re.S)
        for picture in self.pictures:  # under the headings that they are for
            for page in picture.families:
                if page.partition("#")[0] == name and "#" in page:
                    shown = str(self.templates.get_template("pictures.html").module.show([picture]))
                    body = re.sub(rf'(<h2 id="{page.partition("#")[2]}">.*?</h2>)', lambda m: m[1] + shown, body)
        contents = [(t["id"], t["name"]) for token in converter.toc_tokens for t in [token] + token["children"] if t["level"] == 2]
        self.write(f"{name}.html", "document.html", title=self.titles[name], body=body, contents=contents)
        return [(f"{name}.html#{place}", words, self.titles[name]) for place, words in contents]

    def coloured(self, source, plain_c):
        return highlight(source, CLexer() if plain_c else CppLexer(), HtmlFormatter(nowrap=True)).rstrip("\n")

    def example(self, example):
        sources = [(path.name, self.coloured(path.read_text(), False)) for path in example.sources]
        used = [name for name in sorted({m for m in re.findall(r"\bqvxs\w+", example.text) if m in self.where})]
        self.write(f"example-{example.name}.html", "example.html", title=example.name, example=example, sources=sources,
                   used=[(name, self.where[name]) for name in used])

    def index(self, headings):
        """The index of the search: for a stem its page, its line, and the types and forms of its functions."""
        stems = []
        for family in self.families:
            for stem in family.stems:
                blocks = [block for block in family.documented if stem in block.stems]
                ends = [e.name.removeprefix(stem) for block in blocks for e in block.exports if e.stem == stem]
                stems.append([stem, family.name, headers.summary(stem, blocks), " ".join(ends)])
        rest = [[s.name, f"statuses.html#{s.name}", f"{s.value}: {s.meaning}"] for s in self.statuses]
        rest += [[name, f"core.html#{name}", text.split(". ")[0]] for name, _, text in self.core]
        rest += [[example.name, f"example-{example.name}.html", "example: " + example.does] for example in self.examples]
        rest += [[words, url, page] for url, words, page in headings]
        rest += [[f.title, f"{f.name}.html", "family"] for f in self.families]
        script = "var qvxsIndex = " + json.dumps({"stems": stems, "rest": rest}, separators=(",", ":"), ensure_ascii=False) + ";\n"
        (self.output / "search-index.js").write_text(script)

    def make(self):
        shutil.rmtree(self.output, ignore_errors=True)
        self.output.mkdir(parents=True)
        for name in ("style.css", "search.js"):
            shutil.copy(HERE / "templates" / name, self.output)
        with open(self.output / "style.css", "a") as style:
            for scheme, code in (("light", "default"), ("dark", "github-dark")):
                rules = [line for line in HtmlFormatter(style=code).get_style_defs("pre").split("\n") if re.match(r"pre \.\w+ ", line)]
                style.write(f"@media (prefers-color-scheme: {scheme}) {{\n" + "\n".join(rules) + "\n}\n")
        shutil.copytree(ROOT / "docs/performance", self.output / "performance")
        self.titles = {name: re.search(r"^# (.*)$", path.read_text(), re.M)[1] for name, path in self.docs.items()}
        self.titles |= PAGES
        if self.options.build:
            examples.run(self.examples, Path(self.options.build), self.options.variant, self.output)
        self.pictures += [p for example in self.examples for p in example.pictures if (self.output / p.file).exists()]
        for picture in self.pictures:
            if picture.svg:
                (self.output / picture.file).write_text(picture.svg)
        for family in self.families:
            self.family(family)
        headings = [h for name, path in self.docs.items() for h in self.document(name, path.read_text())]
        for example in self.examples:
            self.example(example)
        self.status_page()
        core = [(name, html.escape(prototype), self.prose(text)) for name, prototype, text in self.core]
        self.write("core.html", "core.html", title="The core library", core=core)
        self.write("examples.html", "examples.html", title="Examples", examples=self.examples)
        self.write("functions.html", "functions.html", title="All functions")
        start = self.coloured(re.search(r"```c\n(.*?)```", (ROOT / "README.md").read_text(), re.S)[1], True)
        self.write("index.html", "index.html", title="qvxs", start=start, count=sum(len(f.exports) for f in self.families),
                   stems=len(self.stems), pictures=self.pictures, examples=self.examples)
        self.index(headings)


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--version", required=True)
    parser.add_argument("--output", required=True)
    parser.add_argument("--build", help="the build whose examples are run")
    parser.add_argument("--variant", help="with this variant")
    Site(parser.parse_args()).make()
