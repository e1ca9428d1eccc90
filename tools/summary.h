// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "tools/event_writer.h"

namespace velquon {

/// Number, sum and sum of squares of a quantity: what its mean and the mean's error follow from.
struct Sums {
  std::uint64_t n = 0;
  double sum = 0.0;
  double sum2 = 0.0;

  void add(double value) {
    ++n;
    sum += value;
    sum2 += value * value;
  }
  void add(const Sums& other) {
    n += other.n;
    sum += other.sum;
    sum2 += other.sum2;
  }
  friend bool operator==(const Sums&, const Sums&) = default;
};

/// The particles of one kind in a run.
struct ParticleSums {
  std::uint64_t n = 0;
  std::array<std::uint64_t, 6> fates{};  ///< by `Fate`
  /// Decays and conversions by what came of them: the daughters' numbers in their order.
  std::map<std::string, std::uint64_t> modes;
  Sums points;        ///< points in the event of those that leave any
  Sums momentum_MeV;  ///< magnitude at creation
  Sums energy_MeV;    ///< total energy at creation
  Sums flight_cm;     ///< from creation straight to where it decayed or converted

  void add(const ParticleSums& other);
  friend bool operator==(const ParticleSums&, const ParticleSums&) = default;
};

/// One stream of events.
struct SummedRun {
  std::uint32_t seed = 0;
  std::uint64_t events = 0;
  friend bool operator==(const SummedRun&, const SummedRun&) = default;
};

/// Counts and sums over the events of one run or of several under the same values.
struct Summary {
  std::string type;
  float field_kG = 0.0F;
  float side_cm = 0.0F;
  float energy_MeV = 0.0F;
  std::vector<SummedRun> runs;
  std::uint64_t events = 0;
  std::uint64_t without_points = 0;       ///< those not handed over included
  std::uint64_t not_handed_over = 0;      ///< without a record, hence without particles
  Sums points;                            ///< points of an event
  std::map<int, ParticleSums> particles;  ///< by their number

  /// Counts an event.
  void count(std::span<const PlotPoint> points_of_event, const ParticleRecord& record);
  /// Adds another summary.
  /// \return why it cannot be: other values, or a seed that is here already; empty when it is added
  [[nodiscard]] std::string add(const Summary& other);

  friend bool operator==(const Summary&, const Summary&) = default;
};

/// The summary of a run without events.
[[nodiscard]] Summary empty_summary(const RunDescription& run);

/// The summary as a JSON object, and back. Numbers keep every bit.
[[nodiscard]] std::string to_json(const Summary& summary);
/// \return a summary, or why the text is none
[[nodiscard]] std::variant<Summary, std::string> summary_from_json(const std::string& text);

/// Writes the summary of a run at its end.
class SummaryWriter : public EventWriter {
 public:
  SummaryWriter(ByteOutput output, const RunDescription& run);

  std::error_code write(std::uint64_t number, std::span<const PlotPoint> points,
                        const ParticleRecord& record) override;
  std::error_code finish() override;

 private:
  ByteOutput output_;
  Summary summary_;
};

}  // namespace velquon
