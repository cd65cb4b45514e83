"""Whole ships: a box at rest, the Wigley hull in waves, and the reference cases of the test suite."""

import math

import chart
from engine import GRAVITY, LOADS, MODES, REFERENCE, Hull, Run, tables

KNOT = 0.514444
ELEMENTS, MAPPING = "CONFORMAL", "BOUND2D"
RESPONSES = tables("wigley-responses")
FROUDE = (0, 0.2, 0.3)


def frequency(wavelength):
    return math.sqrt(2 * math.pi * GRAVITY / wavelength)


def wigley():
    """120 x 12 x 7.5 m in fresh water, sections of 60 points."""
    length, beam, draft = 120.0, 12.0, 7.5
    heights = [draft * (1 - math.cos(math.pi / 2 * k / 58)) for k in range(59)] + [11.0]
    sections = []
    for station in range(21):
        x = 1 - station / 10
        breadth = beam / 2 * (1 - x * x) * (1 + 0.2 * x * x)
        sections.append([(breadth * (1 - min((z - draft) / draft, 0) ** 2), z) for z in heights])
    return Hull(length, draft, 5.5, sections, roll_radius=4, pitch_radius=30, water="FRESH")


def area(section, draft):
    return sum((a[0] + b[0]) * (b[1] - a[1]) for a, b in zip(section, section[1:]) if b[1] <= draft + 1e-9)


def slices(areas, spacing):
    """Of parabolas through neighbouring areas: volumes half a spacing ahead and behind each station."""
    def end(first, second, third):
        return first / 2 + (4 * second - 3 * first - third) / 16 + (first - 2 * second + third) / 48

    inner = [(a + 22 * b + c) / 24 for a, b, c in zip(areas, areas[1:], areas[2:])]
    return [spacing * part for part in [end(*areas[:3])] + inner + [end(*areas[:-4:-1])]]


def loaded_wigley(cuts):
    """With masses spread like the buoyancy, and the pitch radius of these masses."""
    hull = wigley()
    spacing = hull.length / 20
    hull.masses = slices([area(section, hull.draft) for section in hull.sections], spacing)
    moments = 0.0
    for station, mass in enumerate(hull.masses):
        inner = station not in (0, 20)
        width = spacing if inner else spacing / 2
        x = hull.length / 2 - station * spacing if inner else hull.length / 2 - spacing / 4
        moments += mass * (x * x + width * width / 12)
    hull.pitch_radius, hull.cuts = math.sqrt(moments / sum(hull.masses)), cuts
    return hull


def speeds(hull):
    return [froude * math.sqrt(GRAVITY * hull.length) / KNOT for froude in FROUDE]


def motions_at(hull, wavelength, directions, method=ELEMENTS):
    """Amplitudes by Froude number, mode and heading at one wavelength over length."""
    w = frequency(wavelength * hull.length)
    binary = Run(hull.input((w, w, 1), directions, speeds(hull), method)).binary
    return {(froude, mode, heading): abs(result["motion"][mode, heading][0])
            for froude, result in zip(FROUDE, binary.results) for mode in MODES for heading in binary.headings}


def reached(value, line, name):
    """A value and, in brackets, the reference ones: the same theory, other programs."""
    known = [line[key] for key in (name, name + "_strip", name + "_3d") if key in line]
    return f"{value:.3f} ({'; '.join(f'{number:.3f}' for number in known)})"


def head_table():
    yield ["wavelength/length"] + [f"{mode}, Fn {froude:g}" for froude in FROUDE for mode in ("heave", "pitch")]
    for line in RESPONSES["head"]:
        values = motions_at(wigley(), line["wavelength"], [180])
        yield [f"{line['wavelength']:.2f}"] + [reached(values[froude, mode, 180], line, f"{mode}_{froude:g}")
                                               for froude in FROUDE for mode in ("heave", "pitch")]


