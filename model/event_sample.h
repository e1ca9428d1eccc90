// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "engine/chamber_values.h"
#include "events/particle_record.h"
#include "model/measurement.h"

namespace velquon {

/// What is noted of each of many simulated events. The product is the first charged particle that
/// is not the primary.
enum class SampledQuantity : std::uint8_t {
  decay_length,
  primary_momentum,
  primary_transverse_momentum,
  product_momentum,
  product_transverse_momentum,
  tracks,
};

/// What is noted of one event. A decay length is that of the primary along its track; where it left
/// the chamber or its track was cut, it is the length up to there and its ending says so. The number
/// of tracks is that of the particles that left points.
/// \param values under which the event was made
/// \return nothing when the event has no such thing, or holds a particle that is not known here
[[nodiscard]] std::optional<Measurement> measurement_of(SampledQuantity sampled,
                                                        std::span<const RecordedParticle> particles,
                                                        const ChamberValues& values);

}  // namespace velquon
