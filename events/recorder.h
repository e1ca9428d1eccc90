// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>

#include "engine/charged_track.h"
#include "events/particle_record.h"

namespace velquon {

/// What a decay with a charged daughter makes, for the positive chain.
struct LeptonicDecay {
  int daughter;  ///< number of the charged daughter
  int neutrino;  ///< number of what carries the rest away
};
inline constexpr LeptonicDecay pion_decay{-pdg::muon, pdg::muon_neutrino};
inline constexpr LeptonicDecay muon_decay{-pdg::electron, pdg::both_neutrinos};

/// Writes what a decay chain does into a record, or nothing when no record is asked for. Rows are
/// named by their index in the record; without a record the index means nothing.
class Recorder {
 public:
  Recorder() = default;
  /// \param record  none when null
  /// \param side_cm side of the chamber, cm
  Recorder(ParticleRecord* record, double side_cm)
      : record_(record),
        owners_(record == nullptr ? nullptr : &record->owners_),
        side_cm_(side_cm),
        sign_(record != nullptr && record->negative ? -1 : 1) {}

  /// A recorder into the same record whose points go into a list of their own, to be merged later.
  [[nodiscard]] Recorder into(PointOwners& owners) const;
  /// The same for the chain of a negative particle.
  [[nodiscard]] Recorder for_negative() const;

  /// Adds the incoming particle of the positive chain, or its antiparticle.
  int add_primary(int number, const ParticleState& particle, Fate fate) const {
    return add(sign_ * number, -1, particle, fate);
  }
  /// Adds a particle as it stands at its creation.
  /// \param fate until a track or a vertex says another
  int add(int number, int parent, const ParticleState& particle, Fate fate) const {
    return record_ == nullptr ? -1
                              : append(number, parent, particle.position, particle.momentum,
                                       particle.energy, fate);
  }
  /// Adds a charged particle whose energy is not set yet: sqrt(m^2 + p^2).
  int add_without_energy(int number, int parent, const ParticleState& particle) const;
  /// Adds what a charged particle decays to: the daughter and, with the rest of the four-momentum,
  /// the neutrino.
  /// \param parent_at_decay mass, momentum and energy at the decay point
  /// \return row of the daughter
  int add_decay(const LeptonicDecay& decay, int parent, const ParticleState& parent_at_decay,
                const ParticleState& daughter) const;

  /// Says what the walk of a charged particle did.
  /// \param code  of the track's points
  /// \param track the points that the walk has laid down, the decay point included
  /// \param full  the list that they were laid into holds no more
  void track(int row, std::int16_t code, std::span<const PlotPoint> track, TrackEnd end,
             bool full) const {
    if (record_ != nullptr) {
      note_track(row, code, track, end, full);
    }
  }
  /// Says where a neutral particle decayed or converted.
  /// \param position drawing units
  void vertex(int row, Fate fate, const Vector3& position) const;

  /// Merges two lists of points into this recorder's as `combine_paths` merges the points.
  void merge(const PointOwners& first, const PointOwners& second, std::int16_t limit) const;

  /// Finds each particle's points in the finished event where tracks were merged. A track of which
  /// the event could not take all ends at its last point there.
  void finish(std::span<const PlotPoint> event) const;

 private:
  int append(int number, int parent, const Vector3& position, const Vector3& momentum,
             double energy, Fate fate) const;
  void note_track(int row, std::int16_t code, std::span<const PlotPoint> track, TrackEnd end,
                  bool full) const;
  [[nodiscard]] RecordedParticle& at(int row) const {
    return record_->rows_[static_cast<std::size_t>(row)];
  }
  [[nodiscard]] Vector3 in_cm(const Vector3& position) const;

  ParticleRecord* record_ = nullptr;
  PointOwners* owners_ = nullptr;
  double side_cm_ = 0.0;
  int sign_ = 1;
};

}  // namespace velquon
