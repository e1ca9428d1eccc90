// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include "tools/event_writer.h"

namespace velquon {

/// Writes points as a NumPy array: packed little-endian records of event (i8), point (i4), x, y, z
/// (f8) and code (i2), behind a header of version 1.0 whose number of rows is filled in at the end.
class NpyWriter : public EventWriter {
 public:
  /// \param target a file; stays alive as long as the writer
  explicit NpyWriter(OutputTarget& target);

  std::error_code write(std::uint64_t number, std::span<const PlotPoint> points,
                        const ParticleRecord& record) override;
  std::error_code finish() override;

 private:
  std::error_code flush();

  OutputTarget& target_;
  std::vector<std::byte> bytes_;
  std::uint64_t rows_ = 0;
};

}  // namespace velquon
