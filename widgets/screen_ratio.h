// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QObject>
#include <QSize>

class QScreen;
class QWidget;

namespace velquon {

/// While one lives, windows and dialogs follow their screen to another ratio of pixels, be it that the
/// screen's settings change or that a window comes to another screen: they keep their size in view units,
/// as far as the screen has room, and are drawn anew. Qt by itself leaves them the pixels that they had
/// and draws them only when something in them changes.
class ScreenRatio : public QObject {
 public:
  ScreenRatio();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void watch(QScreen* screen);
  void watch(QWidget* window);
  void followSoon(QWidget* window);
  void follow(QWidget& window);
  void noteHidden(QWidget& window);

  /// How a window was seen last.
  struct Seen {
    double ratio = 1.0;
    QSize hidden_at{};  ///< its size when it was hidden, view units; invalid while it is not
  };

  QHash<QWidget*, Seen> windows_;  ///< those that have been shown
};

}  // namespace velquon
