// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/recorder.h"

#include <array>

#include "engine/alternation.h"
#include "engine/chamber_values.h"
#include "engine/kinematics.h"

namespace velquon {

namespace {

Vector3 position_of(const PlotPoint& point) {
  return {point.coords[0], point.coords[1], point.coords[2]};
}

}  // namespace

Recorder Recorder::into(PointOwners& owners) const {
  Recorder other = *this;
  other.owners_ = &owners;
  return other;
}

Recorder Recorder::for_negative() const {
  Recorder other = *this;
  other.sign_ = -1;
  return other;
}

int Recorder::add_without_energy(int number, int parent, const ParticleState& particle) const {
  if (record_ == nullptr) {
    return -1;
  }
  return append(number, parent, particle.position, particle.momentum,
                total_energy(particle.mass, magnitude(particle.momentum)), Fate::left);
}

int Recorder::add_decay(const LeptonicDecay& decay, int parent,
                        const ParticleState& parent_at_decay, const ParticleState& daughter) const {
  if (record_ == nullptr) {
    return -1;
  }
  const int row = add(sign_ * decay.daughter, parent, daughter, Fate::left);
  Vector3 rest{};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    rest[axis] = parent_at_decay.momentum[axis] - daughter.momentum[axis];
  }
  append(sign_ * decay.neutrino, parent, daughter.position, rest,
         parent_at_decay.energy - daughter.energy, Fate::undetected);
  return row;
}

void Recorder::vertex(int row, Fate fate, const Vector3& position) const {
  if (record_ != nullptr) {
    at(row).fate = fate;
    at(row).end_cm = in_cm(position);
  }
}

void Recorder::merge(const PointOwners& first, const PointOwners& second,
                     std::int16_t limit) const {
  if (record_ != nullptr) {
    owners_->resize(first.size() + second.size());
    const std::int16_t written = alternate<std::uint8_t>(first, second, std::span(*owners_), limit);
    owners_->resize(static_cast<std::size_t>(written));
    record_->merged_ = true;
  }
}

void Recorder::finish(std::span<const PlotPoint> event) const {
  if (record_ == nullptr || !record_->merged_) {
    return;
  }
  const auto rows = std::span(record_->rows_).first(record_->size_);
  std::array<std::size_t, ParticleRecord::most_particles> last{};
  for (RecordedParticle& particle : rows) {
    particle.points = 0;
  }
  for (std::size_t point = owners_->size(); point-- > 0;) {
    const std::uint8_t row = (*owners_)[point];
    if (rows[row].points++ == 0) {
      last[row] = point;
    }
    rows[row].first_point = static_cast<std::int16_t>(point);
  }
  for (std::size_t row = 0; row < rows.size(); ++row) {
    RecordedParticle& particle = rows[row];
    if (particle.fate != Fate::left && particle.fate != Fate::full) {
      continue;
    }
    if (particle.points < particle.steps) {
      particle.fate = Fate::full;
    }
    particle.end_cm =
        particle.points > 0 ? std::optional(in_cm(position_of(event[last[row]]))) : std::nullopt;
  }
}

int Recorder::append(int number, int parent, const Vector3& position, const Vector3& momentum,
                     double energy, Fate fate) const {
  const auto row = static_cast<int>(record_->size_);
  RecordedParticle& particle = record_->rows_[record_->size_++];
  particle.pdg = number;
  particle.parent = parent;
  particle.fate = fate;
  particle.code = 0;
  particle.first_point = 0;
  particle.points = 0;
  particle.steps = 0;
  particle.place_cm = in_cm(position);
  particle.momentum = momentum;
  particle.energy = energy;
  particle.end_cm.reset();
  return row;
}

void Recorder::note_track(int row, std::int16_t code, std::span<const PlotPoint> track,
                          TrackEnd end, bool full) const {
  RecordedParticle& particle = at(row);
  particle.code = code;
  particle.first_point = static_cast<std::int16_t>(owners_->size());
  particle.points = static_cast<std::int16_t>(track.size());
  particle.steps = particle.points;
  owners_->insert(owners_->end(), track.size(), static_cast<std::uint8_t>(row));
  if (!track.empty()) {
    particle.end_cm = in_cm(position_of(track.back()));
  }
  if (end == TrackEnd::decayed) {
    particle.fate = Fate::decayed;
  } else {
    particle.fate = full ? Fate::full : Fate::left;
  }
}

Vector3 Recorder::in_cm(const Vector3& position) const {
  // In this order the wall, at 400 units, lies at exactly half the side.
  return {position[0] * side_cm_ / CHAMBER_SIDE, position[1] * side_cm_ / CHAMBER_SIDE,
          position[2] * side_cm_ / CHAMBER_SIDE};
}

}  // namespace velquon
