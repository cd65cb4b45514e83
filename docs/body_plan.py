#!/usr/bin/env python3
"""Draws the body plan of a sample hull: body_plan.py > docs/body-plan.svg"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "samples"))
import hulls  # noqa: E402

SCALE, MARGIN = 12, 30


def main():
    hull = hulls.Frigate()
    middle = MARGIN + SCALE * hull.beam / 2
    bottom = MARGIN + SCALE * hull.depth
    width, height = 2 * middle, bottom + 2 * MARGIN
    waterline = bottom - SCALE * hull.draft
    print(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width:.0f} {height:.0f}" font-family="sans-serif">')
    print('<rect width="100%" height="100%" fill="white"/>')
    print(f'<path d="M{MARGIN / 2} {waterline} H{width - MARGIN / 2}" stroke="#3b82c4" stroke-dasharray="8 5"/>')
    print(f'<path d="M{middle} {MARGIN} V{bottom}" stroke="#999999"/>')
    for station in range(hulls.STATIONS):
        # Forward stations stand on the right, aft ones on the left.
        side = 1 if 2 * station < hulls.STATIONS else -1
        points = " ".join(f"{middle + side * SCALE * y:.1f},{bottom - SCALE * z:.1f}"
                          for y, z in hull.section(station))
        print(f'<polyline points="{points}" fill="none" stroke="#1f2d3d" stroke-width="1.4"/>')
    print(f'<text x="{middle}" y="{bottom + MARGIN}" text-anchor="middle" font-size="15" fill="#1f2d3d">'
          f"Sample02: {hull.length:.0f} x {hull.beam:.0f} x {hull.draft:.1f} ft, 21 stations</text>")
    print("</svg>")


if __name__ == "__main__":
    main()
