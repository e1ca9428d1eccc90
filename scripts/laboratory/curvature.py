#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Exercise 1: the momentum of a muon from the curvature of its track."""
import math

from bench import (Hand, Screen, Setting, circle, evenly, events, gesture, markdown_table,
                   mean_and_spread, momentum, number, run, set_to, tape)

SETTING = Setting("mu+", 5.0, 200.0, 100.0, 1)
REPEATS = 10


def crossing(dots, middle, normal):
    """Where the line through a place, along a direction, meets the track between two dots."""
    def side(p):
        return (p[0] - middle[0]) * -normal[1] + (p[1] - middle[1]) * normal[0]
    for a, b in zip(dots, dots[1:]):
        if side(a) <= 0 < side(b) or side(b) <= 0 < side(a):
            share = side(a) / (side(a) - side(b))
            return a[0] + share * (b[0] - a[0]), a[1] + share * (b[1] - a[1])
    raise ValueError("the line does not meet the track")


def by_tape(dots, screen, hand):
    """Chord between the ends of the track, then from its middle across to the track; cm and places."""
    a, b = hand.put(dots[0]), hand.put(dots[-1])
    middle = ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)
    length = math.dist(a, b)
    normal = ((b[1] - a[1]) / length, -(b[0] - a[0]) / length)
    low, high = hand.put(middle), hand.put(crossing(dots, middle, normal))
    return tape(a, b, screen), tape(low, high, screen), (a, b, low, high)


def measure():
    """The muon's record, the screen and ten measurements by tape and ten by curve."""
    muon = events(SETTING, 1)[0].particles[0]
    screen = Screen(SETTING)
    dots = [screen.place(dot) for dot in muon.dots]
    hand = Hand(11)
    tapes = [by_tape(dots, screen, hand) for _ in range(REPEATS)]
    curves = [[hand.put(dot) for dot in evenly(dots, 5)] for _ in range(REPEATS)]
    return muon, screen, tapes, curves


def exact_radius(chord, sagitta):
    return chord * chord / (8 * sagitta) + sagitta / 2


def results():
    muon, screen, tapes, curves = measure()
    field_kG = SETTING.field
    by_sagitta = [momentum(exact_radius(c, s), field_kG) for c, s, _ in tapes]
    approximate = [momentum(c * c / (8 * s), field_kG) for c, s, _ in tapes]
    radii = [circle(places)[1] * screen.cm for places in curves]
    by_curve = [momentum(radius, field_kG) for radius in radii]
    chord, sagitta, _ = tapes[0]
    rows = [(i + 1, number(c, 2), number(s, 2), number(exact_radius(c, s), 1), number(p, 1),
             number(r, 1), number(q, 1))
            for i, ((c, s, _), p, r, q) in enumerate(zip(tapes, by_sagitta, radii, by_curve))]
    tape_mean, tape_spread, tape_error = mean_and_spread(by_sagitta)
    curve_mean, curve_spread, curve_error = mean_and_spread(by_curve)
    return set_to(SETTING) | {
        "repeats": str(REPEATS),
        "dots": str(len(muon.dots)),
        "centimetres_a_pixel": number(screen.cm, 2),
        "first_chord": number(chord, 2),
        "first_sagitta": number(sagitta, 2),
        "first_radius": number(exact_radius(chord, sagitta), 1),
        "first_momentum": number(by_sagitta[0], 1),
        "first_approximate_radius": number(chord * chord / (8 * sagitta), 1),
        "first_approximate_momentum": number(approximate[0], 1),
        "measurements": markdown_table(
            ("", "chord (cm)", "sagitta (cm)", "radius (cm)", "momentum by tape (MeV/c)",
             "radius by Curve (cm)", "momentum by Curve (MeV/c)"), rows),
        "tape_mean": number(tape_mean, 1),
        "tape_spread": number(tape_spread, 1),
        "tape_error": number(tape_error, 1),
        "curve_mean": number(curve_mean, 1),
        "curve_spread": number(curve_spread, 1),
        "curve_error": number(curve_error, 1),
        "true_momentum": number(muon.transverse, 1),
        "true_radius": number(muon.transverse / (0.3 * field_kG), 1),
        "approximate_mean": number(mean_and_spread(approximate)[0], 1),
        # Each end of the sagitta has a variance of 2/3 of a square pixel across.
        "sagitta_share": number(100 * math.sqrt(4 / 3) * screen.cm / sagitta, 1),
    }


def gestures():
    _, _, tapes, curves = measure()
    done = [gesture(1, "xy", "tape", ends) for *_, (a, b, c, d) in tapes for ends in ((a, b), (c, d))]
    done += [gesture(1, "xy", "curve", places) for places in curves]
    return [(SETTING, g) for g in done]


if __name__ == "__main__":
    run(results, gestures)
