// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/summary.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "engine/kinematics.h"

namespace velquon {

namespace {

/// The daughters of a row as one text, for instance "-13 14"; empty when it has none.
std::string mode_of(std::span<const RecordedParticle> rows, std::size_t parent) {
  std::string mode;
  for (const RecordedParticle& row : rows.subspan(parent + 1)) {
    if (row.parent == static_cast<int>(parent)) {
      mode += mode.empty() ? "" : " ";
      mode += std::to_string(row.pdg);
    }
  }
  return mode;
}

}  // namespace

void ParticleSums::add(const ParticleSums& other) {
  n += other.n;
  for (std::size_t fate = 0; fate < fates.size(); ++fate) {
    fates[fate] += other.fates[fate];
  }
  for (const auto& [mode, count] : other.modes) {
    modes[mode] += count;
  }
  points.add(other.points);
  momentum_MeV.add(other.momentum_MeV);
  energy_MeV.add(other.energy_MeV);
  flight_cm.add(other.flight_cm);
}

void Summary::count(std::span<const PlotPoint> points_of_event, const ParticleRecord& record) {
  ++events;
  ++runs.back().events;
  without_points += points_of_event.empty() ? 1U : 0U;
  points.add(static_cast<double>(points_of_event.size()));
  const auto rows = record.particles();
  not_handed_over += rows.empty() ? 1U : 0U;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const RecordedParticle& row = rows[i];
    ParticleSums& sums = particles[row.pdg];
    ++sums.n;
    ++sums.fates[static_cast<std::size_t>(row.fate)];
    if (row.points > 0) {
      sums.points.add(row.points);
    }
    sums.momentum_MeV.add(magnitude(row.momentum));
    sums.energy_MeV.add(row.energy);
    if (row.fate == Fate::decayed || row.fate == Fate::converted) {
      sums.flight_cm.add(distance(row.place_cm, row.end_cm.value_or(row.place_cm)));
      ++sums.modes[mode_of(rows, i)];
    }
  }
}

std::string Summary::add(const Summary& other) {
  if (other.type != type || other.field_kG != field_kG || other.side_cm != side_cm ||
      other.energy_MeV != energy_MeV) {
    return "its events are of another type or made under other values";
  }
  for (const SummedRun& run : other.runs) {
    if (std::ranges::find(runs, run.seed, &SummedRun::seed) != runs.end()) {
      return "the events of seed " + std::to_string(run.seed) + " are counted already";
    }
  }
  runs.insert(runs.end(), other.runs.begin(), other.runs.end());
  events += other.events;
  without_points += other.without_points;
  not_handed_over += other.not_handed_over;
  points.add(other.points);
  for (const auto& [number, sums] : other.particles) {
    particles[number].add(sums);
  }
  return {};
}

Summary empty_summary(const RunDescription& run) {
  Summary summary;
  summary.type = run.type->key;
  summary.field_kG = run.values.B_field;
  summary.side_cm = run.values.sides_cm;
  summary.energy_MeV = run.values.kinetic_Mev;
  summary.runs = {{.seed = run.seed, .events = 0}};
  return summary;
}

SummaryWriter::SummaryWriter(ByteOutput output, const RunDescription& run)
    : output_(std::move(output)), summary_(empty_summary(run)) {}

std::error_code SummaryWriter::write(std::uint64_t /*number*/, std::span<const PlotPoint> points,
                                     const ParticleRecord& record) {
  summary_.count(points, record);
  return {};
}

std::error_code SummaryWriter::finish() {
  const std::string text = to_json(summary_);
  return output_(std::as_bytes(std::span(text)));
}

}  // namespace velquon
