// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace velquon {

/// The user's guide in a window of its own.
class GuideWindow : public QWidget {
  Q_OBJECT

 public:
  explicit GuideWindow(QWidget* parent = nullptr);
};

/// Tells what this program is, over a window.
void show_about(QWidget* parent);

}  // namespace velquon
