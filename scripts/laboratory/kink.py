#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Exercise 3: the mass of the unseen particle in the decay of a pion."""
import math
import sys

from bench import (MUON, PION, Hand, Screen, Setting, angle, circle, evenly, events, markdown_table,
                   mean_and_spread, momentum, number, show, tape)

SETTING = Setting("pi+", float(sys.argv[2]) if len(sys.argv)>2 else 1.5, float(sys.argv[4]) if len(sys.argv)>4 else 200.0, float(sys.argv[3]) if len(sys.argv)>3 else 10.0, int(sys.argv[1]) if len(sys.argv)>1 else 3)
ZOOM = int(sys.argv[5]) if len(sys.argv)>5 else 1
COUNT = 30
LEAST_DOTS = 9
ARM = 4


class Kink:
    def __init__(self, event, hand):
        self.event = event
        self.pion, self.muon = event.named(211)[0], event.named(-13)[0]
        setting = event.setting
        screen = Screen(setting, zoom=ZOOM)
        pion = [screen.place(d) for d in self.pion.dots]
        muon = [screen.place(d) for d in self.muon.dots]
        kink = pion[-1]
        self.pion_radius = circle([hand.put(p) for p in evenly(pion, 5)])[1] * screen.cm
        self.muon_radius = circle([hand.put(p) for p in evenly([kink, *muon], 5)])[1] * screen.cm
        self.pion_momentum = momentum(self.pion_radius, setting.field)
        self.muon_transverse = momentum(self.muon_radius, setting.field)
        # angle between the arms: back along the pion, on along the muon
        v, a, b = hand.put(kink), hand.put(pion[-1 - ARM]), hand.put(muon[ARM - 1])
        self.read_angle = angle(v, a, b)
        arms = math.dist(v, a) * screen.cm, math.dist(v, b) * screen.cm
        # The sense of the kink: positive when the muon leaves to the side that the field bends to.
        turn = (v[0]-a[0])*(b[1]-v[1]) - (v[1]-a[1])*(b[0]-v[0])
        sense = 1 if turn > 0 else -1   # y down: clockwise positive
        bend = math.degrees(arms[0] / (2 * self.pion_radius) + arms[1] / (2 * self.muon_radius))
        self.kink = sense * (180 - self.read_angle) - bend
        # rise
        side = Screen(setting, "yz", ZOOM)
        first, last = side.place(self.pion.dots[-1]), side.place(self.muon.dots[-1])
        f, l = hand.put(first), hand.put(last)
        self.rise = tape((0, f[1]), (0, l[1]), side)
        chord = tape(hand.put(kink), hand.put(muon[-1]), screen)
        self.arc = 2 * self.muon_radius * math.asin(min(1, chord / 2 / self.muon_radius))
        self.slope = self.rise / self.arc
        self.muon_total = self.muon_transverse * math.hypot(1, self.slope)
        self.unseen_energy = math.hypot(PION, self.pion_momentum) - math.hypot(MUON, self.muon_total)
        self.unseen_square = (self.pion_momentum ** 2 + self.muon_total ** 2 - 2 * self.pion_momentum
                              * self.muon_transverse * math.cos(math.radians(self.kink)))
        self.mass_square = self.unseen_energy ** 2 - self.unseen_square


def results():
    hand = Hand(31)
    made = events(SETTING, COUNT)
    good = [e for e in made if e.named(-13) and e.particles[0].count >= LEAST_DOTS
            and e.named(-13)[0].count >= LEAST_DOTS]
    kinks = [Kink(e, hand) for e in good]
    rows = [(k.event.number, len(k.pion.dots), len(k.muon.dots), number(k.pion_momentum, 1), number(k.muon_transverse, 1), number(k.muon.transverse,1),
             number(k.kink, 1), number(k.slope, 2), number(k.muon_total, 1), number(k.muon.total, 1), number(k.unseen_energy, 1), number(math.sqrt(k.unseen_square), 1),
             number(k.mass_square, 0)) for k in kinks]
    import random
    return {"decays": str(sum(bool(e.named(-13)) for e in made)), "kinks": markdown_table("n dp dm pp pt true k slope pm true E p m2".split(), rows),
       "mean": str(mean_and_spread([k.mass_square for k in kinks])) }


if __name__ == "__main__":
    show(results())
