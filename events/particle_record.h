// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "engine/event_record.h"
#include "engine/particles.h"

namespace velquon {

/// Numbers of the particles in the Particle Data Group's scheme (Review of Particle Physics, "Monte
/// Carlo particle numbering scheme"); an antiparticle has the negative one.
namespace pdg {
inline constexpr int electron = 11;
inline constexpr int muon = 13;
inline constexpr int muon_neutrino = 14;
inline constexpr int photon = 22;
inline constexpr int pizero = 111;
inline constexpr int pion = 211;
inline constexpr int neutron = 2112;
inline constexpr int proton = 2212;
inline constexpr int lambda = 3122;
inline constexpr int both_neutrinos = 0;  ///< of a muon's decay, which has no number for a pair
}  // namespace pdg

/// How a particle ended.
enum class Fate : std::uint8_t {
  decayed,
  converted,   ///< a photon, to a pair
  left,        ///< through the wall, and its track shows where
  full,        ///< its track was cut where the event holds no more points
  escaped,     ///< neutral, unseen until the wall
  undetected,  ///< a neutrino or a neutron, which is not followed
};

/// The word for a fate in a table: "decayed", "converted" and so on.
[[nodiscard]] std::string_view name_of(Fate fate);

/// What became of one particle of an event. Places have their origin in the middle of the chamber.
struct RecordedParticle {
  int pdg = 0;
  int parent = -1;  ///< index of the parent in the record, -1 for the primary
  Fate fate = Fate::undetected;
  std::int16_t code = 0;         ///< track code of its points; of no meaning without points
  std::int16_t first_point = 0;  ///< index of its first point in the event
  std::int16_t points = 0;       ///< its points in the event, the decay point included
  /// Steps of its walk. More than its points where two tracks are merged and the event could not
  /// take all of them.
  std::int16_t steps = 0;
  Vector3 place_cm{};   ///< at creation
  Vector3 momentum{};   ///< MeV/c, at creation
  double energy = 0.0;  ///< total energy, MeV, at creation
  /// Where it decayed, converted or left its last point; none when that is not known.
  std::optional<Vector3> end_cm;
};

/// For each point of a list the index of the particle that left it.
using PointOwners = std::vector<std::uint8_t>;

/// What happened in an event: its particles in the order of their creation, and whose points are
/// whose. Filled by a decay chain beside the points, without a draw and without a change of any
/// point.
///
/// Two tracks from one vertex alternate in the event, so the points of a particle need not stand
/// one behind the other. In words: the list of a particle is its own points followed by the lists
/// of its daughters; of two daughters' lists the one whose first point comes first gives the first
/// point, the other the next, in turns until one is used up, and the rest of the other follows.
class ParticleRecord {
 public:
  /// True when the primary is a negative particle, which a chain cannot tell: it makes the positive
  /// one in the opposite field.
  bool negative = false;

  [[nodiscard]] std::span<const RecordedParticle> particles() const {
    return std::span(rows_).first(size_);
  }
  /// The index of the particle that left each point of the event, in the points' order.
  [[nodiscard]] std::span<const std::uint8_t> owners() const { return owners_; }

  /// Takes all particles out.
  void clear();

 private:
  friend class Recorder;
  // Lambda, neutron, neutral pion, two photons and their pairs.
  static constexpr std::size_t most_particles = 9;

  std::array<RecordedParticle, most_particles> rows_;
  std::size_t size_ = 0;
  PointOwners owners_;
  bool merged_ = false;  ///< tracks alternate, and a track may have been cut
};

}  // namespace velquon
