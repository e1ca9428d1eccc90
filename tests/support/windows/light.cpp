// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/light.h"

#include <algorithm>

namespace velquon::test {

namespace {

/// Brightest pixel of a place and its neighbours.
double brightest_near(const QImage& picture, int x, int y) {
  double brightest = 0.0;
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      if (picture.valid(x + dx, y + dy)) {
        brightest = std::max(brightest, brightness(picture.pixel(x + dx, y + dy)));
      }
    }
  }
  return brightest;
}

}  // namespace

double brightness(QRgb pixel) {
  return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) / 255.0;
}

int strangers(const QImage& one, const QImage& other, double dark) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (brightness(one.pixel(x, y)) > 0.5 && brightest_near(other, x, y) < dark) {
        ++count;
      }
    }
  }
  return count;
}

}  // namespace velquon::test
