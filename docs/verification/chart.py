"""Diagrams as SVG: axes with titles and units, curves, points and a legend, one or more panels beside each other."""

import math

BLUE, RED, GREEN, PURPLE, ORANGE, GREY = "#0072b2", "#d55e00", "#009e73", "#a14c8c", "#c98500", "#666666"
INK, GRID = "#1f2d3d", "#e3e7eb"
LEFT, RIGHT, TOP, BOTTOM = 66, 16, 40, 50
FONT = 13


def steps(low, high, count=6):
    """Round numbers from `low` to `high`, about `count` of them."""
    rough = (high - low) / count
    power = 10 ** math.floor(math.log10(rough))
    step = min((factor * power for factor in (1, 2, 2.5, 5, 10)), key=lambda value: abs(value - rough))
    first = math.ceil(low / step - 1e-9)
    return [step * k for k in range(first, math.floor(high / step + 1e-9) + 1)]


def tick_text(value):
    return f"{value:.6g}" if abs(value) > 1e-12 else "0"


class Panel:
    def __init__(self, title, x, y, x_range, y_range, logarithmic=False, width=430, height=320):
        self.title, self.x_title, self.y_title = title, x, y
        self.x_range, self.y_range, self.logarithmic = x_range, y_range, logarithmic
        self.width, self.height = width, height
        self.drawn, self.legend = [], []

    def place(self, x, y):
        low, high = self.x_range
        part = math.log(x / low) / math.log(high / low) if self.logarithmic else (x - low) / (high - low)
        bottom, top = self.y_range
        return (LEFT + part * (self.width - LEFT - RIGHT),
                self.height - BOTTOM - (y - bottom) / (top - bottom) * (self.height - TOP - BOTTOM))

    def curve(self, points, colour, label=None, dash=None):
        """A line through (x, y) points; what lies outside the axes is cut off."""
        text = " ".join("{:.1f},{:.1f}".format(*self.place(x, y)) for x, y in points)
        style = f'stroke="{colour}" stroke-width="1.8"' + (f' stroke-dasharray="{dash}"' if dash else "")
        self.drawn.append(f'<polyline points="{text}" fill="none" {style}/>')
        if label:
            self.legend.append((f'<path d="M-26 0 H-2" {style}/>', label))

    def points(self, points, colour, label=None, shape="circle"):
        for x, y in points:
            if self.y_range[0] <= y <= self.y_range[1] and self.x_range[0] <= x <= self.x_range[1]:
                self.drawn.append(marker(shape, colour, *self.place(x, y)))
        if label:
            self.legend.append((marker(shape, colour, -14, 0), label))

    def upright(self, x, colour, label):
        """A vertical line at x."""
        at, _ = self.place(x, self.y_range[0])
        style = f'stroke="{colour}" stroke-width="1.2" stroke-dasharray="2 3"'
        self.drawn.append(f'<path d="M{at:.1f} {TOP} V{self.height - BOTTOM}" {style}/>')
        self.legend.append((f'<path d="M-14 -6 V6" {style}/>', label))

    def x_ticks(self):
        if not self.logarithmic:
            return steps(*self.x_range)
        low, high = self.x_range
        powers = range(math.floor(math.log10(low)), math.ceil(math.log10(high)) + 1)
        ticks = [factor * 10.0 ** power for power in powers for factor in (1, 2, 5)]
        return [tick for tick in ticks if low * 0.999 <= tick <= high * 1.001]

    def axes(self):
        right, bottom = self.width - RIGHT, self.height - BOTTOM
        yield f'<text x="{(LEFT + right) / 2}" y="24" text-anchor="middle" font-weight="bold">{self.title}</text>'
        for tick in self.x_ticks():
            at, _ = self.place(tick, self.y_range[0])
            yield f'<path d="M{at:.1f} {TOP} V{bottom}" stroke="{GRID}"/>'
            yield f'<text x="{at:.1f}" y="{bottom + 17}" text-anchor="middle">{tick_text(tick)}</text>'
        for tick in steps(*self.y_range):
            _, at = self.place(self.x_range[0], tick)
            yield f'<path d="M{LEFT} {at:.1f} H{right}" stroke="{GRID}"/>'
            yield f'<text x="{LEFT - 7}" y="{at + 4:.1f}" text-anchor="end">{tick_text(tick)}</text>'
        yield f'<rect x="{LEFT}" y="{TOP}" width="{right - LEFT}" height="{bottom - TOP}" fill="none" stroke="{INK}"/>'
        yield f'<text x="{(LEFT + right) / 2}" y="{self.height - 12}" text-anchor="middle">{self.x_title}</text>'
        middle = (TOP + bottom) / 2
        yield (f'<text x="18" y="{middle}" text-anchor="middle" transform="rotate(-90 18 {middle})">'
               f"{self.y_title}</text>")

    def svg(self, name):
        right, bottom = self.width - RIGHT, self.height - BOTTOM
        yield (f'<clipPath id="{name}"><rect x="{LEFT}" y="{TOP}" width="{right - LEFT}" '
               f'height="{bottom - TOP}"/></clipPath>')
        yield from self.axes()
        yield f'<g clip-path="url(#{name})">'
        yield from self.drawn
        yield "</g>"


def marker(shape, colour, x, y):
    style = f'fill="white" stroke="{colour}" stroke-width="1.6"'
    if shape == "square":
        return f'<rect x="{x - 3.6:.1f}" y="{y - 3.6:.1f}" width="7.2" height="7.2" {style}/>'
    if shape == "triangle":
        return f'<path d="M{x:.1f} {y - 5:.1f} l4.6 8 h-9.2 z" {style}/>'
    if shape == "cross":
        return (f'<path d="M{x - 4:.1f} {y - 4:.1f} l8 8 m0 -8 l-8 8" fill="none" stroke="{colour}" '
                'stroke-width="1.8"/>')
    return f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4" {style}/>'


def legend_rows(entries, width):
    """The entries in rows that are no wider than the figure: (row, x, drawing, label)."""
    placed, row, x = [], 0, 46
    for drawing, label in entries:
        length = 40 + 7.1 * len(label)
        if x > 46 and x + length > width:
            row, x = row + 1, 46
        placed.append((row, x, drawing, label))
        x += length
    return placed


def figure(panels, columns=2):
    """The panels in rows of `columns`; one legend below, of the entries of all panels, each once."""
    rows = [panels[k:k + columns] for k in range(0, len(panels), columns)]
    width = max(sum(panel.width for panel in row) for row in rows)
    height = sum(row[0].height for row in rows)
    entries = list(dict.fromkeys(entry for panel in panels for entry in panel.legend))
    placed = legend_rows(entries, width)
    total = height + 22 * (placed[-1][0] + 1) + 12 if placed else height
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {total}" font-family="sans-serif" '
             f'font-size="{FONT}" fill="{INK}">', '<rect width="100%" height="100%" fill="white"/>']
    y = 0
    for row in rows:
        x = 0
        for panel in row:
            lines.append(f'<g transform="translate({x} {y})">')
            lines.extend(panel.svg(f"panel-{x}-{y}"))
            lines.append("</g>")
            x += panel.width
        y += row[0].height
    for row, x, drawing, label in placed:
        lines.append(f'<g transform="translate({x} {height + 14 + 22 * row})">{drawing}'
                     f'<text x="6" y="4">{label}</text></g>')
    return "\n".join(lines + ["</svg>", ""])
