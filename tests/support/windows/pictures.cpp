// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/pictures.h"

#include <cmath>

#include "widgets/gl_view.h"

namespace velquon::test {

QRgb color_of_code(std::int16_t code) {
  switch (code) {
    case 3:
      return red;
    case 4:
      return yellow;
    case 5:
      return green;
    case 6:
      return blue;
    default:
      return light_blue;
  }
}

QImage picture_of(GLView& view) {
  return view.grabFramebuffer().convertToFormat(QImage::Format_RGB32);
}

QPoint pixel_at(QPointF place) {
  return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

QRgb color_at(const QImage& picture, QPointF place) {
  const QPoint pixel = pixel_at(place);
  return picture.valid(pixel) ? picture.pixel(pixel) : black;
}

bool has_color_near(const QImage& picture, QPointF place, QRgb color, double distance) {
  const QPoint centre = pixel_at(place);
  const int reach = static_cast<int>(std::ceil(distance)) + 1;
  for (int y = centre.y() - reach; y <= centre.y() + reach; ++y) {
    for (int x = centre.x() - reach; x <= centre.x() + reach; ++x) {
      const bool is_near = std::hypot(x + 0.5 - place.x(), y + 0.5 - place.y()) <= distance;
      if (is_near && picture.valid(x, y) && picture.pixel(x, y) == color) {
        return true;
      }
    }
  }
  return false;
}

bool has_line(const QImage& picture, QPointF from, QPointF to, QRgb color) {
  constexpr int samples = 20;
  for (int i = 1; i < samples; ++i) {
    const QPointF place = from + (to - from) * (static_cast<double>(i) / samples);
    if (!has_color_near(picture, place, color, 1.5)) {
      return false;
    }
  }
  return true;
}

std::vector<QPoint> pixels_of(const QImage& picture, QRgb color) {
  std::vector<QPoint> pixels;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == color) {
        pixels.emplace_back(x, y);
      }
    }
  }
  return pixels;
}

QRect extent_of(const std::vector<QPoint>& pixels) {
  QRect extent;
  for (const QPoint& pixel : pixels) {
    extent |= QRect(pixel, QSize(1, 1));
  }
  return extent;
}

int differing_pixels(const QImage& left, const QImage& right) {
  if (left.size() != right.size()) {
    return left.width() * left.height();
  }
  int count = 0;
  for (int y = 0; y < left.height(); ++y) {
    for (int x = 0; x < left.width(); ++x) {
      count += left.pixel(x, y) != right.pixel(x, y) ? 1 : 0;
    }
  }
  return count;
}

}  // namespace velquon::test
