// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <system_error>

#include "engine/chamber_values.h"
#include "events/particle_record.h"

namespace velquon {

/// Under what a run's events are made.
struct Hepmc3Run {
  std::string type;  ///< as on the command line
  ChamberValues values;
  std::uint32_t seed = 0;
  std::string version;  ///< of this program
};

/// Writes records as a HepMC3 text file, by that library's own writer.
class Hepmc3Writer {
 public:
  /// Takes bytes that follow those before, all or with an error.
  using Output = std::function<std::error_code(std::span<const std::byte>)>;

  Hepmc3Writer(Output output, const Hepmc3Run& run);
  ~Hepmc3Writer();
  Hepmc3Writer(const Hepmc3Writer&) = delete;
  Hepmc3Writer& operator=(const Hepmc3Writer&) = delete;
  Hepmc3Writer(Hepmc3Writer&&) = delete;
  Hepmc3Writer& operator=(Hepmc3Writer&&) = delete;

  /// Adds an event; one without particles is left out.
  std::error_code write(std::uint64_t number, const ParticleRecord& record);
  /// Writes the line that ends the file.
  std::error_code finish();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace velquon
