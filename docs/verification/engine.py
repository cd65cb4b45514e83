"""Runs the engine in a scratch folder on a text and reads what it leaves there."""

import csv
import io
import math
import pathlib
import struct
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = ROOT / "build/bin/OE7"
REFERENCE = ROOT / "tests/oe7/reference"
GRAVITY = 9.81
MODES = ("surge", "sway", "heave", "roll", "pitch", "yaw", "rudder", "fin")
LOADS = ("hshear", "vshear", "torsion", "vbending", "hbending")


def tables(name):
    """The tables of a reference file: rows of column name to value, text where it is no number."""
    result, rows, columns = {}, None, None
    for line in (REFERENCE / f"{name}.txt").read_text().split("\n"):
        if line.startswith("table "):
            rows, columns = result.setdefault(line[6:], []), None
        elif not line or line.startswith("#"):
            rows = rows if line else None
        elif rows is not None and columns is None:
            columns = line.split()
        elif rows is not None:
            rows.append(dict(zip(columns, map(number, line.split()))))
    return result


class Printed(float):
    """A number with half a unit of its last printed digit."""

    def __new__(cls, text):
        value = super().__new__(cls, text)
        digits, _, exponent = text.partition("e")
        value.rounding = 0.5 * 10.0 ** (int(exponent or 0) - len(digits.partition(".")[2]))
        return value


def number(text):
    try:
        return Printed(text)
    except ValueError:
        return text


class Hull:
    """A hull and its condition, as the engine's input has them. Lengths in m, masses in t."""

    def __init__(self, length, draft, kg, sections, roll_radius=1.0, pitch_radius=0.0, water="SALT"):
        self.length, self.draft, self.kg, self.sections = length, draft, kg, sections
        self.roll_radius, self.pitch_radius, self.water = roll_radius, pitch_radius or length / 4, water
        self.masses, self.cuts = [], []

    def stations(self):
        """The records of the sections: points (y, z), or a form (beam, draft, area coefficient)."""
        count = len(self.sections)
        formed = isinstance(self.sections[0], tuple)
        lines = ["BEAMDRAFT" if formed else "OFFSETS", f"{count} {count} 1 1"]
        for station, section in enumerate(self.sections):
            lines += [str(station), row(section)] if formed else \
                [str(station), str(len(section)), row(y for y, _ in section), row(z for _, z in section)]
        return lines

    def input(self, waves, directions, speeds=(0,), method="CONFORMAL", grid=(0, 0, 0)):
        """Regular waves of next to no height, so that the damping of roll is that of potential flow."""
        lines = ["Verification", f"METRIC METRIC {self.water} NOSPEEDCOR NOSWELLCOR MODAMP NOPPR", "ondara7.bin",
                 "LOAD RAW" if self.cuts else "NOLOAD RAW", row(waves), f"NOSAVEHY {method} LATLONG NOHVCOR",
                 row(grid), "REGULAR", f"{len(directions)} 0", row(directions), "1", "1e-9",
                 f"{len(speeds)} {row(speeds)}", row([self.length, self.kg, self.pitch_radius]),
                 "GMCOMP DRYROLLRG", row([self.roll_radius])]
        lines += self.stations() + ["DRAFT", f"{self.draft:.9g} 0"]
        if self.cuts:
            zeros = row([0] * len(self.sections))
            lines += [str(len(self.cuts)), row(self.cuts), row(self.masses), zeros, zeros, "0 0 0 0 0", "0 0 0 0 0"]
        return "\n".join(lines + ["0 1 0", "0", "0 0 0", "0 0 0 0 0 0 0 0 0", "0", "0 0 0 0 0 0 0", "0 0 0",
                                  "0 0 0 1", "0", "NOSTAB", ""])


def row(values):
    return " ".join(f"{value:.10g}" for value in values)


