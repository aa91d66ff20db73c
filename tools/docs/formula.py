"""Formulas as the headers write them, `dst[k] = f * sum over n of src[n] * exp(-2 pi i n k / N)`, set in MathML.

`Parser` reads the longest formula from a place in a text; what is none stays text. A product needs no sign between numbers, `pi` and
names of one letter."""

import re
from html import escape

TOKEN = re.compile(r"\s*(?P<number>\d+(?:\.\d+)?)|\s*(?P<name>[A-Za-z][A-Za-z_]*\d*(?:_\w+)?)|\s*(?P<sign>\.\.\.|\.\.|<=|>=|>>|<<|[-+*/^=<>()\[\]|,])")
LETTERS = {"pi": "π", "eps": "ε", "alpha": "α", "mu": "μ"}
RELATIONS = {"=": "=", "<": "<", ">": ">", "<=": "≤", ">=": "≥"}
PRODUCT = {"*", "/", ">>", "<<"}
# A name alone in running text that is a word, not a factor.
WORDS = {"a", "an", "the", "and", "or", "of", "to", "in", "is", "as", "if", "at", "by", "for", "where", "with", "I"}


class NoFormula(Exception):
    pass


class Parser:
    def __init__(self, text, at=0, display=False):
        self.text, self.at, self.display = text, at, display

    def peek(self):
        token = TOKEN.match(self.text, self.at)
        return (token.lastgroup, token[token.lastgroup], token) if token else (None, None, None)

    def take(self, sign):
        if self.peek()[1] != sign:
            raise NoFormula
        self.at = self.peek()[2].end()

    def phrase(self, pattern):
        found = re.compile(r"\s*" + pattern).match(self.text, self.at)
        if found:
            self.at = found.end()
        return found

    def equation(self):
        """MathML of an equation or a chain of comparisons, None if there is none here."""
        try:
            parts, relations = [self.sum()], 0
            while self.peek()[1] in RELATIONS:
                before = self.at
                sign = self.peek()[1]
                self.take(sign)
                try:
                    parts += [f"<mo>{escape(RELATIONS[sign])}</mo>", self.sum()]
                except NoFormula:
                    self.at = before
                    break
                relations += 1
            return "".join(parts) if relations else None
        except NoFormula:
            return None

    def sum(self):
        result = self.product()
        while True:
            sign = self.peek()[1]
            if sign not in ("+", "-", ".."):
                return result
            before = self.at
            self.take(sign)
            try:
                right = self.product()
            except NoFormula:
                self.at = before
                return result
            result += f"<mo>{ {'+': '+', '-': '−', '..': '…'}[sign] }</mo>{right}"

    def product(self):
        result = self.power()
        while True:
            kind, value, token = self.peek()
            before = self.at
            if value in PRODUCT:
                self.take(value)
                if value == "*" and self.peek()[1] in ("*", "/"):
                    raise NoFormula
                right = self.power()
                if value == "/" and self.display:
                    result = f"<mfrac><mrow>{unwrapped(result)}</mrow><mrow>{unwrapped(right)}</mrow></mfrac>"
                else:
                    sign = {"*": "·", "/": "/", ">>": "≫", "<<": "≪"}[value]
                    result += f"<mo>{sign}</mo>{right}"
                continue
            factor = kind == "name" and value not in WORDS and (
                len(value) == 1 or value in LETTERS or value in ("cos", "sin", "exp", "rFreq") or self.text[token.end():token.end() + 1] == "[")
            bracket = value == "(" and (self.text[self.at - 1].isdigit() or self.text[:self.at].endswith(("pi", " s", " n")))
            if not factor and not bracket:
                return result
            try:
                result += "<mo>&#x2062;</mo>" + self.power()
            except NoFormula:
                self.at = before
                return result

    def power(self):
        base = self.atom()
        if self.peek()[1] == "^":
            self.take("^")
            return f"<msup><mrow>{base}</mrow><mrow>{unwrapped(self.inline(self.signed))}</mrow></msup>"
        return base

    def inline(self, read):
        """As read does, without fractions on two lines: an exponent has no room for them."""
        before, self.display = self.display, False
        try:
            return read()
        finally:
            self.display = before

    def signed(self):
        sign = self.peek()[1]
        if sign in ("-", "+"):
            self.take(sign)
            return f"<mrow><mo>{'−' if sign == '-' else '+'}</mo>{self.atom()}</mrow>"
        return self.atom()

    def atom(self):
        over = self.phrase(r"(?:the )?sum over (?P<index>\w+)(?: (?P<range>from \S+ on))? of(?= )")
        if over:
            under = f"<mi>{over['index']}</mi>" + (f"<mo>≥</mo><mn>{over['range'].split()[1]}</mn>" if over["range"] else "")
            return f"<munder><mo movablelimits=\"false\">∑</mo><mrow>{under}</mrow></munder>{self.product()}"
        if self.phrase(r"(?:the )?sum of (?=\w+\[)"):
            return f"<mo movablelimits=\"false\">∑</mo>{self.product()}"
        kind, value, token = self.peek()
        if kind is None:
            raise NoFormula
        if value in ("-", "+"):
            self.take(value)
            return f"<mo>{'−' if value == '-' else '+'}</mo>{self.power()}"
        if value == "(":
            self.take("(")
            inner = self.sum()
            self.take(")")
            return bracketed("(", inner, ")")
        if value == "|":
            self.take("|")
            inner = self.sum()
            self.take("|")
            return bracketed("|", inner, "|")
        if value == "...":
            self.take(value)
            return "<mo>⋯</mo>"
        if kind == "sign":
            raise NoFormula
        self.at = token.end()
        if kind == "number":
            return f"<mn>{value}</mn>"
        if value in WORDS:
            raise NoFormula
        name = f"<mi>{LETTERS.get(value, escape(value))}</mi>"
        following = self.text[self.at:self.at + 1]
        if following == "(":
            self.take("(")
            arguments = [self.inline(self.sum) if value == "exp" else self.sum()]
            while self.peek()[1] == ",":
                self.take(",")
                arguments.append(self.sum())
            self.take(")")
            if value == "sqrt":
                return f"<msqrt>{''.join(arguments)}</msqrt>"
            if value == "exp" and self.display:
                return f"<msup><mi>e</mi><mrow>{arguments[0]}</mrow></msup>"
            return f"<mrow>{name}<mo>&#x2061;</mo>{bracketed('(', '<mo>,</mo>'.join(arguments), ')')}</mrow>"
        if following == "[":
            self.take("[")
            inner = self.sum()
            self.take("]")
            return f"<mrow>{name}{bracketed('[', inner, ']')}</mrow>"
        return name


