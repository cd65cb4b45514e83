#!/usr/bin/env python3
"""Renews the figures and tables of docs/verification.md from the engine's own files: plots.py [NAME ...]

It runs build/bin/OE7 in scratch folders. With names, only those figures and tables are renewed. The reference values
stand in tests/oe7/reference.
"""

import pathlib
import re
import sys

import sections
import ships

HERE = pathlib.Path(__file__).resolve().parent
PAGE = HERE.parent / "verification.md"

FIGURES = {
    "semicircle": sections.semicircle_figure,
    "rectangle": sections.rectangle_figure,
    "irregular": sections.irregular_figure,
    "head-seas": ships.head_figure,
    "oblique-seas": ships.oblique_figure,
    "loads": ships.load_figure,
}
TABLES = {
    "semicircle": sections.semicircle_table,
    "rectangle": sections.rectangle_table,
    "lewis": sections.lewis_table,
    "haskind": sections.haskind_table,
    "box": ships.box_table,
    "head-seas": ships.head_table,
    "oblique-seas": ships.oblique_table,
    "cases": ships.case_table,
    "bending": ships.bending_table,
    "closure": ships.rest_table,
}


def markdown(rows):
    rows = list(rows)
    lines = ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join([lines[0], "|" + "---|" * len(rows[0])] + lines[1:])


def put_table(name, rows):
    """Between the two comments that name the table."""
    page = PAGE.read_text()
    pattern = re.compile(rf"(<!-- table {name} -->\n).*?(<!-- end -->)", re.DOTALL)
    if not pattern.search(page):
        sys.exit(f"docs/verification.md has no place for the table {name}")
    PAGE.write_text(pattern.sub(lambda match: f"{match[1]}{markdown(rows)}\n{match[2]}", page))


def main(names):
    for name, draw in FIGURES.items():
        if not names or name in names:
            print(f"figure {name}")
            (HERE / f"{name}.svg").write_text(draw())
    for name, rows in TABLES.items():
        if not names or name in names:
            print(f"table {name}")
            put_table(name, rows())


if __name__ == "__main__":
    main(sys.argv[1:])
