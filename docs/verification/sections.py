"""Sections by themselves: a long prismatic hull at rest, whose coefficients are those of its section times its length."""

import math

import chart
from engine import GRAVITY, Hull, Run, tables

LENGTH, DENSITY = 100.0, 1000.0
ELEMENTS, MAPPING = "CONFORMAL", "BOUND2D"
PUBLISHED = tables("sections")


def semicircle():
    arc = [math.pi / 2 * k / 58 for k in range(59)]
    return [(math.sin(a), 1 - math.cos(a)) for a in arc] + [(1, 2)]


def rectangle(beam):
    return [(0, 0), (beam / 2, 0), (beam / 2, 2)]


TRIANGLE = [(0, 0), (1, 1), (1, 2)]
LEWIS = (2.5, 1.0, 0.95)


def run(section, method, frequencies, wave=None):
    """Of a prism with draft 1 and G in the waterline; frequencies are lowest, highest and step."""
    hull = Hull(LENGTH, 1, 1, [section] * 3, water="FRESH")
    return Run(hull.input((wave or 1, wave or 1, 1), [90], method=method, grid=frequencies))


def coefficients(line):
    """Of one frequency, per density and length, damping over frequency."""
    w = line["EncFreq_rad_s"]
    values = {name: line[name.upper()] / (DENSITY * LENGTH) for name in ("a22", "a24", "a33", "a44")}
    values |= {name: line[name.upper()] / (DENSITY * LENGTH * w) for name in ("b22", "b24", "b33", "b44")}
    return values | {"K": w * w / GRAVITY, "w": w}


def at(section, method, wave_number):
    """At one wave number; with the exciting forces of beam waves."""
    w = math.sqrt(wave_number * GRAVITY)
    result = run(section, method, (w, 1.035 * w, 0.01 * w), w)
    forces = {f"x{mode}": result.forces[0][f"F{mode}_amp"] / (DENSITY * LENGTH) for mode in (2, 3, 4)}
    return coefficients(result.coefficients[0]) | forces


def over(section, method, low, high):
    """Over wave numbers from `low` to `high`."""
    first, last = math.sqrt(low * GRAVITY), math.sqrt(high * GRAVITY)
    lines = run(section, method, (first, last + 1e-6, (last - first) / 90)).coefficients
    return [coefficients(line) for line in lines]


def curve(values, name, scale=1.0):
    return [(value["K"], value[name] / scale) for value in values]


def semicircle_figure():
    solved = {method: over(semicircle(), method, 0.05, 10) for method in (ELEMENTS, MAPPING)}
    panels = []
    for mode, number in (("Heave", 3), ("Sway", 2)):
        panel = chart.Panel(f"Semicircle, {mode.lower()}", "wave number times radius, KR", "coefficient",
                            (0.04, 12), (0, 2.2 if number == 3 else 1.4), logarithmic=True)
        for kind, colour, text in (("a", chart.BLUE, "added mass"), ("b", chart.RED, "damping")):
            name = f"{kind}{number}{number}"
            panel.curve(curve(solved[ELEMENTS], name, math.pi / 2), colour, f"{text}, boundary elements")
            panel.curve(curve(solved[MAPPING], name, math.pi / 2), chart.INK, "conformal mapping", "3 4")
            panel.points([(line["KR"], line[name]) for line in PUBLISHED["semicircle"]], colour,
                         f"{text}, 160 elements")
        panels.append(panel)
    return chart.figure(panels)


