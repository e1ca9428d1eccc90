// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

namespace velquon::test {

/// The brightest of a colour's three parts, 0 to 1.
double brightness(QRgb pixel);

/// How many pixels are lit in one picture and nowhere near in another.
/// \param dark brightness below which a place is not lit
int strangers(const QImage& one, const QImage& other, double dark);

}  // namespace velquon::test
