// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// How well a person sets a place on the picture: its standard deviation in each direction, view
/// units. Half a pixel: a mouse goes by whole ones, which alone makes 1 / √12.
inline constexpr double placing_error = 0.5;

/// A number that is measured, and its standard deviation.
struct Estimate {
  double value = 0.0;
  double error = 0.0;
};

}  // namespace velquon