def rectangle_figure():
    panels = []
    for beam in (2, 4):
        values = over(rectangle(beam), ELEMENTS, 0.05, 2.5)
        known = [line for line in PUBLISHED["rectangle"] if line["B/T"] == beam]
        for title, names in (("added mass", ("a22", "a33", "a44", "a24")), ("damping", ("b22", "b33", "b44", "b24"))):
            scale = {"a33": beam, "b33": beam}
            panel = chart.Panel(f"Rectangle B/T = {beam}, {title}", "wave number times draft, KT",
                                "coefficient (heave over B/T)", (0, 2.5), (-1, 4.5) if beam == 4 else (-0.5, 3.5))
            for name, colour, text in zip(names, (chart.BLUE, chart.RED, chart.GREEN, chart.PURPLE),
                                          ("sway", "heave", "roll", "sway and roll")):
                panel.curve(curve(values, name, scale.get(name, 1)), colour, text)
                panel.points([(line["KT"], line[name] / scale.get(name, 1)) for line in known], colour)
            panel.points([(-1, 0)], chart.GREY, "40 elements")
            panels.append(panel)
    return chart.figure(panels)


def irregular_figure():
    first = 1.71269
    values = over(rectangle(2), ELEMENTS, 1.4, 2.1)
    known = PUBLISHED["irregular"][0]
    panels = []
    for name, text, limits in (("a33", "added mass", (1.95, 2.2)), ("b33", "damping", (-0.35, 0.15))):
        panel = chart.Panel(f"Rectangle B/T = 2, heave, {text}", "wave number times draft, KT", "coefficient",
                            (1.4, 2.1), limits)
        panel.curve(curve(values, name), chart.BLUE, "this engine")
        panel.points([(known["K"], known[name + "_without"])], chart.RED, "without points inside", "cross")
        panel.points([(known["K"], known[name])], chart.GREEN, "with points inside, reference")
        panel.upright(first, chart.GREY, "first irregular frequency")
        panels.append(panel)
    return chart.figure(panels)


def semicircle_table():
    yield ["KR"] + [f"{name}: {kind}" for name in ("a33", "b33", "a22", "b22")
                    for kind in ("reference", "elements", "mapping")]
    for line in PUBLISHED["semicircle"]:
        solved = [at(semicircle(), method, line["KR"]) for method in (ELEMENTS, MAPPING)]
        values = [[line[name]] + [value[name] / (math.pi / 2) for value in solved]
                  for name in ("a33", "b33", "a22", "b22")]
        yield [f"{line['KR']:.2f}"] + [f"{value:.4f}" for three in values for value in three]


def deviation_table(name, section, key, methods):
    """The largest deviation of each coefficient, in percent of its largest value."""
    lines = PUBLISHED[name]
    names = [column for column in lines[0] if column[0] in "ab"]
    yield ["coefficient", "largest value"] + [f"deviation, {text} (%)" for text, _ in methods]
    solved = [[at(section(line), method, line[key]) for line in lines] for _, method in methods]
    for column in names:
        largest = max(abs(line[column]) for line in lines)
        worst = [max(abs(value[column] - line[column]) for value, line in zip(values, lines)) for values in solved]
        yield [column, f"{largest:.4f}"] + [f"{100 * value / largest:.2f}" for value in worst]


def rectangle_table():
    return deviation_table("rectangle", lambda line: rectangle(line["B/T"]), "KT", [("elements", ELEMENTS)])


def lewis_table():
    return deviation_table("lewis", lambda line: LEWIS, "K", [("elements", ELEMENTS), ("mapping", MAPPING)])


def haskind_table():
    """Damping from the forces of beam waves, b = w X^2/g^2, beside that of the pressure."""
    yield ["section", "K"] + [f"{mode}: {kind}" for mode in ("sway", "heave", "roll")
                              for kind in ("pressure", "wave force")]
    for text, section in (("semicircle", semicircle()), ("rectangle", rectangle(2)), ("triangle", TRIANGLE)):
        for wave_number in (0.5, 1, 2):
            value = at(section, ELEMENTS, wave_number)
            line = []
            for mode in (2, 3, 4):
                line += [value[f"b{mode}{mode}"], value[f"x{mode}"] ** 2 / GRAVITY ** 2]
            yield [text, f"{wave_number:g}"] + [f"{number:.5f}" for number in line]
