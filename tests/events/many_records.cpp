// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Checks the records of many events of all types under random values.
//   many_records EVENTS [SEED]
// Prints what was checked; ends with 1 at the first record that is wrong.

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "tests/events/record_checks.h"

namespace velquon::test {

namespace {

ChamberValues some_values(std::mt19937_64& engine) {
  std::uniform_real_distribution<float> part(0.0F, 1.0F);
  return {.B_field = engine() % 5 == 0 ? 0.0F : 20.0F * part(engine) - 10.0F,
          .sides_cm = engine() % 8 == 0 ? 50.0F : 50.0F + 950.0F * part(engine),
          .kinetic_Mev = std::pow(10.0F, 7.0F * part(engine) - 3.0F)};
}

int check(unsigned long events, unsigned seed) {
  std::mt19937_64 engine(seed);
  std::srand(seed);
  CircleCount circles;
  unsigned long particles = 0;
  for (unsigned long i = 0; i < events; ++i) {
    const EventType& type = event_types()[i % event_types().size()];
    const ChamberValues values = some_values(engine);
    const RecordedEvent event = next_recorded_event(type, values);
    particles += event.record.particles().size();
    std::string problem = problem_in(event);
    if (problem.empty()) {
      problem = problem_in_circles(event, circles);
    }
    if (!problem.empty()) {
      std::printf("event %lu (%s, %.9g kG, %.9g cm, %.9g MeV): %s\n", i,
                  std::string(type.key).c_str(), static_cast<double>(values.B_field),
                  static_cast<double>(values.sides_cm), static_cast<double>(values.kinetic_Mev),
                  problem.c_str());
      return 1;
    }
  }
  std::printf("%lu events, %lu particles, %llu circles to a billionth, %llu flatter ones\n", events,
              particles, static_cast<unsigned long long>(circles.exact),
              static_cast<unsigned long long>(circles.flat));
  return events > 0 && circles.exact > 0 ? 0 : 1;
}

}  // namespace

}  // namespace velquon::test

int main(int argc, char** argv) {
  if (argc < 2) {
    return 2;
  }
  return velquon::test::check(std::strtoul(argv[1], nullptr, 10),
                              argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
}
