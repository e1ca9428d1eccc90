// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/number_text.h"

#include <array>
#include <cstdio>

namespace velquon {

QString fixed_text(double value, int width, int decimals) {
  // The longest of all: a sign, 309 digits and a point before the decimals.
  std::array<char, 400> text{};
  const int size = std::snprintf(text.data(), text.size(), "%*.*f", width, decimals, value);
  return QString::fromLatin1(text.data(), size);
}

}  // namespace velquon
