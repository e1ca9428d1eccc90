// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>

namespace velquon {

/// How well one colour can be told from another: the ratio of their luminances as defined by the
/// Web Content Accessibility Guidelines, 1 (equal) to 21 (black and white). Signs and controls need
/// 3. https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// Least contrast at which a sign or the state of a control can be seen.
inline constexpr double least_contrast = 3.0;

}  // namespace velquon
