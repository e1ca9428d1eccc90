#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Exercise 3: the mass of the unseen particle in the decay of a pion."""
import math

from bench import (MUON, PION, Hand, Rise, Screen, Setting, angle, circle, evenly, events, gesture,
                   markdown_table, mean_and_spread, momentum, number, run, set_to, turns_clockwise)

SETTING = Setting("pi+", 1.5, 200.0, 10.0, 3)
COUNT = 30
LEAST_DOTS = 9  # of a track that is measured
ARM = 4  # dots from the kink to the ends of the angle's arms


class Kink:
    """A pion that decayed and its muon, measured."""

    def __init__(self, event, hand):
        setting, screen = event.setting, Screen(event.setting)
        self.number = event.number
        self.record = event.named(-13)[0]
        pion = [screen.place(dot) for dot in event.particles[0].dots]
        muon = [pion[-1]] + [screen.place(dot) for dot in self.record.dots]
        self.pion_places = [hand.put(dot) for dot in evenly(pion, 5)]
        self.muon_places = [hand.put(dot) for dot in evenly(muon, 5)]
        radii = [circle(p)[1] * screen.cm for p in (self.pion_places, self.muon_places)]
        self.pion_momentum, self.transverse = (momentum(r, setting.field) for r in radii)
        self.arms = hand.put(muon[0]), hand.put(pion[-1 - ARM]), hand.put(muon[ARM])
        self.turn = turn_at_kink(self.arms, radii, screen)
        self.rise = Rise([event.particles[0].dots[-1]] + self.record.dots, setting, hand)
        self.momentum = self.transverse / self.rise.cosine
        self.unseen_energy = (math.hypot(PION, self.pion_momentum)
                              - math.hypot(MUON, self.momentum))
        square = (self.pion_momentum ** 2 + self.momentum ** 2 - 2 * self.pion_momentum
                  * self.transverse * math.cos(math.radians(self.turn)))
        self.unseen_momentum = math.sqrt(square)
        self.mass_square = self.unseen_energy ** 2 - square

    def gestures(self):
        return [gesture(self.number, "xy", "curve", self.pion_places),
                gesture(self.number, "xy", "curve", self.muon_places),
                gesture(self.number, "xy", "angle", self.arms),
                gesture(self.number, "yz", "tape", self.rise.places)]


def turn_at_kink(arms, radii, screen):
    """The angle between the directions of pion and muon at the kink, degrees, from the angle between
    the arms. Each arm is a chord of its track and differs from its direction at the kink by half the
    angle that the arm's length is seen under from the centre; positive to the right."""
    vertex, back, onward = arms
    sense = 1 if turns_clockwise((back, vertex, onward)) else -1
    bend = sum(math.dist(vertex, end) * screen.cm / (2 * r)
               for end, r in zip((back, onward), radii))
    return sense * (180 - angle(*arms)) - math.degrees(bend)


def measure():
    """All events and the kinks among them that can be measured."""
    made, hand = events(SETTING, COUNT), Hand(31)
    return made, [Kink(event, hand) for event in made
                  if event.named(-13) and event.particles[0].count >= LEAST_DOTS
                  and event.named(-13)[0].count >= LEAST_DOTS]


def worked_example(kink):
    """The first kink, number by number."""
    setting = SETTING
    screen = Screen(setting)
    radii = [circle(p)[1] * screen.cm for p in (kink.pion_places, kink.muon_places)]
    return {
        "first_event": str(kink.number),
        "first_pion_radius": number(radii[0], 1),
        "first_muon_radius": number(radii[1], 1),
        "first_pion_momentum": number(kink.pion_momentum, 1),
        "first_transverse": number(kink.transverse, 1),
        "first_angle": number(angle(*kink.arms), 1),
        "first_side": "right" if turns_clockwise((kink.arms[1], kink.arms[0], kink.arms[2]))
                      else "left",
        "first_arm_pion": number(math.dist(*kink.arms[:2]) * screen.cm, 1),
        "first_arm_muon": number(math.dist(kink.arms[0], kink.arms[2]) * screen.cm, 1),
        "first_turn": number(kink.turn, 1),
        "first_rise": number(kink.rise.rise, 1),
        "first_steps": str(kink.rise.steps),
        "first_way": number(kink.rise.steps * setting.step, 0),
        "first_sine": number(abs(kink.rise.sine), 3),
        "first_momentum": number(kink.momentum, 1),
        "first_pion_energy": number(math.hypot(PION, kink.pion_momentum), 1),
        "first_muon_energy": number(math.hypot(MUON, kink.momentum), 1),
        "first_unseen_energy": number(kink.unseen_energy, 1),
        "first_unseen_momentum": number(kink.unseen_momentum, 1),
        "first_mass_square": number(kink.mass_square, 0),
    }


def results():
    made, kinks = measure()
    mean, spread, error = mean_and_spread([kink.mass_square for kink in kinks])
    pion_mean, _, pion_error = mean_and_spread([kink.pion_momentum for kink in kinks])
    return set_to(SETTING) | worked_example(kinks[0]) | {
        "count": str(COUNT), "least_dots": str(LEAST_DOTS), "arm": str(ARM),
        "decays": str(sum(bool(event.named(-13)) for event in made)),
        "measured": str(len(kinks)),
        "table": markdown_table(
            ("event", "pion p (MeV/c)", "muon pT (MeV/c)", "turn (°)", "muon p (MeV/c)",
             "E of the unseen (MeV)", "p of the unseen (MeV/c)", "m² (MeV²)"),
            [(k.number, number(k.pion_momentum, 1), number(k.transverse, 1), number(k.turn, 1),
              number(k.momentum, 1), number(k.unseen_energy, 1), number(k.unseen_momentum, 1),
              number(k.mass_square, 0)) for k in kinks]),
        "mean": number(mean, 0), "spread": number(spread, 0), "error": number(error, 0),
        "limit": number(math.sqrt(max(mean, 0) + 2 * error), 0),
        "pion_mean": number(pion_mean, 1), "pion_error": number(pion_error, 1),
        "true_pion": number(made[0].particles[0].transverse, 1),
        "worst_muon": number(max(abs(k.momentum / k.record.total - 1) for k in kinks) * 100, 0),
    }


def gestures():
    return [(SETTING, g) for kink in measure()[1] for g in kink.gestures()]


if __name__ == "__main__":
    run(results, gestures)
