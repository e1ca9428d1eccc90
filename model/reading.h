// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "engine/model_text.h"

namespace velquon {

/// What a measurement is of.
enum class Quantity : std::uint8_t {
  length,
  radius,
  transverse_momentum,
  sagitta,
  chord,
  angle,
  decay_length,
  momentum,
  tracks,
};

/// How a quantity is called in tables and files, and its unit; empty for a number of things.
struct QuantityName {
  std::string_view name;
  std::string_view unit;
};

/// In the order of Quantity.
inline constexpr std::array<QuantityName, 9> quantity_names{{
    {MODEL_TEXT("velquon::Model", "length"), "cm"},
    {MODEL_TEXT("velquon::Model", "radius"), "cm"},
    {MODEL_TEXT("velquon::Model", "transverse momentum"), "MeV/c"},
    {MODEL_TEXT("velquon::Model", "sagitta"), "cm"},
    {MODEL_TEXT("velquon::Model", "chord"), "cm"},
    {MODEL_TEXT("velquon::Model", "angle"), MODEL_TEXT("velquon::Model", "degrees")},
    {MODEL_TEXT("velquon::Model", "decay length"), "cm"},
    {MODEL_TEXT("velquon::Model", "momentum"), "MeV/c"},
    {MODEL_TEXT("velquon::Model", "tracks"), ""},
}};

constexpr const QuantityName& name_of(Quantity quantity) {
  return quantity_names[static_cast<std::size_t>(quantity)];
}

/// What a tool of the projector reads.
struct Reading {
  Quantity quantity = Quantity::length;
  double value = 0.0;  ///< in the quantity's unit
  /// One standard deviation, in the quantity's unit; NaN where it is not known.
  double error = std::numeric_limits<double>::quiet_NaN();
};

}  // namespace velquon
