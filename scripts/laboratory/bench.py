# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the laboratory's exercises share: the seeded events and the pupil who measures them.

The events are those that `velquon --seed N` shows one after another. The pupil's hand puts the pointer
on the right pixel or on one beside it; what the tools read is computed from the places as the projector
computes it.
"""
import csv
import math
import os
import random
import subprocess
import sys
from dataclasses import dataclass, field

PION, MUON, PROTON, LAMBDA, PIZERO = 139.6, 105.7, 938.28, 1115.6, 135.0  # MeV
PION_CTAU = 780.0  # cm
SIDE_UNITS, STEP_UNITS = 800.0, 20.0  # of a drawing: the chamber's side and a step between dots
ACROSS, UP = 470.0, 420.0  # where the projector has the chamber's middle, drawing units at zoom 1


@dataclass(frozen=True)
class Setting:
    """What is to be set before the first event is made."""
    type: str
    field: float  # kG
    side: float  # cm
    energy: float  # MeV
    seed: int

    @property
    def step(self):
        """Distance between two dots of a track, cm."""
        return self.side * STEP_UNITS / SIDE_UNITS


@dataclass
class Event:
    """What the program shows and knows of an event."""
    number: int
    setting: Setting
    particles: list
    points: list = field(default_factory=list)  # x, y, z in drawing units

    def named(self, *pdg):
        """The particles of a kind, in the order of their creation."""
        return [p for p in self.particles if p.pdg in pdg]

    def visible(self):
        return [p for p in self.particles if p.count]


@dataclass
class Particle:
    """A particle of the record; lengths in cm, momenta in MeV/c, energies in MeV."""
    number: int
    pdg: int
    parent: int
    fate: str
    place: tuple
    momentum: tuple
    energy: float
    end: tuple
    first: int = -1
    count: int = 0
    dots: list = field(default_factory=list)  # x, y, z in drawing units

    @property
    def transverse(self):
        return math.hypot(*self.momentum[:2])

    @property
    def total(self):
        return math.hypot(*self.momentum)


def velquon_events():
    """The program that makes the events: the one named by VELQUON_EVENTS, or that of the build."""
    root = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
    return os.environ.get("VELQUON_EVENTS", os.path.join(root, "build/ci/tools/velquon-events"))


def table(setting, count, form):
    words = ["--type", setting.type, "--field", setting.field, "--side", setting.side,
             "--energy", setting.energy, "--seed", setting.seed, "--events", count,
             "--format", form]
    result = subprocess.run([velquon_events(), *map(str, words)], check=True, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return csv.DictReader(result.stdout.splitlines())


def numbers(row, names):
    return tuple(float(row[name]) if row[name] else math.nan for name in names.split())


def events(setting, count, with_dots=True):
    """The first events of a setting."""
    made = [Event(i + 1, setting, []) for i in range(count)]
    for row in table(setting, count, "particles"):
        made[int(row["event"]) - 1].particles.append(Particle(
            int(row["particle"]), int(row["pdg"]), int(row["parent"]), row["fate"],
            numbers(row, "x y z"), numbers(row, "px py pz"), float(row["energy"]),
            numbers(row, "end_x end_y end_z"), int(row["first_point"] or -1),
            int(row["points"] or 0)))
    if with_dots:
        for row in table(setting, count, "csv"):
            made[int(row["event"]) - 1].points.append(numbers(row, "x y z"))
        for event in made:
            hand_out_dots(event)
    return made


def hand_out_dots(event):
    """Gives each particle its dots. The tracks of one vertex lie in turns, the earlier one first."""
    queues = [[] for _ in event.particles]
    for particle in reversed(event.particles):
        branches = [queues[d.number] for d in event.particles if d.parent == particle.number]
        branches = sorted((b for b in branches if b), key=lambda b: event.particles[b[0]].first)
        turns = range(max(map(len, branches), default=0))
        queues[particle.number] = [particle.number] * particle.count + [
            b[turn] for turn in turns for b in branches if turn < len(b)]
    for owner, point in zip(queues[0] if queues else [], event.points, strict=True):
        event.particles[owner].dots.append(point)


def projected(point, plane):
    x, y, z = point
    return {"xy": (y, -x), "xz": (x, z), "yz": (y, z)}[plane]


class Screen:
    """The projector at its start: a plane and a zoom. Places are pixels, y downwards."""

    def __init__(self, setting, plane="xy", zoom=1):
        self.plane, self.zoom = plane, zoom
        self.cm = setting.side / 400.0 / zoom  # of the chamber, a pixel

    def place(self, point):
        """Where a point in drawing units is seen."""
        u, v = projected(point, self.plane)
        s = 0.5 * self.zoom
        return s * (u + ACROSS), s * (UP / self.zoom - v)


class Hand:
    """Puts the pointer on a place, or on a pixel beside it, each as likely as the next."""

    def __init__(self, seed):
        self.random = random.Random(seed)

    def put(self, place, reach=1):
        """The pixel that the pointer comes to be on."""
        return tuple(math.floor(c + 0.5) + math.floor((2 * reach + 1) * self.random.random()) - reach
                     for c in place)


def tape(a, b, screen):
    """What the tape reads, cm, with its two decimals."""
    return round(math.dist(a, b) * screen.cm, 2)


def angle(vertex, a, b):
    """The angle between two arms, degrees."""
    turn = math.atan2(a[1] - vertex[1], a[0] - vertex[0]) - math.atan2(b[1] - vertex[1],
                                                                      b[0] - vertex[0])
    return abs(math.degrees(math.remainder(turn, 2 * math.pi)))


def circle(places):
    """Centre and radius of the circle that fits some places best, by least squares of distances."""
    count = len(places)
    mean = [sum(c) / count for c in zip(*places)]
    points = [(x - mean[0], y - mean[1]) for x, y in places]
    rows = [(x, y, 1.0, x * x + y * y) for x, y in points]
    a, b, c = solved([[sum(r[i] * r[j] for r in rows) for j in range(4)] for i in range(3)])
    x0, y0 = a / 2, b / 2
    radius = math.sqrt(c + x0 * x0 + y0 * y0)
    for _ in range(50):
        away = [(x - x0, y - y0, math.hypot(x - x0, y - y0)) for x, y in points]
        rows = [(dx / d, dy / d, 1.0, d - radius) for dx, dy, d in away]
        step = solved([[sum(r[i] * r[j] for r in rows) for j in range(4)] for i in range(3)])
        x0, y0, radius = x0 + step[0], y0 + step[1], radius + step[2]
    return (x0 + mean[0], y0 + mean[1]), radius


def solved(rows):
    """Solves three equations in three unknowns, given as rows with the right side last."""
    rows = [list(row) for row in rows]
    for i in range(3):
        pivot = max(range(i, 3), key=lambda k: abs(rows[k][i]))
        rows[i], rows[pivot] = rows[pivot], rows[i]
        for k in range(3):
            if k != i:
                share = rows[k][i] / rows[i][i]
                rows[k] = [x - share * y for x, y in zip(rows[k], rows[i])]
    return [rows[i][3] / rows[i][i] for i in range(3)]


def momentum(radius, field_kG):
    """Transverse momentum, MeV/c, of a radius in cm."""
    return 0.3 * field_kG * radius


def mean_and_spread(values):
    """Mean, spread of the values (one standard deviation), and error of the mean."""
    mean = sum(values) / len(values)
    spread = math.sqrt(sum((v - mean) ** 2 for v in values) / (len(values) - 1))
    return mean, spread, spread / math.sqrt(len(values))


def evenly(items, count):
    """Some items, evenly spread from the first to the last."""
    return [items[round(i * (len(items) - 1) / (count - 1))] for i in range(count)]


def number(value, decimals=0):
    """A number for the text; never a minus before nothing."""
    text = f"{value:.{decimals}f}"
    if float(text) == 0:
        text = text.lstrip("-")
    return text.replace("-", "−")


def markdown_table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(map(str, row)) + " |" for row in rows])


def turns_clockwise(places):
    """Whether a track turns clockwise on the screen from its first place to its last."""
    a, b, c = places[0], places[len(places) // 2], places[-1]
    return (b[0] - a[0]) * (c[1] - b[1]) - (b[1] - a[1]) * (c[0] - b[0]) > 0


class Rise:
    """How much a track rises along z, by tape in the yz plane between its first dot and its last. Two
    dots are always a fortieth of the chamber's side apart along the track."""

    def __init__(self, dots, setting, hand):
        screen = Screen(setting, "yz")
        first, last = hand.put(screen.place(dots[0])), hand.put(screen.place(dots[-1]))
        # An upright tape: both ends at the same place across.
        self.places = first, (first[0], last[1])
        self.rise = tape(*self.places, screen)
        self.steps = len(dots) - 1
        self.sine = math.copysign(self.rise, first[1] - last[1]) / (self.steps * setting.step)

    @property
    def cosine(self):
        return math.sqrt(1 - self.sine ** 2)


