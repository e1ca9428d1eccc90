// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "tools/byte_output.h"
#include "tools/event_writer.h"

namespace velquon {

/// Writes what happened as a table, a line a particle, below a header with the names of the
/// columns. cm and MeV; the origin is in the middle of the chamber.
class ParticleTable : public EventWriter {
 public:
  explicit ParticleTable(ByteOutput output);

  std::error_code write(std::uint64_t number, std::span<const PlotPoint> points,
                        const ParticleRecord& record) override;
  std::error_code finish() override;

 private:
  ByteOutput output_;
  std::string text_;
};

}  // namespace velquon
