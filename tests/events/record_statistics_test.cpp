// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "tests/events/record_checks.h"
#include "tests/support/event_making.h"
#include "tests/support/statistics.h"

// Branching and lifetimes from the record alone. Each step of a track is one trial of its survival,
// so the decays of many tracks are counted against the sum of the steps' probabilities; a right
// program misses by more than `critical_z` once in ten thousand times, and the seeds are fixed.

namespace velquon {
namespace {

constexpr double step_length = 20.0;

/// Decays counted against those that the steps' probabilities let expect.
struct Trials {
  double decays = 0.0;
  double expected = 0.0;
  double variance = 0.0;

  void add(double steps, bool decayed, double survival) {
    decays += decayed ? 1.0 : 0.0;
    expected += steps * (1.0 - survival);
    variance += steps * survival * (1.0 - survival);
  }
  [[nodiscard]] double z() const { return (decays - expected) / std::sqrt(variance); }
};

template <typename Use>
void for_each_row(std::string_view key, const ChamberValues& values, int events, Use use) {
  std::srand(20261121);
  for (int i = 0; i < events; ++i) {
    const auto event = test::next_recorded_event(test::event_type(key), values);
    for (const RecordedParticle& row : event.record.particles()) {
      use(row);
    }
  }
}

void add_track(Trials& trials, const RecordedParticle& row, const ChamberValues& values,
               double decay_length) {
  // The draw behind the last point of a full track is made and not heeded.
  const bool decayed = row.fate == Fate::decayed;
  const double steps = row.points - (decayed || row.fate == Fate::full ? 1 : 0);
  const double length_cm = test::length(row.momentum) / test::mass_of(row.pdg) * decay_length;
  const double step_cm = step_length * static_cast<double>(values.sides_cm) / 800.0;
  trials.add(steps, decayed, std::exp(-step_cm / length_cm));
}

TEST(RecordStatistics, PionsLiveSevenHundredAndEightyCentimetres) {
  for (const float field : {0.0F, 2.0F}) {
    const ChamberValues values{.B_field = field, .sides_cm = 500.0F, .kinetic_Mev = 20.0F};
    Trials trials;
    for_each_row("pi-", values, 4000, [&](const RecordedParticle& row) {
      if (row.pdg == -pdg::pion) {
        add_track(trials, row, values, 780.0);
      }
    });
    EXPECT_GT(trials.decays, 500.0);
    EXPECT_LT(std::fabs(trials.z()), test::critical_z) << field;
  }
}

TEST(RecordStatistics, MuonsLiveSixHundredAndFiftyNineMetres) {
  // A chamber of 30 m with a strong field holds them long enough.
  const ChamberValues values{.B_field = 5.0F, .sides_cm = 30000.0F, .kinetic_Mev = 5.0F};
  for (const auto* key : {"mu+", "pi+"}) {
    Trials trials;
    for_each_row(key, values, 3000, [&](const RecordedParticle& row) {
      if (row.pdg == -pdg::muon) {
        add_track(trials, row, values, 65868.0);
      }
    });
    EXPECT_GT(trials.decays, 500.0) << key;
    EXPECT_LT(std::fabs(trials.z()), test::critical_z) << key;
  }
}

/// Steps of a straight walk that stay inside |trunc(c)| <= 400, in drawing units.
int steps_inside(const Vector3& place, const Vector3& direction, double step_units) {
  int steps = 0;
  while (true) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
      if (std::fabs(place[axis] + (steps + 1) * step_units * direction[axis]) >= 401.0) {
        return steps;
      }
    }
    ++steps;
  }
}

void add_walk(Trials& trials, const RecordedParticle& row, double side_cm, double step_cm,
              double survival) {
  const bool ended = row.end_cm.has_value();
  const double scale = 800.0 / side_cm;
  const double p = test::length(row.momentum);
  Vector3 place{};
  Vector3 direction{};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    place[axis] = row.place_cm[axis] * scale;
    direction[axis] = row.momentum[axis] / p;
  }
  const double steps =
      ended ? std::round(test::length(test::difference(*row.end_cm, row.place_cm)) / step_cm)
            : steps_inside(place, direction, step_cm * scale);
  trials.add(steps, ended, survival);
}

TEST(RecordStatistics, LambdasLiveSevenPointEightNineCentimetres) {
  const ChamberValues values{.B_field = 0.6F, .sides_cm = 50.0F, .kinetic_Mev = 2000.0F};
  Trials trials;
  for_each_row("lambda", values, 8000, [&](const RecordedParticle& row) {
    if (row.pdg == pdg::lambda) {
      const double mean = test::length(row.momentum) / 1115.6 * 7.89;
      add_walk(trials, row, 50.0, 0.2 * mean, std::exp(-0.2));
    }
  });
  EXPECT_GT(trials.decays, 2000.0);
  EXPECT_LT(std::fabs(trials.z()), test::critical_z);
}

TEST(RecordStatistics, PhotonsOfTwoMeVAndMoreConvertEveryFortyCentimetresWithTheirChance) {
  const ChamberValues values{.B_field = 0.6F, .sides_cm = 500.0F, .kinetic_Mev = 50.0F};
  Trials trials;
  for_each_row("pi0", values, 5000, [&](const RecordedParticle& row) {
    if (row.pdg == pdg::photon && row.energy >= 2.0) {
      add_walk(trials, row, 500.0, 40.0, std::exp(-0.15));
    }
  });
  EXPECT_GT(trials.decays, 2000.0);
  EXPECT_LT(std::fabs(trials.z()), test::critical_z);
}

TEST(RecordStatistics, OfTheLambdasThatDecay642InAThousandMakeAProton) {
  double decayed = 0.0;
  double protons = 0.0;
  for_each_row("lambda", {.B_field = 0.6F, .sides_cm = 500.0F, .kinetic_Mev = 50.0F}, 10000,
               [&](const RecordedParticle& row) {
                 decayed += row.pdg == pdg::lambda && row.fate == Fate::decayed ? 1.0 : 0.0;
                 protons += row.pdg == pdg::proton ? 1.0 : 0.0;
               });
  EXPECT_GT(decayed, 9000.0);
  EXPECT_LT(std::fabs(test::binomial_z(protons, decayed, 0.642)), test::critical_z);
}

}  // namespace
}  // namespace velquon
