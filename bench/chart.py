"""Draws the ratios of a result as an SVG file, on a logarithmic axis.

    chart.py JSON-FILE SVG-FILE
"""

import json
import math
import sys
from pathlib import Path
from xml.sax.saxutils import escape

LEFT, RIGHT, LINE, TOP = 330, 60, 22, 34
WIDTH = 900
TICKS = (0.001, 0.002, 0.005, 0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1, 2, 5)
REACHED, MISSED, INFORMING = "#2a7f9e", "#b3541e", "#8a8a8a"


def place(ratio):
    span = math.log(TICKS[-1] / TICKS[0])
    inside = min(max(ratio, TICKS[0]), TICKS[-1])
    return LEFT + (WIDTH - LEFT - RIGHT) * math.log(inside / TICKS[0]) / span


def axis(height):
    for tick in TICKS:
        x = place(tick)
        colour = "#444" if tick == 1 else "#ddd"
        ends = f'x1="{x:.1f}" y1="{TOP - 8}" x2="{x:.1f}" y2="{height - 8}"'
        yield f'<line {ends} stroke="{colour}"/>'
        yield f'<text x="{x:.1f}" y="{TOP - 14}" text-anchor="middle">{tick:g}</text>'


def bar(row, y):
    x, one = place(row["ratio"]), place(1)
    colour = {True: REACHED, False: MISSED, None: INFORMING}[row["reached"]]
    yield f'<text x="{LEFT - 10}" y="{y + 12}" text-anchor="end">{escape(row["row"])}</text>'
    yield (
        f'<rect x="{min(x, one):.1f}" y="{y + 2}" width="{max(abs(x - one), 1):.1f}" height="12" '
        f'fill="{colour}"><title>{row["ratio"]:.3f}</title></rect>'
    )
    if row["limit"] is not None:
        limit = place(row["limit"])
        yield (
            f'<line x1="{limit:.1f}" y1="{y - 1}" x2="{limit:.1f}" y2="{y + 17}" '
            f'stroke="#000" stroke-width="2"/>'
        )


def draw(rows):
    height = TOP + LINE * len(rows) + 12
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" '
        f'font-family="sans-serif" font-size="12">',
        f'<rect width="{WIDTH}" height="{height}" fill="#fff"/>',
        *axis(height),
    ]
    for number, row in enumerate(rows):
        parts.extend(bar(row, TOP + LINE * number))
    return "\n".join([*parts, "</svg>", ""])


def main(result, picture):
    rows = json.loads(Path(result).read_text(encoding="utf-8"))["rows"]
    Path(picture).write_text(draw([row for row in rows if "ratio" in row]), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
