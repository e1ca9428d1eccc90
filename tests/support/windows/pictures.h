// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRgb>
#include <array>
#include <cstdint>
#include <vector>

namespace velquon {
class GLView;
}

namespace velquon::test {

inline constexpr QRgb black = 0xFF000000;
inline constexpr QRgb white = 0xFFFFFFFF;
inline constexpr QRgb red = 0xFFFF0000;
inline constexpr QRgb yellow = 0xFFFFFF33;
inline constexpr QRgb green = 0xFF00BC00;
inline constexpr QRgb blue = 0xFF0000FF;
inline constexpr QRgb light_blue = 0xFF33CCFF;
/// The chamber's edges and the outline of its middle plane.
inline constexpr QRgb edge_blue = 0xFF33CDFF;
inline constexpr QRgb plane_red = 0xFF993333;

/// The colour of a track code as the table of colours has it.
QRgb color_of_code(std::int16_t code);

/// The picture of a view, opaque.
QImage picture_of(GLView& view);

/// The pixel that holds a place measured from the picture's top left corner.
QPoint pixel_at(QPointF place);
/// The colour at a place; black outside the picture.
QRgb color_at(const QImage& picture, QPointF place);

/// Whether a colour is found within a distance of a place.
bool has_color_near(const QImage& picture, QPointF place, QRgb color, double distance);
/// Whether a line of a colour runs from one place to another: it is found next to each of many
/// places between, where another line may cross it.
bool has_line(const QImage& picture, QPointF from, QPointF to, QRgb color);

std::vector<QPoint> pixels_of(const QImage& picture, QRgb color);
/// The smallest rectangle that holds some pixels.
QRect extent_of(const std::vector<QPoint>& pixels);
/// How many pixels differ between two pictures of one size.
int differing_pixels(const QImage& left, const QImage& right);

}  // namespace velquon::test
