// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "engine/particles.h"
#include "events/event_types.h"

namespace velquon::test {

/// The kind of event with this name on a command line.
[[nodiscard]] const EventType& event_type(std::string_view key);

/// A seeded event, or no points when it is not handed over.
[[nodiscard]] std::vector<PlotPoint> seeded_event(std::string_view key, const ChamberValues& values,
                                                  unsigned seed);

/// The points' codes in order.
[[nodiscard]] std::vector<std::int16_t> codes_of(std::span<const PlotPoint> points);

/// x, y and z of a point.
[[nodiscard]] Vector3 position_of(const PlotPoint& point);

/// Vector algebra for expectations.
[[nodiscard]] Vector3 sum(const Vector3& a, const Vector3& b);
[[nodiscard]] Vector3 difference(const Vector3& a, const Vector3& b);
[[nodiscard]] double length(const Vector3& a);
[[nodiscard]] double scalar(const Vector3& a, const Vector3& b);
[[nodiscard]] Vector3 cross(const Vector3& a, const Vector3& b);

/// A daughter's momentum in the rest frame of its parent, along the parent's flight and across it.
struct RestFrameMomentum {
  double along;
  double across;
  [[nodiscard]] double size() const;
};
[[nodiscard]] RestFrameMomentum boosted_back(const ParticleState& parent,
                                             const ParticleState& daughter);

/// A particle of a template with a momentum and the energy that belongs to it.
[[nodiscard]] ParticleState moving(const ParticleState& particle_template, const Vector3& momentum,
                                   const Vector3& position = {});

/// Drawing units per cm of the chamber at start-up, 500 cm wide.
inline constexpr double usual_scale = 1.6;

}  // namespace velquon::test
