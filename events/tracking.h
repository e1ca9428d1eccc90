// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

#include "engine/chamber_values.h"
#include "engine/charged_track.h"
#include "engine/event_record.h"
#include "engine/particles.h"
#include "events/recorder.h"

namespace velquon {

/// Half the side of the chamber, drawing units: the bound of the neutral walks.
inline constexpr double half_chamber_side = CHAMBER_SIDE * 0.5;

/// Length of a step of a charged track, drawing units: a fortieth of the chamber's side, this program's
/// choice. A track across the chamber has some 40 points, which are seen one by one.
inline constexpr double track_step = 20.0;

/// The bound of the charged tracks for a half side: a hundredth beyond the wall, at 404 drawing units.
/// This program's choice, by which a point on the wall still belongs to the track.
[[nodiscard]] constexpr double track_limit(double half_side) {
  return half_side * 1.01;
}

/// Drawing units per cm.
[[nodiscard]] inline double drawing_scale(const ChamberValues& values) {
  return CHAMBER_SIDE / static_cast<double>(values.sides_cm);
}

/// Track code and end code of a particle, on a helix and on a straight line.
struct TrackCodes {
  std::int16_t curved;
  std::int16_t curved_end;
  std::int16_t straight;
  std::int16_t straight_end;
};

/// What all charged tracks of one event share.
struct TrackSettings {
  double field;  ///< kG; the tracks are straight when it is exactly 0
  double bound;  ///< limit of the coordinates, drawing units
  double scale;  ///< drawing units per cm
  double step;   ///< drawing units

  [[nodiscard]] bool straight() const { return field == 0.0; }
  /// The same for a negative particle: it curves as a positive one in the opposite field.
  [[nodiscard]] TrackSettings for_negative() const { return {-field, bound, scale, step}; }
};

/// Turns the x and y components of a momentum by an angle in radians, clockwise for a positive one
/// as seen from positive z.
void rotate_p(Vector3& momentum, double angle);

/// Lays the track of a positive particle behind the points of `buffer`. When it decays on a helix
/// its momentum is turned to the direction at the decay point, but for the last step: it is turned
/// once for each point before the decay point, of which the first lies one step from the start
/// already.
/// \param recorder is told what became of the particle
/// \param row      of the particle in the record
TrackEnd track_particle(ParticleState& particle, const TrackCodes& codes,
                        const TrackSettings& settings, TrackBuffer& buffer,
                        const Recorder& recorder = {}, int row = -1);

/// A daughter of the particle whose decay point is the last one of `buffer`, at rest there.
[[nodiscard]] ParticleState daughter_at_end(const ParticleState& particle_template,
                                            const TrackBuffer& buffer);

/// The incoming particle: it enters the chamber in the centre of the face y = -400 and moves along
/// +y. Its momentum is p = T sqrt(2 m / T + 1), which is p^2 = E^2 - m^2 for E = T + m.
[[nodiscard]] ParticleState primary_particle(const ParticleState& particle_template,
                                             double kinetic_energy);

}  // namespace velquon
