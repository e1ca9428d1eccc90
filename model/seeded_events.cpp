// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/seeded_events.h"

#include <array>
#include <cstdlib>
#include <utility>

#include "engine/event_record.h"
#include "events/particle_record.h"

namespace velquon {

namespace {

/// While it lives, `rand` draws from a stream of a seed of its own. The C library's `rand` and
/// `random` draw from one state, which `setstate` puts back with its position in the stream.
class OwnRandomStream {
 public:
  explicit OwnRandomStream(std::uint32_t seed)
      : former_(::initstate(seed, state_.data(), state_.size())) {}
  ~OwnRandomStream() { ::setstate(former_); }
  OwnRandomStream(const OwnRandomStream&) = delete;
  OwnRandomStream& operator=(const OwnRandomStream&) = delete;
  OwnRandomStream(OwnRandomStream&&) = delete;
  OwnRandomStream& operator=(OwnRandomStream&&) = delete;

 private:
  // The size of the state that `srand` seeds; another size gives another stream.
  std::array<char, 128> state_{};
  char* former_;
};

}  // namespace

std::vector<EventTracks> seeded_events(const EventType& type, const ChamberValues& values,
                                       std::uint32_t seed, std::size_t count) {
  const OwnRandomStream stream(seed);
  const auto type_index = static_cast<std::size_t>(&type - event_types().data());
  std::vector<EventTracks> events;
  events.reserve(count);
  TrackBuffer buffer;
  for (std::size_t i = 0; i < count; ++i) {
    EventTracks event{
        .points = {}, .type = type_index, .values = values, .record = ParticleRecord()};
    if (make_event(type, values, buffer, &*event.record) == HandOver::yes) {
      const auto points = buffer.points();
      event.points.assign(points.begin(), points.end());
    }
    events.push_back(std::move(event));
  }
  return events;
}

}  // namespace velquon
