// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/screen_view.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QThread>
#include <QWidget>
#include <set>

namespace velquon::test {

ScreenArea screen_area_of(const QWidget& widget) {
  const double ratio = widget.devicePixelRatioF();
  // The window manager's frame need not be a whole number of view units wide.
  const QWidget& window = *widget.window();
  const ScreenArea corner = area_of_window(window.winId());
  const QPointF within = QPointF(widget.mapTo(&window, QPoint(0, 0))) * ratio;
  const QSizeF size = QSizeF(widget.size()) * ratio;
  return {corner.x + qRound(within.x()), corner.y + qRound(within.y()),
          static_cast<unsigned>(qRound(size.width())),
          static_cast<unsigned>(qRound(size.height()))};
}

QImage screen_picture(const QWidget& widget) {
  const ScreenArea area = screen_area_of(widget);
  const auto pixels = read_screen(area);
  if (pixels.empty()) {
    return {};
  }
  QImage picture(static_cast<int>(area.width), static_cast<int>(area.height), QImage::Format_RGB32);
  auto pixel = pixels.begin();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      picture.setPixel(x, y, 0xFF000000 | *pixel++);
    }
  }
  return picture;
}

int count_on_screen(const QWidget& widget, QRgb color) {
  return count_screen_pixels(screen_area_of(widget), color & RGB_MASK);
}

bool screen_comes_to_show(const QWidget& widget, const QImage& picture, int milliseconds) {
  const QImage wanted = picture.convertToFormat(QImage::Format_RGB32);
  QElapsedTimer clock;
  clock.start();
  while (screen_picture(widget) != wanted) {
    if (clock.elapsed() > milliseconds) {
      return false;
    }
    QThread::msleep(5);
  }
  return true;
}

ScreenWatch::ScreenWatch(const ScreenArea& area, QRgb color) {
  process_.start(QStringLiteral(SCREEN_WATCH),
                 {QString::number(area.x), QString::number(area.y), QString::number(area.width),
                  QString::number(area.height), QString::number(color & RGB_MASK, 16)});
  EXPECT_TRUE(process_.waitForReadyRead());
}

std::vector<ScreenLook> ScreenWatch::finish() {
  process_.closeWriteChannel();
  EXPECT_TRUE(process_.waitForFinished());
  std::vector<ScreenLook> looks;
  for (const QByteArray& line : process_.readAllStandardOutput().split('\n')) {
    const QList<QByteArray> words = line.split(' ');
    if (words.size() == 2) {
      looks.push_back({words[0].toInt(), words[1].toULongLong()});
    }
  }
  return looks;
}

int distinct_pictures(const std::vector<ScreenLook>& looks) {
  std::set<std::uint64_t> digests;
  for (const ScreenLook& look : looks) {
    digests.insert(look.digest);
  }
  return static_cast<int>(digests.size());
}

}  // namespace velquon::test
