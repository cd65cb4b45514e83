#!/usr/bin/env python3
"""Makes the sample projects and their offset files: make_samples.py ONDARA_CLI [FOLDER]

The hulls are the formulas of hulls.py. ONDARA_CLI is the program ondara-cli: it makes an empty project, imports the
offsets and writes the finished file, so that the samples always are what the program itself would save.
"""

import pathlib
import subprocess
import sys
import tempfile

import hulls

HERE = pathlib.Path(__file__).resolve().parent


class Project:
    """The text of a project file, edited by its record labels."""

    def __init__(self, text):
        self.lines = text.split("\n")

    def title(self, text):
        self.lines[0] = text

    def record(self, label, *values, skip=0):
        """Replaces the lines behind a label, from the one `skip` lines further on."""
        first = next(k for k, line in enumerate(self.lines) if line.startswith(label)) + 1 + skip
        self.lines[first:first + len(values)] = values

    def insert(self, label, *values):
        """Puts lines behind a label."""
        first = next(k for k, line in enumerate(self.lines) if line.startswith(label)) + 1
        self.lines[first:first] = values

    def text(self):
        return "\n".join(self.lines)


def numbers(values, decimals=2):
    return " ".join(f"{value:.{decimals}f}" for value in values)


def padded(values, count=10):
    return list(values) + [-1] * (count - len(values))


def seaways(project, label, rows, extra=""):
    project.record(label, *[numbers(row) + extra for row in rows])


def position(label, motion, mii, place, form="-1.0000 -1.000", msi="0 0 0 4.00"):
    return [label, f"{motion} {mii}", place, form, "-1 -1.0000", "-1.0000", "-1.0000", "-1.0000 -1.00",
            "0.25 0.17 60.00", msi]


def wigley(project, hull):
    displacement = hulls.SEA_WATER * hull.volume()
    # Heavier ends than the buoyancy has: a ship that hogs a little in still water.
    shape = [0.45 + 0.55 * (1 - (1 - k / 10) ** 2) for k in range(hulls.STATIONS)]
    masses = [displacement * share / sum(shape) for share in shape]
    project.title("Wigley parabolic hull, L = 100 m, B = 10 m, T = 6.25 m")
    project.record("Record (c)", "0 0")
    project.record("Record (g)", "3")
    project.record("Record (g1)", "5.00 -1.00")
    project.record("Record (g2)", numbers([0, 45, 90, 135, 180]))
    project.record("Record (g3)", "2.00")
    seaways(project, "Record (h3)", [(2.5, 8.5, 3.3), (4.0, 10.0, 3.3)])
    project.record("Record (i)", "3 " + numbers(padded([5, 10, 15])) + " 0")
    project.record("Record (j)", f"{hull.length:.2f} 4.50 {hull.length / 4:.2f}  0 0 0")
    project.record("Record (k)", "0 1")
    project.record("Record (k3)", "3.50 0")
    project.record("Record (m1)", f"{hull.draft:.2f} 0.00 0 0")
    project.record("Record (n)", "3")
    project.record("Record (n1)", numbers(padded([5, 10, 15], hulls.STATIONS)))
    project.record("Record (n2)", numbers(masses))
    project.record("Record (n5)", numbers([0, 0, 0, 0, 0]))
    project.record("Record (n6)", numbers([0, 0, 0, 0, 0]))
    project.record("//**UNIT TYPES AND EXTRA VARS FOR RECORD (N)", "0 0 0 0 1 1", skip=3)
    project.record("Record (o) ", "4 20.00 0.0100")
    project.insert("Record (o1)",
                   *position("Forefoot", 1, 0, "2.00 0.0000 0.00 10.00", "15.0000 2.000"),
                   *position("Bridge", 0, 1, "7.00 0.0000 15.00 10.00", msi="1 0 0 4.00"),
                   *position("AfterDeck", 0, 0, "18.00 3.0000 10.00 10.00"),
                   *position("Masthead", 0, 0, "8.00 0.0000 25.00 10.00"))
    project.record("//**UNIT TYPES AND EXTRA VARS FOR RECORD (O)", numbers(padded([], 4)), numbers(padded([], 4)),
                   skip=1)


def bilge_keel(hull, first, last, height, breadth):
    """The 21 rows of a pair: segments between the half stations, on the hull at a height."""
    ends = [first] + [station + 0.5 for station in range(first, last)] + [last]
    rows = []
    for fore, aft in zip(ends, ends[1:]):
        y = hull.half_breadth((fore + aft) / 2 / (hulls.STATIONS - 1), height)
        rows.append(f"{fore:.2f} {aft:.2f} {y:.3f} {height:.3f} {breadth:.3f}")
    return rows + ["-1.00 -1.00 -1.000 -1.000 -1.000"] * (21 - len(rows))