class Run:
    """The files of one run."""

    def __init__(self, text):
        with tempfile.TemporaryDirectory() as folder:
            folder = pathlib.Path(folder)
            (folder / "Ondara7.inp").write_text(text)
            subprocess.run([PROGRAM], cwd=folder, check=True, stdout=subprocess.DEVNULL)
            self.listing = (folder / "ondara7.out").read_text().split("\n")
            self.coefficients = read_csv(folder / "Ondara7_DimHyCo.csv")
            self.forces = read_csv(folder / "Ondara7_WaveForce.csv")
            self.binary = Binary((folder / "ondara7.bin").read_bytes())

    def listed(self, name):
        """The number behind the colon of the first line that has a name."""
        line = next(line for line in self.listing if name in line and ":" in line)
        return float(line.split(":")[1].split()[0])

    def table(self, speed, heading, title, columns, skip):
        """Rows of a listing's table under a speed, a heading and a title."""
        at = self.listing.index(f" SPEED {speed:.2f} KNOTS")
        at = next(k for k in range(at, len(self.listing)) if f"Sea direction {heading:.2f}" in self.listing[k])
        at = next(k for k in range(at, len(self.listing)) if title in self.listing[k]) + skip
        rows = []
        while self.listing[at].strip():
            values = self.listing[at].replace("|", " ").split()
            rows.append(dict(zip(columns, map(float, values))))
            at += 1
        return rows


def read_csv(path):
    text = path.read_text().split("\n", 1)[1]
    return [{name: float(value) for name, value in line.items()} for line in csv.DictReader(io.StringIO(text))]


class Binary:
    """The binary file: what stands in it, arrays by speed, in the order of the file."""

    def __init__(self, data):
        self.data, self.at = data, 200
        self.length, stations = self.floats(1)[0], self.integer()
        self.mass, self.xcg, self.draft, self.trim, self.kg, self.gm, self.spread, self.beam, self.cb = self.floats(9)
        cuts = self.integer()
        self.cuts, self.still = self.floats(cuts), []
        if cuts:
            self.still = [self.floats(stations) for _ in range(4)]  # weight, buoyancy, shear, moment
        self.positions = self.integer()
        self.floats(3 * self.positions)
        self.speeds = self.floats(self.integer())
        self.headings = self.floats(self.integer())
        self.seaways = self.integer()
        self.floats(2 * self.seaways)
        count = self.integer()
        first, step = self.floats(2)
        self.frequencies = [first + step * k for k in range(count)]
        self.regular = data[180:200].split()[0] == b"REGULAR"
        self.results = [self.speed() for _ in self.speeds]
        if data[self.at:] != b"CBDW":
            raise ValueError("the binary file isn't read to its end")

    def floats(self, count):
        values = struct.unpack_from(f"<{count}f", self.data, self.at)
        self.at += 4 * count
        return list(values)

    def integer(self):
        value, = struct.unpack_from("<i", self.data, self.at)
        self.at += 4
        return value

    def amplitudes(self):
        """Of all frequencies, complex."""
        values = self.floats(2 * len(self.frequencies))
        return [amplitude * complex(math.cos(math.radians(phase)), math.sin(math.radians(phase)))
                for amplitude, phase in zip(values[::2], values[1::2])]

    def speed(self):
        self.at += 80
        result = {"motion": {(mode, heading): self.amplitudes() for mode in MODES for heading in self.headings}}
        if self.cuts:
            self.at += 38
            result["load"] = {(load, cut, heading): self.amplitudes()
                              for load in LOADS for cut in self.cuts for heading in self.headings}
        result["seaways"] = [] if self.regular else [self.seaway() for _ in range(self.seaways)]
        return result

    def seaway(self):
        self.at += 36
        result = {"rms": {(kind, mode, heading): self.floats(1)[0] for kind in ("", "_vel", "_acc")
                          for mode in MODES for heading in self.headings}}
        if self.positions:
            self.at += 54
            result["local"] = {(quantity, position, heading): self.floats(1)[0] for quantity in range(21)
                               for position in range(self.positions) for heading in self.headings}
        if self.cuts:
            self.at += 32
            result["load"] = {(load + kind, cut, heading): self.floats(1)[0] for load in LOADS
                              for kind in ("", "_period") for cut in self.cuts for heading in self.headings}
        return result
