#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Exercise 2: electrons and positrons, and the mass of the neutral pion from two pairs."""
import math
from collections import Counter

from bench import (PIZERO, Hand, Screen, Setting, angle, circle, evenly, events, gesture,
                   markdown_table, mean_and_spread, momentum, number, run, set_to, tape, turns_clockwise)

SETTING = Setting("pi0", 1.0, 500.0, 100.0, 2)
COUNT = 30
FEWEST, MOST = 8, 60  # dots of a track that can be measured
USED = 16  # dots along which a radius is measured
ENTRY = (0.0, -400.0, 0.0)


class Track:
    """A lepton's track as it is measured in the xy plane."""

    def __init__(self, particle, setting, hand):
        self.particle = particle
        screen = Screen(setting)
        dots = [screen.place(dot) for dot in particle.dots[:USED]]
        self.places = [hand.put(dot) for dot in evenly(dots, 5)]
        self.radius = circle(self.places)[1] * screen.cm
        self.momentum = momentum(self.radius, setting.field)
        self.positive = turns_clockwise(self.places)
        self.right_sign = self.positive == (particle.pdg == -11)


class Photon:
    """A photon as its pair and the way from the entry to the pair tell it."""

    def __init__(self, leptons, setting, hand):
        self.tracks = [Track(p, setting, hand) for p in leptons]
        flat, upright = Screen(setting), Screen(setting, "yz")
        vertex = [c * 800.0 / setting.side for c in leptons[0].place]
        # The vertex has no dot: it is where the tracks meet, a step before their first dots.
        self.way = hand.put(flat.place(ENTRY)), hand.put(flat.place(vertex), 2)
        low, high = hand.put(upright.place(ENTRY)), hand.put(upright.place(vertex), 2)
        self.climb = low, (low[0], high[1])
        self.flat = tape(*self.way, flat)
        self.rise = math.copysign(tape(*self.climb, upright), low[1] - high[1])
        self.length = math.hypot(self.flat, self.rise)
        self.energy = sum(t.momentum for t in self.tracks) * self.length / self.flat


class Pizero:
    """A neutral pion whose two photons have both made a pair."""

    def __init__(self, event, hand):
        self.number = event.number
        leptons = event.visible()
        a, b = (Photon(pair, event.setting, hand) for pair in (leptons[:2], leptons[2:]))
        self.photons = a, b
        self.arms = hand.put(Screen(event.setting).place(ENTRY)), a.way[1], b.way[1]
        self.flat_angle = angle(*self.arms)
        cosine = ((a.flat * b.flat * math.cos(math.radians(self.flat_angle)) + a.rise * b.rise)
                  / (a.length * b.length))
        self.angle = math.degrees(math.acos(cosine))
        self.energies = a.energy, b.energy
        self.mass = math.sqrt(2 * a.energy * b.energy * (1 - cosine))

    def gestures(self):
        for photon in self.photons:
            for track in photon.tracks:
                yield gesture(self.number, "xy", "curve", track.places)
            yield gesture(self.number, "xy", "tape", photon.way)
            yield gesture(self.number, "yz", "tape", photon.climb)
        yield gesture(self.number, "xy", "angle", self.arms)


def measurable(event):
    tracks = event.visible()
    return len(tracks) == 4 and all(FEWEST <= p.count <= MOST for p in tracks)


def measure():
    """All events and the neutral pions among them that can be measured."""
    made, hand = events(SETTING, COUNT), Hand(21)
    return made, [Pizero(event, hand) for event in made if measurable(event)]


def worked_example(pion):
    texts = {"first_event": str(pion.number), "first_flat_angle": number(pion.flat_angle, 1),
             "first_angle": number(pion.angle, 1), "first_mass": number(pion.mass, 0)}
    for name, photon in zip(("a", "b"), pion.photons):
        minus, plus = sorted(photon.tracks, key=lambda track: track.positive)
        texts |= {
            f"first_{name}_minus_radius": number(minus.radius, 0),
            f"first_{name}_plus_radius": number(plus.radius, 0),
            f"first_{name}_minus": number(minus.momentum, 0),
            f"first_{name}_plus": number(plus.momentum, 0),
            f"first_{name}_sum": number(plus.momentum + minus.momentum, 0),
            f"first_{name}_flat": number(photon.flat, 0),
            f"first_{name}_rise": number(photon.rise, 0),
            f"first_{name}_length": number(photon.length, 0),
            f"first_{name}_energy": number(photon.energy, 0),
        }
    return texts


def results():
    made, pions = measure()
    tracks = [t for pion in pions for photon in pion.photons for t in photon.tracks]
    seen = Counter(len(event.visible()) for event in made)
    pairs = 2 * seen[4] + seen[2]
    share = pairs / (2 * COUNT)
    momentum_MeV = math.sqrt(SETTING.energy ** 2 + 2 * PIZERO * SETTING.energy)
    total = SETTING.energy + PIZERO
    mean, spread, error = mean_and_spread([pion.mass for pion in pions])
    energies = [e for pion in pions for e in pion.energies]
    return set_to(SETTING) | worked_example(pions[0]) | {
        "count": str(COUNT), "fewest": str(FEWEST), "most": str(MOST), "used": str(USED),
        "none": str(seen[0]), "two": str(seen[2]), "four": str(seen[4]),
        "pairs": str(pairs), "photons": str(2 * COUNT),
        "share": number(100 * share, 0),
        "share_error": number(100 * math.sqrt(share * (1 - share) / (2 * COUNT)), 0),
        "measured": str(len(pions)),
        "tracks": str(len(tracks)),
        "right_signs": str(sum(t.right_sign for t in tracks)),
        "most_energy": number((total + momentum_MeV) / 2, 0),
        "least_energy": number((total - momentum_MeV) / 2, 0),
        "most_measured": number(max(energies), 0), "least_measured": number(min(energies), 0),
        "total_energy": number(total, 0),
        "total_mean": number(mean_and_spread([sum(p.energies) for p in pions])[0], 0),
        "total_error": number(mean_and_spread([sum(p.energies) for p in pions])[2], 0),
        "table": markdown_table(
            ("event", "first photon (MeV)", "second photon (MeV)", "sum (MeV)",
             "angle between (°)", "mass (MeV)"),
            [(p.number, number(p.energies[0], 0), number(p.energies[1], 0),
              number(sum(p.energies), 0), number(p.angle, 0), number(p.mass, 0)) for p in pions]),
        "mean": number(mean, 0), "spread": number(spread, 0), "error": number(error, 0),
        "true_mass": number(PIZERO, 0),
    }


def gestures():
    return [(SETTING, g) for pion in measure()[1] for g in pion.gestures()]


if __name__ == "__main__":
    run(results, gestures)
