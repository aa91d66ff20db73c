"""Pictures for the pages: boxes and numbers are drawn here, the library's samples by the examples."""

from dataclasses import dataclass


@dataclass
class Picture:
    file: str
    caption: str
    families: tuple  # the pages that show it, maybe under a heading: page#heading
    svg: str = ""


STYLE = """<style>
text { font: 14px system-ui, sans-serif; fill: #24292f; } .small { font-size: 12px; fill: #57606a; } .label { font-weight: 600; }
.real { fill: #cfe3fb; } .imaginary { fill: #fde2c4; } .zero { fill: #ececec; } .edge { fill: #cdeccf; } rect { stroke: #8c959f; } .ground { fill: #fff; stroke: none; }
.result { fill: #cdeccf; } .lost { fill: #f8cfcf; } path { fill: none; stroke: #57606a; }
</style>"""


def svg(width, height, body, label):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}" role="img">'
            f"<title>{label}</title>{STYLE}<rect class=\"ground\" width=\"{width}\" height=\"{height}\"/>{body}</svg>\n")


def cell(x, y, width, kind, words):
    return (f'<rect class="{kind}" x="{x}" y="{y}" width="{width}" height="34" rx="3"/>'
            f'<text x="{x + width / 2}" y="{y + 22}" text-anchor="middle">{words}</text>')


def layouts():
    """The places in the packed spectra of 8 reals and of 7."""
    def entry(k, part, n):
        if part == "0":
            return "zero", "0"
        if k == 0 or 2 * k == n:
            return "edge", f"X{k}"
        return ("real" if part == "Re" else "imaginary"), f"{part} X{k}"

    body, y = "", 16
    for n in (8, 7):
        body += f'<text class="label" x="12" y="{y + 14}">N = {n}</text>'
        inner = [(k, part) for k in range(1, (n + 1) // 2) for part in ("Re", "Im")]
        last = [(n // 2, "Re")] if n % 2 == 0 else []
        rows = {"Pack": [(0, "Re")] + inner + last, "Perm": [(0, "Re")] + last + inner,
                "CCS": [(0, "Re"), (0, "0")] + inner + ([(n // 2, "Re"), (n // 2, "0")] if last else [])}
        for i in range(n + 2 if n % 2 == 0 else n + 1):
            body += f'<text class="small" x="{98 + 66 * i}" y="{y + 14}" text-anchor="middle">{i}</text>'
        y += 22
        for name, entries in rows.items():
            body += f'<text x="12" y="{y + 22}">{name}</text>'
            for i, (k, part) in enumerate(entries):
                body += cell(68 + 66 * i, y, 62, *entry(k, part, n))
            y += 40
        y += 16
    return svg(740, y, body, "Packed spectra")


def scaling():
    """One sum of 16-bit integers by way of its exact value."""
    body = '<text class="label" x="16" y="28">qvxsAdd_16s_Sfs: 30000 + 30000</text>'
    for row, (factor, scaled, result, lost) in enumerate((("0", "60000", "32767", True), ("1", "30000", "30000", False))):
        y = 48 + 70 * row
        body += f'<text x="16" y="{y + 22}">scaleFactor {factor}</text>'
        steps = [(140, "real", "60000", "exact"), (310, "real", scaled, f"× 2^-{factor}"), (480, "real", scaled, "rounded"),
                 (650, "lost" if lost else "result", result, "saturated" if lost else "in range")]
        for i, (x, kind, words, below) in enumerate(steps):
            body += cell(x, y, 110, kind, words) + f'<text class="small" x="{x + 55}" y="{y + 50}" text-anchor="middle">{below}</text>'
            if i:
                body += f'<path d="M{x - 56} {y + 17} h44 m-7 -5 l7 5 l-7 5"/>'
    return svg(780, 190, body, "The scale factor")


def draw():
    return [
        Picture("layouts.svg", "The three layouts of the spectrum of N real numbers. X0 and, for even N, X4 are real.",
                ("fft", "spectrum", "dft", "scaling#packed-spectra"), layouts()),
        Picture("scaling.svg", "Nothing is rounded or saturated before the scale factor: 1 saves the sum that 0 clips.",
                ("arith", "scaling#the-scale-factor"), scaling()),
    ]
