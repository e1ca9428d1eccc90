// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/particle_table_reader.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "files/particle_table.h"

namespace velquon {

namespace {

constexpr std::size_t table_columns = 18;
using Fields = std::array<std::string_view, table_columns>;

// The longest line has some 400 characters.
constexpr std::size_t longest_table_line = 4096;

// No record holds more.
constexpr std::size_t most_particles = 16;

std::optional<Fields> fields_of(std::string_view line) {
  Fields fields;
  for (std::size_t column = 0; column < table_columns; ++column) {
    const std::size_t end = line.find(',');
    if ((end == std::string_view::npos) != (column + 1 == table_columns)) {
      return std::nullopt;
    }
    fields[column] = line.substr(0, end);
    line.remove_prefix(column + 1 == table_columns ? line.size() : end + 1);
  }
  return fields;
}

template <typename Number>
bool parse(std::string_view field, Number& number) {
  const char* const end = field.data() + field.size();
  const auto [stop, failure] = std::from_chars(field.data(), end, number);
  return failure == std::errc() && stop == end;
}

bool parse_vector(std::span<const std::string_view> fields, Vector3& vector) {
  for (std::size_t axis = 0; axis < 3; ++axis) {
    if (!parse(fields[axis], vector[axis]) || !std::isfinite(vector[axis])) {
      return false;
    }
  }
  return true;
}

bool parse_fate(std::string_view field, Fate& fate) {
  for (const Fate candidate :
       {Fate::decayed, Fate::converted, Fate::left, Fate::full, Fate::escaped, Fate::undetected}) {
    if (field == name_of(candidate)) {
      fate = candidate;
      return true;
    }
  }
  return false;
}

/// The fields behind the particle's number.
std::optional<RecordedParticle> particle_of(const Fields& fields) {
  RecordedParticle particle;
  const auto all = std::span(fields);
  const bool has_points = !fields[7].empty();
  bool is_good =
      parse(fields[2], particle.pdg) && parse(fields[3], particle.parent) &&
      parse_fate(fields[4], particle.fate) && parse_vector(all.subspan(8), particle.place_cm) &&
      parse_vector(all.subspan(11), particle.momentum) && parse(fields[14], particle.energy);
  if (has_points) {
    is_good = is_good && parse(fields[5], particle.code) &&
              parse(fields[6], particle.first_point) && parse(fields[7], particle.points);
    // A table does not tell the steps that an event had no room for.
    particle.steps = particle.points;
  }
  if (!fields[15].empty()) {
    is_good = is_good && parse_vector(all.subspan(15), particle.end_cm.emplace());
  }
  return is_good ? std::optional(particle) : std::nullopt;
}

}  // namespace

bool ParticleTableReader::take(std::string_view bytes) {
  rest_ += bytes;
  std::string_view unread = rest_;
  for (std::size_t end = 0; !failed_ && (end = unread.find('\n')) != std::string_view::npos;) {
    failed_ = !takeLine(unread.substr(0, end));
    line_ += failed_ ? 0U : 1U;
    unread.remove_prefix(end + 1);
  }
  rest_.erase(0, rest_.size() - unread.size());
  failed_ = failed_ || rest_.size() > longest_table_line;
  return !failed_;
}

bool ParticleTableReader::finish() {
  if (failed_ || line_ == 1 || !rest_.empty()) {
    return false;
  }
  handOn();
  return true;
}

bool ParticleTableReader::takeLine(std::string_view line) {
  if (line_ == 1) {
    return line == particle_table_header;
  }
  const auto fields = fields_of(line);
  std::uint64_t event = 0;
  std::size_t number = 0;
  if (!fields || !parse((*fields)[0], event) || !parse((*fields)[1], number)) {
    return false;
  }
  if (number == 0) {
    if (event <= event_) {
      return false;
    }
    handOn();
    event_ = event;
  }
  const auto particle = particle_of(*fields);
  if (!particle || event != event_ || event == 0 || number != particles_.size() ||
      number >= most_particles || particle->parent < -1 ||
      particle->parent >= static_cast<int>(number)) {
    return false;
  }
  particles_.push_back(*particle);
  return true;
}

void ParticleTableReader::handOn() {
  if (!particles_.empty()) {
    take_event_(event_, particles_);
    particles_.clear();
  }
}

}  // namespace velquon
