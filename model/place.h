// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// A place on a plane, x across and y upwards.
struct Place {
  double x = 0.0;
  double y = 0.0;

  friend constexpr Place operator+(Place a, Place b) { return {a.x + b.x, a.y + b.y}; }
  friend constexpr Place operator-(Place a, Place b) { return {a.x - b.x, a.y - b.y}; }
  friend constexpr bool operator==(Place a, Place b) = default;
};

}  // namespace velquon