def oblique_table():
    columns = [("heave", 90), ("roll", 90), ("heave", 135), ("pitch", 135), ("roll", 135), ("yaw", 135)]
    yield ["wavelength/length"] + [f"{mode}, {heading} degrees" for mode, heading in columns]
    for line in RESPONSES["oblique"]:
        values = motions_at(wigley(), line["wavelength"], [90, 135])
        yield [f"{line['wavelength']:.2f}"] + [reached(values[0, mode, heading], line, f"{mode}_{heading}")
                                               for mode, heading in columns]


def response_curves(method, directions):
    """(wavelength/length, amplitude) by Froude number, mode and heading."""
    hull = wigley()
    low, high = frequency(3.2 * hull.length), frequency(0.45 * hull.length)
    binary = Run(hull.input((low, high, (high - low) / 58.5), directions, speeds(hull), method)).binary
    lengths = [2 * math.pi * GRAVITY / (w * w) / hull.length for w in binary.frequencies]
    return {(froude, mode, heading): list(zip(lengths, map(abs, result["motion"][mode, heading])))
            for froude, result in zip(FROUDE, binary.results) for mode in MODES for heading in binary.headings}


def response_panel(curves, title, quantity, limit, cases):
    """`cases`: key of the curve, colour, label, column of the reference values in RESPONSES[table]."""
    panel = chart.Panel(title, "wavelength over ship length", quantity, (0.4, 3.2), (0, limit))
    elements, mapping = curves
    for key, colour, label, table, column in cases:
        panel.curve(elements[key], colour, f"boundary elements{label}")
        panel.curve(mapping[key], chart.INK, "conformal mapping", "3 4")
        lines = RESPONSES[table]
        panel.points([(line["wavelength"], line[column + "_strip"]) for line in lines], colour,
                     f"other strip program{label}", "square")
        if column + "_3d" in lines[0]:
            panel.points([(line["wavelength"], line[column + "_3d"]) for line in lines], chart.GREEN,
                         "three-dimensional program", "triangle")
    return panel


def head_figure():
    curves = [response_curves(method, [180]) for method in (ELEMENTS, MAPPING)]
    panels = []
    for mode, over, limit in (("heave", "wave amplitude", 1.8), ("pitch", "wave slope", 1.8)):
        panels.append(response_panel(curves, f"Head seas, Fn 0, {mode}", f"{mode} over {over}", 1.2,
                                     [((0, mode, 180), chart.BLUE, "", "head", f"{mode}_0")]))
        panels.append(response_panel(curves, f"Head seas, Fn 0.2 and 0.3, {mode}", f"{mode} over {over}", limit,
                                     [((0.2, mode, 180), chart.PURPLE, ", Fn 0.2", "head", f"{mode}_0.2"),
                                      ((0.3, mode, 180), chart.RED, ", Fn 0.3", "head", f"{mode}_0.3")]))
    return chart.figure(panels)


def oblique_figure():
    curves = [response_curves(method, [90, 135]) for method in (ELEMENTS, MAPPING)]
    panels = []
    for mode, over, limit in (("heave", "wave amplitude", 1.5), ("roll", "wave slope", 24)):
        panels.append(response_panel(curves, f"Zero speed, {mode}", f"{mode} over {over}", limit,
                                     [((0, mode, 90), chart.BLUE, ", beam seas", "oblique", f"{mode}_90"),
                                      ((0, mode, 135), chart.RED, ", 135 degrees", "oblique", f"{mode}_135")]))
    for mode, limit in (("pitch", 0.8), ("yaw", 0.5)):
        panels.append(response_panel(curves, f"Zero speed, {mode}", f"{mode} over wave slope", limit,
                                     [((0, mode, 135), chart.RED, ", 135 degrees", "oblique", f"{mode}_135")]))
    return chart.figure(panels)


def load_scale(binary, moment):
    return 0.001 * 1000 * GRAVITY * binary.beam * binary.length * (binary.length if moment else 1) / 1e6


