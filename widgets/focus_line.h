// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace velquon {

/// A line beside a picture that is seen while the picture has the focus, which cannot be shown in the
/// picture itself.
class FocusLine : public QWidget {
  Q_OBJECT

 public:
  explicit FocusLine(QWidget* parent = nullptr);

  /// \param view whose focus is shown
  void watch(QWidget* view);
  /// Whether the line is seen.
  [[nodiscard]] bool isOn() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QColor color() const;

  const QWidget* view_ = nullptr;
};

}  // namespace velquon
