// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "engine/particles.h"

namespace velquon {

inline constexpr double PI = 3.141592653589793;

/// Scalar product, summed in the order x, y, z.
[[nodiscard]] double dot_product(const Vector3& a, const Vector3& b);

/// Magnitude of a vector.
[[nodiscard]] double magnitude(const Vector3& vector);

/// Distance between two points.
[[nodiscard]] double distance(const Vector3& from, const Vector3& to);

/// Total energy in MeV of a mass (MeV/c^2) and a momentum magnitude (MeV/c): E^2 = m^2 + p^2, the
/// relativistic relation in units in which c is 1.
[[nodiscard]] double total_energy(double mass, double momentum);

/// Turns a vector given relative to a parent's flight into the chamber frame. A pure rotation: the
/// boost along the flight is the caller's, who passes the boosted component as `along`: for a
/// component k* and an energy E* in the rest frame of a parent of mass M, energy E and momentum P,
/// gamma (k* + beta E*) = (E k* + P E*) / M.
/// \param direction the parent's momentum; only its direction counts
/// \param out       the resulting vector
/// \param along     component along `direction`
/// \param across_1  component against the azimuthal unit vector of `direction`
/// \param across_2  component against the polar unit vector of `direction`
void to_the_lab(const Vector3& direction, Vector3& out, double along, double across_1,
                double across_2);

}  // namespace velquon