def gesture(event, plane, tool, places):
    """What is done with the mouse: the event, the plane, the tool and the places that are clicked, for
    the tape those of its two ends."""
    return event, plane, tool, places


def set_to(setting):
    """What is to be set, for the text."""
    names = {"pi+": "Positive Pion", "pi0": "Neutral Pion", "mu+": "Positive Muon",
             "lambda": "Lambda"}
    return {"type": names[setting.type], "seed": str(setting.seed), "energy": f"{setting.energy:g}",
            "field": f"{setting.field:g}", "side": f"{setting.side / 100:g}",
            "step": f"{setting.step:g}", "pixel": f"{setting.side / 400:g}"}


def reading(setting, plane, tool, places):
    """What the projector shows of a measurement at zoom 1: the tape's length and a curve's radius in
    cm, an angle in degrees, as texts."""
    screen = Screen(setting, plane)
    if tool == "tape":
        return f"{tape(*places, screen):.2f}"
    if tool == "angle":
        return f"{angle(*places):.2f}"
    return f"{circle(places)[1] * screen.cm:.2f}"


def run(results, gestures):
    """Prints what an exercise gives, a name and its text a line or a block; with the word --gestures
    what its measurements do with the mouse in the projector, at zoom 1 and with its window as it is at
    the start, a line each: seed, type, field, side, energy, event, plane, tool, reading, and x,y of
    each place from the view's upper left corner."""
    if sys.argv[1:] == ["--gestures"]:
        for setting, (event, plane, tool, places) in gestures():
            print(setting.seed, setting.type, setting.field, setting.side, setting.energy, event,
                  plane, tool, reading(setting, plane, tool, places),
                  *(f"{x},{y}" for x, y in places))
        return
    for name, text in results().items():
        sys.stdout.write(f"{name}:\n{text}\n" if "\n" in text else f"{name}: {text}\n")