def frigate(project, hull):
    volume, centre, metacentre = hull.hydrostatics()
    displacement = volume / hulls.CUBIC_FEET_PER_TON
    kg = metacentre - 3.5
    fin_station, fin_height = 9, 5.0
    fin_breadth = hull.half_breadth(fin_station / (hulls.STATIONS - 1), fin_height)
    directions = [15 * k for k in range(24)]
    project.title("Frigate, L = 400 ft, with bilge keels, skeg, rudder and roll fins")
    project.record("Record (b) ", "0 0 0 1 1 2 2 0")
    project.record("Record (g)", "2")
    project.record("Record (g1)", "24.00 90.00")
    project.record("Record (g2)", numbers(directions))
    project.record("Record (g3)", "2.00")
    project.record("//**EXTRA VARIABLES FOR RECORD (G)", "0 1 90.00")
    seaways(project, "//**BRETSCHNEIDER", [(8.2, 9.0), (13.1, 11.0)], " ")
    project.record("//**UNIT TYPES FOR RECORD (H)", "1 1 1 1 1")
    project.record("Record (i)", "2 " + numbers(padded([12, 20])) + " 0")
    project.record("Record (j)", f"{hull.length:.2f} {kg:.2f} {hull.length / 4:.2f}  1 1 1")
    project.record("Record (k)", "0 1")
    project.record("Record (k1)", "-1.00 1")
    project.record("Record (k3)", f"{0.37 * hull.beam:.2f} 1")
    project.record("Record (k4)", "-1.00 1")
    project.record("//**UNIT TYPES AND EXTRA VARIABLES**", "1 1 0 1")
    project.record("Record (m) ", "1")
    project.record("Record (m1)", "-1.00 0.00 1 1")
    project.record("Record (m2)", f"{displacement:.2f} {centre:.2f} 1 1")
    project.record("//**UNIT TYPES AND EXTRA VARS FOR RECORD (N)", "1 1 1", "1 1 1 1 1", "1 1 1 1 1")
    project.record("Record (o) ", "3 20.00 0.0100")
    project.insert("Record (o1)",
                   *position("BowSection", 1, 0, "2.50 0.0000 0.00 31.00", "15.0000 6.000"),
                   *position("FlightDeck", 4, 1, "17.50 0.0000 26.00 31.00", msi="1 1 0 2.00"),
                   *position("Sonar", 0, 0, "1.50 0.0000 -3.00 31.00"))
    project.record("//**UNIT TYPES AND EXTRA VARS FOR RECORD (O)", "1 1 1 1", numbers(padded([], 3)),
                   numbers(padded([], 3)))
    project.record("Record (p) ", "1")
    project.insert("Record (p1 & p2)", "7.00 12.00", *bilge_keel(hull, 7, 12, 3.0, 2.5))
    project.insert("//**UNIT TYPES AND EXTRA VARS FOR RECORD (P)", "1 1 1")
    project.record("Record (q)", "17.00 4.000 46.000 1 1")
    project.record("Record (r) ", "19.50 0.000 10.500 10.000 8.500 6.500 0.000 1 -90.000")
    project.record("Record (r1)", "0.0000 0.5000 0.0000 6.0000 0.7000 0.2000 2.0000")
    project.record("Record (r2)", "0.0000 1.0000 0.5000 1")
    project.record("Record (r3)", "0.0000 0.0000 0.0000 0 -1.0000 -1.0000 ")
    project.record("//**UNIT TYPES FOR RECORD (R)", "1 1 1 1 1 1 1 1 1")
    project.record("//**UNIT TYPES FOR RECORD (S)", "1 1 1 1 1 0 0 0 0 ")
    project.record("//**EXTRA VARIABLES FOR RECORDS", "1 1 0 1 1 1")
    project.record("Record (t)", "1")
    project.record("Record (u) ", "1")
    project.record("Record (u1)", "0.0000 3.0000 0.5000 6.0000 0.7000 8.0000 0.0000 0.0000 0.0000")
    project.insert("Record (u1)",
                   f"{fin_station:.2f} {fin_breadth:.4f} {fin_height:.4f} 7.2000 7.9000 5.2000 -1.0000 -35.0000 0.0000")
    project.record("//**UNIT TYPES FOR RECORD (U)", "1 1 1 1 1 ")
    project.record("//**UNIT TYPES FOR RECORD (V)", "1 1 1 1 1 1")


def write(path, text):
    path.write_text(text, encoding="ascii", newline="\n")


def make(program, folder, hull, fill):
    offsets = folder / "offsets"
    offsets.mkdir(parents=True, exist_ok=True)
    factor, other = hull.to_other
    own_file = offsets / f"{hull.name}-{hull.unit.lower()}.csv"
    write(own_file, hulls.import_file(hull))
    write(offsets / f"{hull.name}-{other.lower()}.csv", hulls.import_file(hull, factor, other))

    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)

        def run(*arguments):
            subprocess.run([program, "--profile", str(scratch / "profile.ini"), *map(str, arguments)], check=True)

        run("new", scratch / "new.od7")
        run("import-offsets", own_file, "--onto", scratch / "new.od7", scratch / "hull.od7")
        project = Project((scratch / "hull.od7").read_text(encoding="ascii"))
        fill(project, hull)
        write(scratch / "filled.od7", project.text())
        run("convert", scratch / "filled.od7", folder / f"{hull.name}.od7")


def main():
    program = str(pathlib.Path(sys.argv[1]).resolve())
    folder = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else HERE
    make(program, folder, hulls.Wigley(), wigley)
    make(program, folder, hulls.Frigate(), frigate)


if __name__ == "__main__":
    main()