def midship_load(binary, load, heading):
    """MN m or MN per metre of wave amplitude, over the frequencies."""
    scale = load_scale(binary, load not in ("hshear", "vshear"))
    return [abs(value) * scale for value in binary.results[0]["load"][load, binary.cuts[0], heading]]


def bending_table():
    yield ["load", "heading", "wavelength/length", "this engine", "reference", "other strip program"]
    for line in RESPONSES["bending"]:
        w = frequency(120 * line["wavelength"])
        value, = midship_load(Run(loaded_wigley([10]).input((w, w, 1), [180])).binary, "vbending", 180)
        yield ["vertical bending", "180", f"{line['wavelength']:.3f}", f"{value:.2f}", f"{line['bending']:.2f}",
               f"{line['bending_strip']:.2f}"]
    line, = RESPONSES["oblique-loads"]
    w = frequency(120 * line["wavelength"])
    binary = Run(loaded_wigley([10]).input((w, w, 1), [135])).binary
    for text, load, name in (("horizontal bending", "hbending", "bending"), ("torsion", "torsion", "torsion"),
                             ("horizontal shear", "hshear", "shear")):
        value, = midship_load(binary, load, 135)
        yield [text, "135", f"{line['wavelength']:.3f}", f"{value:.3f}", f"{line[name]:.3f}",
               f"{line[name + '_strip']:.3f}"]


def closed_ship():
    """The reference ship at 135 degrees, cut at every station."""
    text = (REFERENCE / "ship.inp").read_text()
    lines = text.split("\n")
    directions = lines.index("24 90.00")
    lines[directions:directions + 2] = ["1 0", "135"]
    cuts = lines.index("2.50 5.00 7.50")
    lines[cuts - 1:cuts + 1] = ["11", " ".join(map(str, range(11)))]
    return Run("\n".join(lines)).binary


NAMES = {"hshear": "horizontal shear", "vshear": "vertical shear", "torsion": "torsion",
         "vbending": "vertical bending", "hbending": "horizontal bending"}


def load_figure():
    hull = loaded_wigley([10])
    low, high = frequency(2.2 * hull.length), frequency(0.45 * hull.length)
    binary = Run(hull.input((low, high, (high - low) / 40), [180])).binary
    lengths = [2 * math.pi * GRAVITY / (w * w) / hull.length for w in binary.frequencies]
    bending = chart.Panel("Wigley hull, head seas, Fn 0", "wavelength over ship length",
                          "bending amidships (MN m per m)", (0.4, 2.2), (0, 40))
    bending.curve(list(zip(lengths, midship_load(binary, "vbending", 180))), chart.BLUE, "this engine")
    bending.points([(line["wavelength"], line["bending_strip"]) for line in RESPONSES["bending"]], chart.RED,
                   "other strip program", "square")
    closure = chart.Panel("Reference ship, 135 degrees, 0.6 rad/s", "station", "load over its largest value",
                          (0, 10), (0, 1.1))
    binary = closed_ship()
    at = min(range(len(binary.frequencies)), key=lambda k: abs(binary.frequencies[k] - 0.6))
    for load, colour in zip(LOADS, (chart.ORANGE, chart.BLUE, chart.PURPLE, chart.RED, chart.GREEN)):
        values = [abs(binary.results[0]["load"][load, cut, 135][at]) for cut in binary.cuts]
        closure.curve([(cut, value / max(values)) for cut, value in zip(binary.cuts, values)], colour, NAMES[load])
    return chart.figure([bending, closure])


def rest_table():
    """What is left of each load at the aft end, in percent of the largest value along the ship: of all waves, and in the
    worst single wave."""
    binary = closed_ship()
    waves = [k for k, w in enumerate(binary.frequencies) if 0.39 < w < 1.01]
    yield ["load", "of the largest in all waves (%)", "worst single wave (%)", "at (rad/s)"]
    for load in LOADS:
        cuts = [[abs(value) for value in binary.results[0]["load"][load, cut, 135]] for cut in binary.cuts]
        rest = max(cuts[-1]) / max(map(max, cuts))
        worst, at = max((cuts[-1][k] / max(cut[k] for cut in cuts), k) for k in waves)
        yield [NAMES[load], f"{100 * rest:.2f}", f"{100 * worst:.2f}", f"{binary.frequencies[at]:.1f}"]


