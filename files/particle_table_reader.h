// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "events/particle_record.h"

namespace velquon {

/// Reads what `ParticleTable` writes, piece by piece as it comes.
class ParticleTableReader {
 public:
  /// Takes the particles of one event.
  using EventTaker =
      std::function<void(std::uint64_t number, std::span<const RecordedParticle> particles)>;

  explicit ParticleTableReader(EventTaker take_event) : take_event_(std::move(take_event)) {}

  /// Takes the next bytes and hands on the events that they complete.
  /// \return false when they are not those of a table of particles, from then on
  bool take(std::string_view bytes);
  /// Hands on the last event.
  /// \return false when the table is not complete or not one
  bool finish();

  /// The number, from 1, of the line that is wrong or comes next.
  [[nodiscard]] std::size_t line() const { return line_; }

 private:
  bool takeLine(std::string_view line);
  void handOn();

  EventTaker take_event_;
  std::string rest_;  ///< a line that is not complete
  std::size_t line_ = 1;
  bool failed_ = false;
  std::uint64_t event_ = 0;
  std::vector<RecordedParticle> particles_;
};

}  // namespace velquon
