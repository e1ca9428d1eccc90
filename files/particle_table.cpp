// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/particle_table.h"

#include <array>
#include <charconv>
#include <utility>

#include "files/decimal_text.h"

namespace velquon {

namespace {

// Handed on in pieces of about this size.
constexpr std::size_t piece = 1U << 16U;

template <typename Integer>
void append_integer(std::string& text, Integer value) {
  std::array<char, 24> digits{};
  text.append(digits.data(), std::to_chars(digits.data(), digits.data() + 24, value).ptr);
}

void append_vector(std::string& text, const Vector3& vector) {
  std::array<char, decimal_text_size> digits{};
  for (const double component : vector) {
    text += ',';
    text.append(digits.data(), write_decimal(digits.data(), component));
  }
}

void append_particle(std::string& text, const RecordedParticle& particle) {
  text += ',';
  append_integer(text, particle.pdg);
  text += ',';
  append_integer(text, particle.parent);
  text += ',';
  text += name_of(particle.fate);
  for (const std::int16_t number : {particle.code, particle.first_point, particle.points}) {
    text += ',';
    if (particle.points > 0) {
      append_integer(text, number);
    }
  }
  append_vector(text, particle.place_cm);
  append_vector(text, particle.momentum);
  text += ',';
  std::array<char, decimal_text_size> digits{};
  text.append(digits.data(), write_decimal(digits.data(), particle.energy));
  if (particle.end_cm) {
    append_vector(text, *particle.end_cm);
  } else {
    text += ",,,";
  }
  text += '\n';
}

}  // namespace

ParticleTable::ParticleTable(ByteOutput output)
    : output_(std::move(output)), text_(particle_table_header) {
  text_ += '\n';
}

std::error_code ParticleTable::write(std::uint64_t number, const ParticleRecord& record) {
  for (std::size_t i = 0; i < record.particles().size(); ++i) {
    append_integer(text_, number);
    text_ += ',';
    append_integer(text_, i);
    append_particle(text_, record.particles()[i]);
  }
  return text_.size() < piece ? std::error_code() : finish();
}

std::error_code ParticleTable::finish() {
  const std::error_code error = output_(std::as_bytes(std::span(text_)));
  text_.clear();
  return error;
}

}  // namespace velquon
