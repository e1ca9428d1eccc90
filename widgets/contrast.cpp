// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/contrast.h"

#include <algorithm>
#include <cmath>

namespace velquon {

namespace {

/// The light that a component of an sRGB colour gives, 0 to 1.
double linear(double component) {
  return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  const QColor rgb = color.toRgb();
  return 0.2126 * linear(static_cast<double>(rgb.redF())) +
         0.7152 * linear(static_cast<double>(rgb.greenF())) +
         0.0722 * linear(static_cast<double>(rgb.blueF()));
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  constexpr double flare = 0.05;
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + flare) / (darker + flare);
}

}  // namespace velquon
