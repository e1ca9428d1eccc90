// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QProcess>
#include <QRgb>
#include <vector>

#include "tests/support/windows/screen_pixels.h"

class QWidget;

namespace velquon::test {

// What a person sees of a widget: the X screen, read over other connections than the program's.

/// The part of the X screen that a widget takes.
ScreenArea screen_area_of(const QWidget& widget);

/// What the screen shows in a widget's place; null when that is not all on the screen.
QImage screen_picture(const QWidget& widget);

/// How many pixels of a colour the screen shows in a widget's place.
int count_on_screen(const QWidget& widget, QRgb color);

/// Waits until the screen shows a picture in a widget's place. The program's event loop does not
/// run meanwhile, so what is to be seen has to be on its way already.
/// \return whether it came to be seen within the time, which is long enough for a busy machine
bool screen_comes_to_show(const QWidget& widget, const QImage& picture, int milliseconds = 3000);

/// Looks at a widget's place on the screen from a process of its own, while the program turns its
/// pictures or does not return to its event loop.
class ScreenWatch {
 public:
  /// Returns when the first look has been taken.
  /// \param color what `ScreenLook::count` counts
  explicit ScreenWatch(const QWidget& widget, QRgb color = qRgb(255, 0, 0))
      : ScreenWatch(screen_area_of(widget), color) {}
  explicit ScreenWatch(const ScreenArea& area, QRgb color = qRgb(255, 0, 0));

  /// Ends the watch with a last look.
  /// \return each picture that was seen, in order, one that stayed as one
  std::vector<ScreenLook> finish();

 private:
  QProcess process_;
};

/// How many different pictures there are among some looks.
int distinct_pictures(const std::vector<ScreenLook>& looks);

}  // namespace velquon::test