def bracketed(left, inner, right):
    """Brackets as high as the line, unless there is a fraction between them."""
    fixed = "" if "<mfrac>" in inner else ' stretchy="false"'
    return f"<mrow><mo{fixed}>{left}</mo>{inner}<mo{fixed}>{right}</mo></mrow>"


def unwrapped(markup):
    """Without brackets that a fraction or an exponent makes needless."""
    inner = re.fullmatch(r"<mrow><mo[^>]*>\(</mo>(.*)<mo[^>]*>\)</mo></mrow>", markup, re.S)
    return inner[1] if inner and ">(</mo>" not in inner[1] else markup


START = re.compile(r"(?<![\w.*\[(|&>-])(?:\|?[A-Za-z]\w*(?:\[[^\]=]*\])?\|?) (?:=) ")


def math(markup, display=False):
    kind = ' display="block"' if display else ""
    return f"<math{kind}><mrow>{markup}</mrow></math>"


def read(text, at=0, display=False):
    """The formula that begins at a place of the text: its MathML and its end, or None."""
    parser = Parser(text, at, display)
    markup = parser.equation()
    after = text[parser.at:]
    # A formula that stops before a sign was not understood to its end, and a name before a word begins a sentence's words.
    if markup is None or re.match(r"\s*[-+*/^?&(\[=<>|]|\w|\.\w|\s*(mod|times|taken|or|if|unless)\b", after):
        return None
    if re.search(r"[A-Za-z]\w*$", text[at:parser.at]) and re.match(r" (?!where|with|for|points|real|integer|numbers|and)\w", after):
        return None
    return markup, parser.at


def find(text):
    """The formulas in running text: (begin, end, MathML)."""
    found, at = [], 0
    while True:
        start = START.search(text, at)
        if not start:
            return found
        formula = read(text, start.start())
        if formula:
            found.append((start.start(), formula[1], formula[0]))
            at = formula[1]
        else:
            at = start.end()


def lines(figure):
    """A figure that consists of formulas, as (label, MathML, remark) a line; None for any other figure."""
    result = []
    for line in figure.split("\n"):
        labelled = re.match(r"\s*(?:(?P<label>[A-Za-z]+)(?::\s+|\s{2,}))?", line)
        rest = line[labelled.end():]
        formula = read(rest, display=True)
        if not formula:
            return None
        remark = rest[formula[1]:].strip().strip(";,.").strip()
        if "=" in remark:
            return None
        result.append((labelled["label"] or "", formula[0], remark))
    return result
