// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace velquon {

/// A label for a value. A text that is longer than the label ends in dots on the screen; its tool
/// tip shows the whole, and screen readers read it. A value can be one to type: a double click on the
/// label, or Return while it has the focus, asks for an editor.
class ValueLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  /// The text as the label has room for it.
  [[nodiscard]] QString shownText() const;

  /// Lets the user ask for an editor; without this he cannot.
  void setEditable();

 Q_SIGNALS:
  void editAsked();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool is_editable_ = false;
};

}  // namespace velquon
