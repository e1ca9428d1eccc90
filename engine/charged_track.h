// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>

#include "engine/event_record.h"
#include "engine/particles.h"

namespace velquon {

/// How a charged track ended.
enum class TrackEnd : bool {
  decayed = false,  ///< inside the chamber; the last point is the decay point
  stopped = true,   ///< at the wall or at the point limit, without an end point
};

/// Radius of a track in cm, in a field along z; with the field's sign, and infinite without one.
/// \param pt    momentum across the field, MeV/c
/// \param field kG
[[nodiscard]] inline double helix_radius_cm(double pt, double field) {
  return (pt * 10.0) / (field * 3.0);
}

/// Makes the helix of a particle in the field along z.
/// \param particle its energy becomes sqrt(m^2 + p^2) and its z moves one step on, since the track's
///                 first point lies one step from the start
/// \param path     all but `code` is written
/// \param survival receives the probability of surviving one step
/// \param field    kG, signed; a negative particle gets the field negated
/// \param scale    drawing units per cm
/// \param step     length of a step, drawing units
///
/// The radius in cm is 10 pt / (3 B) for pt in MeV/c and B in kG: pt = 0.3 B R in GeV/c, T and m,
/// which equates the Lorentz force and the centripetal force, the speed of light rounded to 3e8 m/s
/// (Particle Data Group, Review of Particle Physics, "Particle detectors"). The energy is the
/// relativistic one. The survival of a step of length s is exp(-s / (beta gamma c tau)) with
/// beta gamma = p / m: the exponential law of decay with time dilation.
void set_up_path(ParticleState& particle, HelixPath& path, double& survival, double field,
                 double scale, double step);

/// Walks a helix and writes its points.
/// \param limit    the most points that the event holds
/// \param count    running point count of the event, advanced
/// \param out      free slots of the event, the first for the first new point; at least
///                 limit - count
/// \param path     after a decay its `phi` holds the counted points times `dphi`
/// \param end_code code of the decay point, which is not tested against the bound
/// \param bound    limit of the coordinates, drawing units (see ChamberWall)
/// \param survival probability of surviving one step; one draw is made per counted point. When it
///                 is not above 0 (or not a number) the particle decays at once
TrackEnd path_calculation(std::int16_t limit, std::int16_t& count, std::span<PlotPoint> out,
                          HelixPath& path, std::int16_t end_code, double bound, double survival);

/// The same walk on a straight line, for a field of exactly 0.
/// \param particle its energy on entry gives the polar angle, as acos(pz / E); then it becomes
///                 sqrt(p^2 + m^2). The true angle is acos(pz / p): E in the place of p turns a
///                 slow particle's line towards the plane z = 0, and is part of what an event is
/// \param scale    drawing units per cm
/// \param step     length of a step, drawing units
TrackEnd straight_path_calculation(ParticleState& particle, std::int16_t limit, std::int16_t& count,
                                   std::int16_t code, std::int16_t end_code,
                                   std::span<PlotPoint> out, double bound, double scale,
                                   double step);

}  // namespace velquon
