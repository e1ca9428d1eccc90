#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Exercise 4: decay lengths of thirty pions at two energies, and time dilation."""
import math

from bench import (PION, PION_CTAU, Hand, Screen, Setting, events, gesture, markdown_table, number,
                   run, set_to, tape)

SLOW = Setting("pi+", 0.0, 1000.0, 20.0, 4)
FAST = Setting("pi+", 0.0, 1000.0, 200.0, 14)
COUNT = 30
MANY = 1000
LEAST_KINK = 3  # pixels that a muon's track leaves the pion's line by, to be seen in the projector


def seen_to_decay(event):
    """Whether a muon's track is seen. A pion that decays on the wall shows none."""
    return any(p.count for p in event.named(-13))


def shows_kink(event):
    """Whether the muon leaves the pion's line by so much that a plane shows it; without a field the
    pion's line is the middle of the xy plane and of the yz plane."""
    middle = Screen(event.setting).place((0.0, 0.0, 0.0))[1]
    return any(abs(Screen(event.setting, plane).place(event.named(-13)[0].dots[-1])[1] - middle)
               >= LEAST_KINK for plane in ("xy", "yz"))


class Pions:
    """The pions of one energy as they are measured: tape readings and which of them decayed."""

    def __init__(self, setting, hand_seed):
        self.setting = setting
        self.momentum = math.sqrt(setting.energy ** 2 + 2 * PION * setting.energy)
        self.gamma = (setting.energy + PION) / PION
        self.beta = self.momentum / (setting.energy + PION)
        self.true_length = PION_CTAU * self.momentum / PION
        screen, hand = Screen(setting), Hand(hand_seed)
        self.places, self.lengths, self.decayed = [], [], []
        self.kinks = 0
        for event in events(setting, COUNT):
            pion, decayed = event.particles[0], seen_to_decay(event)
            self.kinks += decayed and shows_kink(event)
            start = screen.place((0.0, -400.0, 0.0))
            end = screen.place(pion.dots[-1] if decayed else (0.0, 400.0, 0.0))
            self.places.append((hand.put(start), hand.put(end)))
            self.lengths.append(tape(*self.places[-1], screen))
            self.decayed.append(decayed)

    @property
    def decays(self):
        return sum(self.decayed)

    @property
    def total(self):
        return sum(self.lengths)

    @property
    def fit(self):
        """Mean decay length and its error, cm, without what the steps add."""
        return self.total / self.decays, self.total / self.decays / math.sqrt(self.decays)

    @property
    def corrected(self):
        """The steps taken into account: a pion has its first chance of a decay on its second dot."""
        return self.fit[0] - 1.5 * self.setting.step

    @property
    def of_decays_alone(self):
        """What those get who leave out the pions that ran to the wall."""
        return sum(n for n, d in zip(self.lengths, self.decayed) if d) / self.decays


def of_many(setting):
    """The same from many records, as the program's fit has it: mean and its error, cm; pions that
    left."""
    pions = [event.particles[0] for event in events(setting, MANY, with_dots=False)]
    decays = sum(pion.fate == "decayed" for pion in pions)
    mean = sum(math.dist(pion.place, pion.end) for pion in pions) / decays
    return mean, mean / math.sqrt(decays), MANY - decays


def results():
    slow, fast = Pions(SLOW, 41), Pions(FAST, 42)
    texts = set_to(SLOW) | {"fast_seed": str(FAST.seed), "fast_energy": number(FAST.energy),
                            "count": str(COUNT), "many": str(MANY)} | {"rows": markdown_table(
        ("", "20 MeV (cm)", "", "200 MeV (cm)", ""),
        [(i + 1, number(a, 1), "decay" if da else "wall", number(b, 1), "decay" if db else "wall")
         for i, (a, da, b, db) in enumerate(zip(slow.lengths, slow.decayed, fast.lengths,
                                                fast.decayed))])}
    clocks = []
    for name, pions, setting in (("slow", slow, SLOW), ("fast", fast, FAST)):
        fit, error = pions.fit
        many_fit, many_error, many_left = of_many(setting)
        many = many_fit - 1.5 * setting.step
        clocks.append((pions.corrected / pions.beta, error / pions.beta,
                       many / pions.beta, many_error / pions.beta))
        texts |= {
            f"{name}_decays": str(pions.decays),
            f"{name}_left": str(COUNT - pions.decays),
            f"{name}_kinks": str(pions.kinks),
            f"{name}_total": number(pions.total, 0),
            f"{name}_fit": number(fit, 0),
            f"{name}_error": number(error, 0),
            f"{name}_corrected": number(pions.corrected, 0),
            f"{name}_decays_alone": number(pions.of_decays_alone, 0),
            f"{name}_true": number(pions.true_length, 0),
            f"{name}_momentum": number(pions.momentum, 1),
            f"{name}_beta": number(pions.beta, 3),
            f"{name}_gamma": number(pions.gamma, 3),
            f"{name}_clock": number(clocks[-1][0], 0),
            f"{name}_clock_error": number(clocks[-1][1], 0),
            f"{name}_clock_ns": number(clocks[-1][0] / 29.979, 1),
            f"{name}_clock_error_ns": number(clocks[-1][1] / 29.979, 1),
            f"{name}_ctau": number(pions.corrected * PION / pions.momentum, 0),
            f"{name}_ctau_error": number(error * PION / pions.momentum, 0),
            f"{name}_many_fit": number(many_fit, 0),
            f"{name}_many": number(many, 0),
            f"{name}_many_error": number(many_error, 0),
            f"{name}_many_left": str(many_left),
            f"{name}_many_clock": number(clocks[-1][2], 0),
            f"{name}_many_clock_error": number(clocks[-1][3], 0),
        }
    for name, first in (("ratio", 0), ("many_ratio", 2)):
        (a, da), (b, db) = (clock[first:first + 2] for clock in clocks)
        texts[name] = number(b / a, 2)
        texts[f"{name}_error"] = number(b / a * math.hypot(da / a, db / b), 2)
    texts["true_ratio"] = number(fast.gamma / slow.gamma, 2)
    texts["correction"] = number(1.5 * SLOW.step, 1)
    return texts


def gestures():
    return [(pions.setting, gesture(i + 1, "xy", "tape", ends))
            for pions in (Pions(SLOW, 41), Pions(FAST, 42)) for i, ends in enumerate(pions.places)]


if __name__ == "__main__":
    run(results, gestures)
