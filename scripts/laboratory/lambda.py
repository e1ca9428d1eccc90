#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Exercise 5: the mass of the Lambda, and the share of its two modes."""
import math

from bench import (LAMBDA, PION, PROTON, Hand, Rise, Screen, Setting, angle, circle, evenly, events,
                   gesture, markdown_table, mean_and_spread, momentum, number, run, set_to)

SETTING = Setting("lambda", 5.0, 100.0, 100.0, 5)
MEASURED_OF = 25  # events whose Vs are measured
COUNTED, MANY = 100, 1000  # events that are counted
LEAST_DOTS = 12
LEAST_RADIUS = 15.0  # cm, of a track that is measured
USED = 24  # dots along which a radius is measured
ARM = 5  # dots from the vertex to the ends of the angle's arms


class Branch:
    """One of the two tracks of a V, measured."""

    def __init__(self, particle, setting, vertex, hand):
        screen = Screen(setting)
        dots = [screen.place(dot) for dot in particle.dots]
        self.places = [hand.put(dot) for dot in evenly(dots[:USED], 5)]
        self.radius = circle(self.places)[1] * screen.cm
        self.transverse = momentum(self.radius, setting.field)
        self.arm = hand.put(dots[ARM - 1])
        self.rise = Rise(particle.dots, setting, hand)
        self.momentum = self.transverse / self.rise.cosine
        self.upward = self.momentum * self.rise.sine
        # How much the arm, a chord, is turned against the direction at the vertex.
        self.bend = math.degrees(math.dist(self.arm, vertex) * screen.cm / (2 * self.radius))


class Vee:
    """A Lambda that decayed into a proton and a pion."""

    def __init__(self, event, hand):
        setting, screen = event.setting, Screen(event.setting)
        self.number = event.number
        proton, pion = event.named(2212)[0], event.named(-211)[0]
        # The vertex has no dot: it is where the tracks meet, a step before their first dots.
        self.vertex = hand.put(screen.place([c * 800.0 / setting.side for c in proton.place]), 2)
        self.proton = Branch(proton, setting, self.vertex, hand)
        self.pion = Branch(pion, setting, self.vertex, hand)
        self.read = angle(self.vertex, self.proton.arm, self.pion.arm)
        self.opening = abs(self.sense() * self.read - self.proton.bend - self.pion.bend)
        p, q = self.proton, self.pion
        self.energy = math.hypot(PROTON, p.momentum) + math.hypot(PION, q.momentum)
        square = (p.transverse ** 2 + q.transverse ** 2 + (p.upward + q.upward) ** 2
                  + 2 * p.transverse * q.transverse * math.cos(math.radians(self.opening)))
        self.momentum = math.sqrt(square)
        self.mass = math.sqrt(self.energy ** 2 - square)

    def sense(self):
        """1 when the proton's arm lies to the right of the pion's: the tracks bend apart."""
        (x, y), (px, py), (qx, qy) = self.vertex, self.proton.arm, self.pion.arm
        return 1 if (qx - x) * (py - y) - (qy - y) * (px - x) > 0 else -1

    def measurable(self):
        return self.pion.radius >= LEAST_RADIUS

    def gestures(self):
        for branch in self.proton, self.pion:
            yield gesture(self.number, "xy", "curve", branch.places)
            yield gesture(self.number, "yz", "tape", branch.rise.places)
        yield gesture(self.number, "xy", "angle", (self.vertex, self.proton.arm, self.pion.arm))


def is_charged(event):
    return bool(event.named(2212))


def measure():
    """The Vs among the first events that can be measured."""
    hand = Hand(51)
    vees = [Vee(event, hand) for event in events(SETTING, MEASURED_OF) if is_charged(event)
            and min(event.named(pdg)[0].count for pdg in (2212, -211)) >= LEAST_DOTS]
    return [vee for vee in vees if vee.measurable()]


def share_of(count):
    """Events, those of the charged mode, and those of the other with and without tracks."""
    made = events(SETTING, count, with_dots=False)
    charged = sum(map(is_charged, made))
    empty = sum(not event.visible() for event in made)
    share = charged / count
    return charged, empty, count - charged - empty, share, math.sqrt(share * (1 - share) / count)


def worked_example(vee):
    p, q = vee.proton, vee.pion
    return {
        "first_event": str(vee.number),
        "first_proton_radius": number(p.radius, 1), "first_pion_radius": number(q.radius, 1),
        "first_proton_transverse": number(p.transverse, 0),
        "first_pion_transverse": number(q.transverse, 0),
        "first_proton_rise": number(p.rise.rise, 1), "first_pion_rise": number(q.rise.rise, 1),
        "first_proton_steps": str(p.rise.steps), "first_pion_steps": str(q.rise.steps),
        "first_proton_sine": number(p.rise.sine, 3), "first_pion_sine": number(q.rise.sine, 3),
        "first_proton_momentum": number(p.momentum, 0), "first_pion_momentum": number(q.momentum, 0),
        "first_proton_upward": number(p.upward, 0), "first_pion_upward": number(q.upward, 0),
        "first_read": number(vee.read, 1),
        "first_proton_bend": number(p.bend, 1), "first_pion_bend": number(q.bend, 1),
        "first_sense": "right" if vee.sense() > 0 else "left",
        "first_opening": number(vee.opening, 1),
        "first_energy": number(vee.energy, 1), "first_momentum": number(vee.momentum, 0),
        "first_mass": number(vee.mass, 1),
    }


def results():
    vees = measure()
    mean, spread, error = mean_and_spread([vee.mass for vee in vees])
    texts = set_to(SETTING) | worked_example(vees[0]) | {
        "of": str(MEASURED_OF), "counted": str(COUNTED), "many": str(MANY),
        "least_dots": str(LEAST_DOTS), "least_radius": number(LEAST_RADIUS), "used": str(USED),
        "arm": str(ARM),
        "measured": str(len(vees)),
        "table": markdown_table(
            ("event", "proton p (MeV/c)", "pion p (MeV/c)", "opening angle (°)", "mass (MeV)"),
            [(v.number, number(v.proton.momentum, 0), number(v.pion.momentum, 0),
              number(v.opening, 1), number(v.mass, 1)) for v in vees]),
        "mean": number(mean, 1), "spread": number(spread, 1), "error": number(error, 1),
        "true_mass": number(LAMBDA, 1),
        "released": number(mean - PROTON - PION, 1), "true_released": number(LAMBDA - PROTON - PION, 1),
    }
    for name, count in (("counted", COUNTED), ("many", MANY)):
        charged, empty, pairs, share, share_error = share_of(count)
        texts |= {f"{name}_charged": str(charged), f"{name}_empty": str(empty),
                  f"{name}_pairs": str(pairs), f"{name}_share": number(100 * share, 1),
                  f"{name}_error": number(100 * share_error, 1)}
    return texts


def gestures():
    return [(SETTING, g) for vee in measure() for g in vee.gestures()]


if __name__ == "__main__":
    run(results, gestures)
