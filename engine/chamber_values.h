// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

namespace velquon {

/// Side of the chamber in drawing units. The chamber is a cube centred on the origin, so every
/// coordinate inside lies between -400 and +400 whatever the side in centimetres.
inline constexpr double CHAMBER_SIDE = 800.0;

/// What a person chooses for an event. 32-bit floats, as the controls hold them.
struct ChamberValues {
  float B_field = 0.6F;      ///< magnetic field along z, kG, signed
  float sides_cm = 500.0F;   ///< side of the chamber, cm
  float kinetic_Mev = 0.4F;  ///< kinetic energy of the incoming particle, MeV

  bool operator==(const ChamberValues&) const = default;
};

/// The side as the control holds it, in metres: the product is formed in double precision.
[[nodiscard]] inline float metres_from_cm(float side_cm) {
  return static_cast<float>(static_cast<double>(side_cm) * 0.01);
}

/// The side in cm that an event is made with, from the control's metres, in single precision.
[[nodiscard]] inline float cm_from_metres(float side_m) {
  return side_m * 100.0F;
}

/// True when a chamber can have these values: a finite field, a finite side above 0 that stays so
/// on its way through the control's metres, and a finite energy that is not negative.
[[nodiscard]] inline bool is_chamber_possible(const ChamberValues& values) {
  const float side = cm_from_metres(metres_from_cm(values.sides_cm));
  return std::isfinite(values.B_field) && std::isfinite(side) && side > 0.0F &&
         std::isfinite(values.kinetic_Mev) && values.kinetic_Mev >= 0.0F;
}

}  // namespace velquon
