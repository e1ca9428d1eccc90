// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace velquon {

/// A label for a value. A text that is longer than the label ends in dots on the screen; its tool
/// tip shows the whole, and screen readers read it.
class ValueLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  /// The text as the label has room for it.
  [[nodiscard]] QString shownText() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace velquon
