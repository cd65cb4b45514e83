"""The two sample hulls, as formulas.

A hull gives, for each of its 21 stations (0 at the forward, 20 at the aft perpendicular), the points of a section from
the keel up: half-breadth y and height z above the baseline. Lengths are in the hull's own unit.
"""

import math

STATIONS = 21
SEA_WATER = 1.025        # t/m3
CUBIC_FEET_PER_TON = 35  # sea water, ft3 per long ton


class Wigley:
    """Wigley's parabolic hull (W. C. S. Wigley, 1934), in metres:

        y = B/2 (1 - (2x/L)^2) (1 - ((z - T)/T)^2)    below the waterline,

    with x from midships; vertical sides above. The formula makes a line of each end station. There the hull has a stem
    bar of 20 mm, so that the sections enclose something.
    """

    name = "Sample01"
    unit = "Metric"
    length, beam, draft, depth = 100.0, 10.0, 6.25, 10.0
    stem = 0.010
    to_other = 3.28084, "British"

    def section(self, station):
        x = 1 - 2 * station / (STATIONS - 1)
        half = self.beam / 2 * (1 - x * x)
        heights = [self.draft * k / 12 for k in range(13)] + [8.0, self.depth]
        points = []
        for z in heights:
            below = min((z - self.draft) / self.draft, 0)
            y = half * (1 - below * below)
            points.append((max(y, self.stem) if z > 0 else 0.0, z))
        return points

    def volume(self):
        return 4 / 9 * self.length * self.beam * self.draft


class Frigate:
    """A frigate-like hull with a flared bow and a transom, in feet.

    Along the ship u runs from 0 (FP) to 1 (AP). The waterline's half-breadth is B/2 w(u), the keel rises aft of 0.62 to
    the transom, and a section below the waterline is the superellipse

        (y / y_WL)^p + ((T - z) / (T - z_keel))^p = 1,    p from 1.05 (a V, at the bow) to 2.4 (full, amidships).

    Above the waterline the side runs to the deck's half-breadth with the power 1.5 of the height: flare at the bow.
    """

    name = "Sample02"
    unit = "British"
    length, beam, draft, depth = 400.0, 44.0, 14.5, 31.0
    stem = 0.25
    to_other = 0.3048, "Metric"

    def waterline(self, u):
        if u < 0.55:
            shape = math.sin(math.pi / 2 * u / 0.55) ** 1.1
        else:
            shape = 1 - 0.24 * ((u - 0.55) / 0.45) ** 2
        return max(self.beam / 2 * shape, self.stem)

    def deck(self, u):
        shape = math.sin(math.pi / 2 * min(1, (u + 0.06) / 0.42)) ** 0.7 if u < 0.36 else 1.0
        return max(self.beam / 2 * shape * (1 - 0.14 * max(0, (u - 0.6) / 0.4) ** 2), self.waterline(u))

    def keel(self, u):
        return 0.0 if u < 0.62 else 0.70 * self.draft * ((u - 0.62) / 0.38) ** 1.6

    def exponent(self, u):
        return 1.05 + 1.35 * math.sin(math.pi / 2 * min(1, u / 0.45)) ** 1.5

    def below_waterline(self, u, angle):
        """A point of the superellipse; the angle runs from 0 at the keel to a right one at the waterline."""
        power = 2 / self.exponent(u)
        y = self.waterline(u) * math.sin(angle) ** power
        z = self.draft - (self.draft - self.keel(u)) * max(math.cos(angle), 0) ** power
        return y, z

    def half_breadth(self, u, z):
        depth = (self.draft - z) / (self.draft - self.keel(u))
        return self.waterline(u) * (1 - depth ** self.exponent(u)) ** (1 / self.exponent(u))

    def section(self, station):
        u = station / (STATIONS - 1)
        points = [(0.0, self.keel(u))]
        points += [self.below_waterline(u, math.pi / 2 * k / 12) for k in range(1, 13)]
        for k in range(1, 5):
            rise = k / 4
            y = self.waterline(u) + (self.deck(u) - self.waterline(u)) * rise ** 1.5
            points.append((y, self.draft + (self.depth - self.draft) * rise))
        return points

    def hydrostatics(self):
        """Volume, its centre aft of FP, and the height of the metacentre, by Simpson's rule over 400 slices."""
        slices, layers = 400, 200
        volume = moment = vertical = inertia = 0.0
        for i in range(slices + 1):
            u = i / slices
            weight = (1 if i in (0, slices) else 4 if i % 2 else 2) / 3 * self.length / slices
            keel = self.keel(u)
            step = (self.draft - keel) / layers
            area = height = 0.0
            for k in range(layers):
                z = keel + (k + 0.5) * step
                area += 2 * self.half_breadth(u, z) * step
                height += 2 * self.half_breadth(u, z) * step * z
            volume += weight * area
            vertical += weight * height
            moment += weight * area * u * self.length
            inertia += weight * 2 / 3 * self.waterline(u) ** 3
        return volume, moment / volume, (vertical + inertia) / volume


def import_file(hull, factor=1.0, unit=None):
    """The text of an offset import file."""
    lines = [unit or hull.unit, f"{STATIONS},FP=0"]
    for station in range(STATIONS):
        points = hull.section(station)
        lines.append(f"{station},{len(points)}")
        lines += [f"{y * factor:.3f},{z * factor:.3f}" for y, z in points]
    return "\n".join(lines) + "\n"
