// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStatusBar>

class QLabel;
class QMainWindow;

namespace velquon {

/// A line at the foot of a window that tells, while the track window is active, why the menus
/// are disabled and how to enable them again. It belongs to the window and is hidden at first.
class TrackStatus : public QStatusBar {
  Q_OBJECT

 public:
  explicit TrackStatus(QMainWindow& window);

  /// Shows or hides the line. The window is taller by it meanwhile, so that its view keeps its size
  /// and place; one that fills the screen makes room for it, and is taller when it no longer does.
  void setActive(bool active);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool needsOtherHeight() const;
  void settleHeight();
  void tellScreenReaders();

  QMainWindow& window_;
  QLabel* text_;
  bool has_room_ = false;  ///< the window has been made taller by the line
};

}  // namespace velquon
