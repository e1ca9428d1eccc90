// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A fuzzer of one reader of event files, chosen by READ_EVENT: any bytes are either refused or read
// as an event that can be shown, and written down again and read back they are the same event.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <variant>

#include "files/event_file.h"
#include "files/event_layout.h"
#include "files/pc_layout.h"

namespace {

using velquon::ReadResult;
using velquon::StoredEvent;
using Bytes = std::span<const std::byte>;

[[maybe_unused]] ReadResult read_whole_file(Bytes bytes) {
  return velquon::read_event_file(bytes);
}
[[maybe_unused]] ReadResult read_own_layout(Bytes bytes) {
  return velquon::read_event_layout(bytes);
}
/// With a tag and without one, by the first bit, so that both are reached.
[[maybe_unused]] ReadResult read_layout_of_pc(Bytes bytes) {
  const bool tagged = !bytes.empty() && (std::to_integer<unsigned>(bytes[0]) & 1U) != 0U;
  return velquon::readWinData(tagged ? 1 : 0, bytes);
}

void require(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
  }
}

void check_event(const StoredEvent& event) {
  require(!event.points.empty() && event.points.size() <= velquon::file_point_limit,
          "an event has 1 to 5000 points");
  require(velquon::is_chamber_possible(event.values), "a chamber can have the values");
  require(!event.field_was_negative || event.values.B_field >= 0.0F,
          "a field that is reported as negative is given as its absolute value");

  const auto written = velquon::encode_event(event.points, event.values);
  require(written.size() == 48 * event.points.size() + 75, "a file has its exact size");
  const ReadResult again = velquon::read_event_file(written);
  require(std::holds_alternative<StoredEvent>(again), "what is written can be read");
  // Compared as bytes, since a coordinate may be not a number; the time is not read back.
  StoredEvent timeless = event;
  for (velquon::PlotPoint& point : timeless.points) {
    point.time = 0.0;
  }
  const auto& read = std::get<StoredEvent>(again);
  require(velquon::encode_event(read.points, read.values) ==
              velquon::encode_event(timeless.points, timeless.values),
          "what is read back is the same event");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ReadResult result = READ_EVENT(std::as_bytes(std::span(data, size)));
  if (const auto* event = std::get_if<StoredEvent>(&result)) {
    check_event(*event);
  }
  return 0;
}
