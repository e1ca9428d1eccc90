// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>

class QPainter;
class QString;

namespace velquon {

// What worksheets and answer keys have in common: sizes and depths in points, depths from the upper
// margin downwards.
inline constexpr int text_size = 11;
inline constexpr int small_text_size = 9;
inline constexpr int title_size = 16;
inline constexpr double thin_line = 0.5;
inline constexpr double title_depth = 14.0;
inline constexpr double kind_depth = 36.0;
inline constexpr double values_depth = 52.0;

enum class TextWeight : bool { normal = false, bold = true };

/// Sets the size in which a page's texts are written, points.
void set_text_size(QPainter& page, int size, TextWeight weight = TextWeight::normal);

/// Writes a text on a page whose y points upwards.
/// \param place lower right corner of the text
void print_text_right(QPainter& page, QPointF place, const QString& text);

/// \param place middle of the text's lower edge
void print_text_centred(QPainter& page, QPointF place, const QString& text);

/// A number as worksheets and their answers give it: four significant digits or, of a
/// thousand and more, all whole ones; a decimal point.
[[nodiscard]] QString sheet_number(double value);

}  // namespace velquon
