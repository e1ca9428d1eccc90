// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include "engine/chamber_values.h"
#include "events/particle_record.h"

namespace velquon {

/// What can be measured of one visible track, and what it comes from. "On the paper" is in the
/// projection onto the xy plane, which the field is perpendicular to.
struct TrackAnswer {
  int pdg = 0;
  std::optional<int> parent_pdg{};    ///< none for the incoming particle
  double momentum = 0.0;              ///< MeV/c, at creation
  double transverse_momentum = 0.0;   ///< its part in the xy plane, MeV/c
  std::optional<double> radius_cm{};  ///< of the circle on the paper; none for a straight track
  double length_cm = 0.0;             ///< along the track, from its vertex to its last point
  double paper_length_cm = 0.0;       ///< the same on the paper
  std::optional<double> angle_deg{};  ///< to its parent's direction at the vertex, 0 to 180
  std::optional<double> paper_angle_deg{};  ///< the same on the paper
  Fate fate = Fate::left;
};

/// What can be measured of an event: an answer for each charged particle that left points, in the
/// order of creation.
/// \param values those that the event was made with
[[nodiscard]] std::vector<TrackAnswer> answers_of(const ParticleRecord& record,
                                                  const ChamberValues& values);

}  // namespace velquon
