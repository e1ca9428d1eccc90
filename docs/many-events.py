#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Two results of many events: the pion's decay length and the electron spectrum of the muon.

    many-events.py VELQUON-EVENTS [PICTURE]

Makes the events with the program named, reads what happened with pandas, prints the results and, if a
picture is asked for, draws them.
"""
import subprocess
import sys
import tempfile

import numpy as np
import pandas as pd

STEP = 20 / 800  # of a charged track, in sides of the chamber
PION_MASS, MUON_MASS, ELECTRON_MASS = 139.6, 105.7, 0.51  # MeV


def particles(program, seeds, **options):
    """The particles of four seeds' events, one table."""
    with tempfile.TemporaryDirectory() as folder:
        words = [word for name, value in options.items() for word in (f"--{name}", str(value))]
        subprocess.run([program, *words, "--seeds", seeds, "--jobs", "2",
                        "--format", "particles", "--output", folder], check=True)
        first, last = map(int, seeds.split("-"))
        tables = {seed: pd.read_csv(f"{folder}/seed-{seed}.csv", float_precision="round_trip")
                  for seed in range(first, last + 1)}
    return pd.concat(tables, names=["seed", "row"]).reset_index("seed")


def pion_decay_length(program):
    """Every step is a trial of the pion's survival; c tau follows from the decays among them."""
    side, energy = 1000.0, 20.0
    rows = particles(program, "1-4", type="pi+", field=0, side=side, energy=energy, events=25000)
    pions = rows[rows.pdg == 211]
    decayed = pions.fate == "decayed"
    decays, trials = decayed.sum(), int((pions.points - decayed).sum())
    p = np.hypot(np.hypot(pions.px, pions.py), pions.pz).iloc[0]
    scale = STEP * side * PION_MASS / p
    chance = decays / trials
    length = -scale / np.log1p(-chance)
    error = scale / np.log1p(-chance) ** 2 * np.sqrt(chance / ((1 - chance) * trials))
    print(f"pions: {len(pions)}, decays: {decays}, steps: {trials}")
    print(f"c tau = {length:.1f} +- {error:.1f} cm (780 cm)")
    paths = pions.points[decayed] * STEP * side
    return paths, STEP * side, length * p / PION_MASS, decays


def spectrum_weight(x):
    """What the generator draws: the weight of x and the angle's cosine c, cut at 1, over all c."""
    c = np.linspace(-1, 1, 2001)
    x = np.asarray(x)[:, None]
    return np.trapz(np.minimum(1, x**2 * (3 - 2 * x + (1 - 2 * x) * c)), c, axis=1)


def muon_spectrum(program):
    """The electron's momentum in the muon's rest frame, in halves of the muon's mass."""
    rows = particles(program, "11-14", type="mu-", field=5, energy=0.001, events=25000)
    names = ["px", "py", "pz", "energy"]
    keys = ["seed", "event"]
    electrons = rows[rows.pdg == 11].set_index(keys)[names]
    neutrinos = rows[rows.pdg == 0].set_index(keys)[names]
    muons = electrons + neutrinos  # at the decay, where the field has turned them
    product = muons.energy * electrons.energy - sum(muons[n] * electrons[n] for n in names[:3])
    at_rest = product / MUON_MASS
    x = np.sqrt(at_rest**2 - ELECTRON_MASS**2) / (MUON_MASS / 2)
    edges = np.linspace(0, 1, 41)
    counts, _ = np.histogram(x, edges)
    fine = np.linspace(0, 1, 4001)
    cumulated = np.concatenate([[0], np.cumsum(spectrum_weight((fine[1:] + fine[:-1]) / 2))])
    expected = len(x) * np.diff(np.interp(edges, fine, cumulated / cumulated[-1]))
    used = expected > 5
    chi2 = ((counts - expected)[used] ** 2 / expected[used]).sum()
    print(f"electrons: {len(x)}, mean x = {x.mean():.4f} +- {x.std() / np.sqrt(len(x)):.4f}")
    print(f"chi-square against the spectrum: {chi2:.1f} for {used.sum() - 1} degrees of freedom")
    return edges, counts, expected


def draw(picture, pion, muon):
    import matplotlib
    matplotlib.use("Agg")
    from matplotlib import pyplot as plt
    paths, step, mean, decays = pion
    edges, counts, expected = muon
    figure, (left, right) = plt.subplots(1, 2, figsize=(10, 4), layout="constrained")
    bins = np.arange(0.5, 42.5) * step
    left.hist(paths, bins, histtype="step", label="decays in 25 cm")
    first = (paths < 2.5 * step).sum()
    left.plot(bins[2:], first * np.exp(-(bins[2:] - bins[2]) / mean), label="exponential law")
    left.set(xlabel="path of the pion (cm)", ylabel="pions", yscale="log")
    left.legend()
    right.stairs(counts, edges, label="electrons")
    right.plot((edges[1:] + edges[:-1]) / 2, expected, label="spectrum")
    right.set(xlabel="momentum at rest, in halves of the muon's mass", ylabel="electrons")
    right.legend()
    figure.savefig(picture, dpi=80, metadata={"Software": None})


def main():
    program = sys.argv[1]
    pion, muon = pion_decay_length(program), muon_spectrum(program)
    if len(sys.argv) > 2:
        draw(sys.argv[2], pion, muon)


if __name__ == "__main__":
    main()
