// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>
#include <vector>

#include "files/event_file.h"
#include "files/event_layout.h"

namespace velquon {
namespace {

class RandomEvent {
 public:
  explicit RandomEvent(unsigned seed) : engine_(seed) {}

  std::vector<PlotPoint> points(std::size_t count) {
    std::vector<PlotPoint> list(count);
    for (PlotPoint& point : list) {
      for (double& coordinate : point.coords) {
        // Every pattern of bits: denormals, infinities and what is not a number too.
        coordinate = std::bit_cast<double>(engine_());
      }
      point.code = static_cast<std::int16_t>(engine_());
    }
    return list;
  }
  ChamberValues values() {
    ChamberValues values;
    do {
      values = {.B_field = any_float(), .sides_cm = any_float(), .kinetic_Mev = any_float()};
    } while (!is_chamber_possible(values));
    return values;
  }
  std::size_t count() { return 1 + engine_() % (engine_() % 64 == 0 ? 5000U : 30U); }

 private:
  float any_float() { return std::bit_cast<float>(static_cast<std::uint32_t>(engine_())); }

  std::mt19937_64 engine_;
};

TEST(RoundTrip, AnEventWrittenReadAndWrittenAgainHasTheSameBytes) {
  RandomEvent random(141);
  for (int i = 0; i < 2000; ++i) {
    const auto points = random.points(random.count());
    const ChamberValues values = random.values();
    const auto bytes = encode_event(points, values);
    ASSERT_EQ(bytes.size(), 48 * points.size() + 75);
    const auto result = read_event_file(bytes);
    ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
    const auto& event = std::get<StoredEvent>(result);
    EXPECT_EQ(event.values.B_field, values.B_field);
    EXPECT_EQ(event.values.sides_cm, values.sides_cm);
    EXPECT_EQ(event.values.kinetic_Mev, values.kinetic_Mev);
    ASSERT_EQ(encode_event(event.points, event.values), bytes);
  }
}

TEST(RoundTrip, OnlyTheTimesAreLost) {
  RandomEvent random(142);
  auto points = random.points(50);
  const ChamberValues values = random.values();
  const auto without_times = encode_event(points, values);
  for (std::size_t k = 0; k < points.size(); ++k) {
    points[k].time = 1.5 + static_cast<double>(k);
  }
  const auto with_times = encode_event(points, values);
  EXPECT_NE(with_times, without_times);
  const auto result = read_event_file(with_times);
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  const auto& event = std::get<StoredEvent>(result);
  EXPECT_EQ(encode_event(event.points, event.values), without_times);
}

TEST(RoundTrip, RandomBytesBehindEitherTagAreReadOrRefusedSoundly) {
  std::mt19937_64 engine(143);
  for (int i = 0; i < 20000; ++i) {
    std::vector<std::byte> bytes(engine() % 400);
    for (std::byte& byte : bytes) {
      byte = static_cast<std::byte>(engine() % 4 == 0 ? engine() : 0U);
    }
    if (!bytes.empty()) {
      bytes[0] = engine() % 2 == 0 ? std::byte{'P'} : std::byte{'W'};
    }
    const auto result = read_event_file(bytes);
    if (const auto* event = std::get_if<StoredEvent>(&result)) {
      EXPECT_GE(event->points.size(), 1U);
      EXPECT_LE(event->points.size(), 5000U);
      EXPECT_TRUE(is_chamber_possible(event->values));
    } else {
      EXPECT_EQ(std::get<Refusal>(result) == Refusal::wrong_format, bytes.empty());
    }
  }
}

}  // namespace
}  // namespace velquon
