// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>

class QWidget;

namespace velquon::test {

/// Keys and mouse buttons of the X server, worked by a process of its own, also while the program
/// does not return to its event loop.
class RealInput {
 public:
  /// Begins to work through commands of xdotool, for instance "sleep 0.5 key ctrl+r".
  explicit RealInput(const QString& commands);
  /// Waits for the end.
  ~RealInput();
  RealInput(const RealInput&) = delete;
  RealInput& operator=(const RealInput&) = delete;
  RealInput(RealInput&&) = delete;
  RealInput& operator=(RealInput&&) = delete;

  [[nodiscard]] bool isOver() const { return process_.state() == QProcess::NotRunning; }

 private:
  QProcess process_;
};

/// The commands for a click at a place in a widget.
QString click_at(const QWidget& widget, QPoint place);

}  // namespace velquon::test