def box_table():
    result = Run((REFERENCE / "barge.inp").read_text())
    yield ["quantity", "this engine", "exact"]
    for text, name, exact in (("mass (t)", "Displacement (tonnes)", 10250), ("KB (m)", "KB (m)", 2.5),
                              ("BM (m)", "BM, transverse", 20 ** 3 / 12 / 100),
                              ("GM (m)", "GM, transverse, calculated", 2.5 + 20 ** 3 / 12 / 100 - 4),
                              ("waterplane (m2)", "Waterplane area", 2000),
                              ("bottom and sides (m2)", "Wetted surface", 3000), ("block coefficient", "Cb", 1)):
        yield [text, f"{result.listed(name):.4f}", f"{exact:.4f}"]


class Deviations:
    """The largest deviation of a kind of value from the expected ones, beyond their rounding, in percent of the
    column's largest."""

    def __init__(self, case):
        self.tables = tables(case)
        self.run = Run((REFERENCE / f"{case}.inp").read_text())

    def result(self, line):
        return self.run.binary.results[self.place(self.run.binary.speeds, line["knots"])]

    @staticmethod
    def place(values, wanted):
        return min(range(len(values)), key=lambda k: abs(values[k] - wanted))

    def near(self, values, wanted):
        return values[self.place(values, wanted)]

    def found(self, table, line, column):
        """The engine's value, complex where the table has phases."""
        binary = self.run.binary
        heading = self.near(binary.headings, line["heading"])
        if table in ("motion", "load"):
            at = self.place(binary.frequencies, line["w0"])
            if table == "motion":
                return self.result(line)["motion"][column, heading][at]
            return self.result(line)["load"][column, self.near(binary.cuts, line["station"]), heading][at]
        seaway = self.result(line)["seaways"][0]
        if table == "load-rms":
            return seaway["load"][column, self.near(binary.cuts, line["station"]), heading]
        mode, _, kind = column.partition("_")
        return seaway["rms"]["_" + kind if kind else "", mode, heading]

    def columns(self, table, line):
        skipped = ("knots", "heading", "w0", "we", "station", "angle")
        return [name for name in line if name not in skipped and not name.endswith("_phase")]

    def expected(self, line, column):
        if column + "_phase" not in line:
            return line[column]
        phase = math.radians(line[column + "_phase"])
        return line[column] * complex(math.cos(phase), math.sin(phase))

    def of(self, table):
        """(number of values, largest deviation in percent)"""
        lines = self.tables[table]
        count, worst = 0, 0.0
        for line in lines:
            for column in self.columns(table, line):
                count += 1
                alike = [other for other in lines if other["knots"] == line["knots"]]
                largest = max(abs(other[column]) for other in alike)
                if largest > 0:
                    difference = abs(self.found(table, line, column) - self.expected(line, column))
                    worst = max(worst, 100 * (difference - line[column].rounding) / largest)
        return count, worst


def case_table():
    yield ["case", "values", "number", "largest deviation (%)", "allowed (%)"]
    kinds = (("motion", "motions in regular waves", "0.5; roll at zero speed 3"),
             ("rms", "motions in irregular waves", "1; roll at zero speed 3"),
             ("load", "loads in regular waves", "2"), ("load-rms", "loads in irregular waves", "2"))
    for case, text in (("barge", "box barge"), ("wigley", "Wigley hull"), ("ship", "slender ship")):
        deviations = Deviations(case)
        for table, kind, allowed in kinds:
            if table in deviations.tables:
                count, worst = deviations.of(table)
                yield [text, kind, str(count), f"{worst:.2f}", allowed]
