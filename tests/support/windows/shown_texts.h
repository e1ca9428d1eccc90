// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace velquon::test {

/// A text and who shows it.
struct ShownText {
  std::string place;
  QString text;
};

/// The texts that a window, or a part of one, gives to a person: of its visible controls, its menus and headers, the tool
/// tips, and the names and descriptions for who listens.
std::vector<ShownText> texts_in(const QWidget& window);

/// The texts of a window's visible controls that have less room than they take.
std::vector<ShownText> cut_off_in(const QWidget& window);

}  // namespace velquon::test
