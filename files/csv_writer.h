// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>
#include <system_error>
#include <vector>

#include "engine/event_record.h"
#include "files/byte_output.h"

namespace velquon {

/// Writes events as lines `event,point,x,y,z,code` under a header of these names, buffered.
class CsvWriter {
 public:
  explicit CsvWriter(ByteOutput output);

  /// Adds the lines of one event.
  /// \param event number of the event, from 1; points are numbered from 0
  /// \return what went wrong while a full buffer was written
  std::error_code write(std::uint64_t event, std::span<const PlotPoint> points);

  /// Writes what is still in the buffer.
  std::error_code finish();

 private:
  std::error_code flush();

  ByteOutput output_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

}  // namespace velquon
