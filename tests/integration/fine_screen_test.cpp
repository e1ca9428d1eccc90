// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projector's window on a screen of twice the resolution, which a program has from its start.

#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>
#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QTemporaryDir>
#include <memory>
#include <set>

#include "tests/support/documents/environment.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/windows/waiting.h"
#include "widgets/cursors.h"

namespace velquon::test {

namespace {

constexpr QRgb bright = 0xFFFFFFFF;

/// The projection of the first event as the program saves it at a scale of the screen.
QImage projection_at(int scale) {
  const QTemporaryDir folder;
  const ProgramEnd ending = run_program(
      VELQUON_PROGRAM,
      {QStringLiteral("--pictures"), folder.path(), QStringLiteral("--seed"), QStringLiteral("7")},
      {QStringLiteral("QT_SCALE_FACTOR=%1").arg(scale)});
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  return QImage(folder.filePath(QStringLiteral("neutral-pion-projector.png")))
      .convertToFormat(QImage::Format_RGB32);
}

/// Lengths of the bright runs along a column, without the frame's corners.
std::multiset<int> white_runs(const QImage& picture, int column, int scale) {
  std::multiset<int> runs;
  int run = 0;
  for (int y = 40 * scale; y < 380 * scale; ++y) {
    if (picture.pixel(column, y) == bright) {
      ++run;
    } else if (run > 0) {
      runs.insert(run);
      run = 0;
    }
  }
  return runs;
}

/// The columns in which the frame's left side is drawn.
std::vector<int> side_columns(const QImage& picture, int scale) {
  constexpr std::size_t fewest_dots = 120;
  std::vector<int> columns;
  for (int x = 30 * scale; x < 40 * scale; ++x) {
    if (white_runs(picture, x, scale).size() > fewest_dots) {
      columns.push_back(x);
    }
  }
  return columns;
}

/// The cursor that the screen shows.
struct ShownCursor {
  QImage image;
  QPoint hot_spot;
};

ShownCursor shown_cursor() {
  const std::unique_ptr<Display, decltype(&XCloseDisplay)> display(XOpenDisplay(nullptr),
                                                                   &XCloseDisplay);
  const std::unique_ptr<XFixesCursorImage, decltype(&XFree)> cursor(
      XFixesGetCursorImage(display.get()), &XFree);
  QImage image(cursor->width, cursor->height, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const unsigned long pixel = cursor->pixels[y * image.width() + x];
      image.setPixel(x, y, static_cast<QRgb>(pixel & 0xFFFFFFFF));
    }
  }
  return {image, {cursor->xhot, cursor->yhot}};
}

/// The number of a window of another program that is on the screen; empty when there is none.
QString visible_window(const QString& title) {
  return run_program("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                 QStringLiteral("--name"), title})
      .output.split(u'\n')
      .first();
}

/// Brings a window of another program to the front and points to a place in it.
void point_into(const QString& window, int x, int y) {
  run_program("xdotool", {QStringLiteral("windowactivate"), QStringLiteral("--sync"), window,
                          QStringLiteral("mousemove"), QStringLiteral("--window"), window,
                          QString::number(x), QString::number(y)});
}

}  // namespace

TEST(FineScreenTest, DotsOfTheProjectionsFrameAreAsLargeAsOnAnyScreen) {
  for (const int scale : {1, 2}) {
    SCOPED_TRACE(scale);
    const QImage picture = projection_at(scale);
    ASSERT_EQ(picture.size(), QSize(470, 420) * scale);
    const std::vector<int> columns = side_columns(picture, scale);
    ASSERT_EQ(columns.size(), static_cast<std::size_t>(scale));
    for (const int column : columns) {
      const auto runs = white_runs(picture, column, scale);
      EXPECT_EQ(runs.count(scale), runs.size()) << "column " << column;
    }
  }
}

TEST(FineScreenTest, CursorIsAsLargeAsOnAnyScreenAndPointsToTheSamePlace) {
  for (const int scale : {1, 2}) {
    SCOPED_TRACE(scale);
    const EnvironmentVariable variable("QT_SCALE_FACTOR", QByteArray::number(scale));
    RunningProgram program(VELQUON_PROGRAM, {});
    const QString title = QStringLiteral("Projector: Empty");
    ASSERT_TRUE(wait_until([&] { return program.windowTitles().contains(title); }));
    const QCursor cross = cursor_named(QStringLiteral("crosshairs"), {7, 7}, scale);
    const QImage wanted =
        cross.pixmap().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int x = 150 * scale;
    EXPECT_TRUE(wait_until([&] {
      // Again and again: this window may not be on the screen yet, and the other one may come up
      // later and over it.
      if (const QString window = visible_window(title); !window.isEmpty()) {
        point_into(window, x++, 150 * scale);
      }
      return shown_cursor().image.size() == wanted.size();
    }));
    EXPECT_EQ(shown_cursor().hot_spot, QPoint(7, 7) * scale);
    QImage plain = wanted;
    plain.setDevicePixelRatio(1.0);
    EXPECT_EQ(shown_cursor().image, plain);
  }
}

}  // namespace velquon::test
