// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What becomes of windows when their screen gets another ratio of pixels.

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/placement.h"
#include "tests/support/windows/screen_settings.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"
#include "track/track_window.h"

namespace velquon::test {

namespace {

class ChangedRatioTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ASSERT_TRUE(can_change_screen_ratio()) << "run under scripts/with-screen-settings";
    ApplicationFixture::SetUp();
  }
  void TearDown() override {
    changeRatio(1.0);
    ApplicationFixture::TearDown();
  }

  void changeRatio(double ratio) { ASSERT_TRUE(change_screen_ratio(ratio, chamberWindow())); }

  /// The size of a window on the screen, in its pixels.
  static QSize pixelsOf(const QWidget& window) {
    const ScreenArea area = area_of_window(window.winId());
    return QSizeF(area.width, area.height).toSize();
  }
  /// Expects that a view comes to have a picture of the ratio, and the screen to show as much red.
  static void expectPictureOf(GLView& view, double ratio) {
    EXPECT_TRUE(wait_until([&] {
      const QImage picture = picture_of(view);
      const auto lit = std::ssize(pixels_of(picture, red));
      return picture.size() == (QSizeF(view.size()) * ratio).toSize() && lit > 0 &&
             count_on_screen(view, red) == lit;
    }));
  }
  /// Expects that the screen comes to show what a label holds.
  static void expectOnScreen(QWidget& label) {
    EXPECT_TRUE(wait_until([&] {
      return screen_picture(label) == label.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }));
  }
};

}  // namespace

TEST_F(ChangedRatioTest, AWindowKeepsItsSizeInUnits) {
  showEvent(std::array{point_at(0.0, 0.0, 0.0, 3)});
  const QSize before = chamberWindow().size();
  changeRatio(2.0);
  EXPECT_TRUE(wait_until([&] { return pixelsOf(chamberWindow()) == before * 2; }));
  EXPECT_EQ(chamberWindow().size(), before);
  expectPictureOf(chamber(), 2.0);
  expectOnScreen(control<QWidget>("chamber_status"));
}

TEST_F(ChangedRatioTest, AMaximizedWindowFillsTheScreenAndIsDrawnAnew) {
  showEvent(std::array{point_at(0.0, 0.0, 0.0, 3)});
  chamberWindow().showMaximized();
  ASSERT_TRUE(wait_until([&] { return chamberWindow().width() > 2700; }));
  changeRatio(2.0);
  EXPECT_TRUE(wait_until([&] { return chamberWindow().frameGeometry().width() == 1400; }));
  EXPECT_TRUE(chamberWindow().isMaximized());
  expectPictureOf(chamber(), 2.0);
}

TEST_F(ChangedRatioTest, APresentationFillsTheScreenAndIsDrawnAnew) {
  showEvent(std::array{point_at(0.0, 0.0, 0.0, 3)});
  choose("presentation_item");
  ASSERT_TRUE(wait_until([&] { return chamberWindow().isFullScreen(); }));
  changeRatio(2.0);
  EXPECT_TRUE(wait_until([&] { return chamberWindow().size() == QSize(1400, 800); }));
  EXPECT_EQ(pixelsOf(chamberWindow()), QSize(2800, 1600));
  expectPictureOf(chamber(), 2.0);
  choose("presentation_item");
  EXPECT_TRUE(wait_until([&] { return !chamberWindow().isFullScreen(); }));
  expect_on_screen(chamberWindow());
}

TEST_F(ChangedRatioTest, AWindowIsMadeSmallerWhereTheScreenHasNoRoomForIt) {
  chamberWindow().resize(1800, 1200);
  changeRatio(2.0);
  EXPECT_TRUE(wait_until([&] { return pixelsOf(chamberWindow()) == chamberWindow().size() * 2; }));
  expect_on_screen(chamberWindow());
}

TEST_F(ChangedRatioTest, AWindowThatWasHiddenMeanwhileComesUpAtItsSize) {
  ASSERT_NO_FATAL_FAILURE(showTrackWindow());
  const QSize before = application().trackWindow().size();
  choose("activate_item");
  changeRatio(2.0);
  ASSERT_NO_FATAL_FAILURE(showTrackWindow());
  EXPECT_TRUE(wait_until([&] { return pixelsOf(application().trackWindow()) == before * 2; }));
  EXPECT_EQ(application().trackWindow().size(), before);
}

TEST_F(ChangedRatioTest, AHiddenWindowComesUpAtItsSizeThoughItsOldPixelsAreToldFirst) {
  ASSERT_NO_FATAL_FAILURE(showTrackWindow());
  QWidget& window = application().trackWindow();
  const QSize before = window.size();
  choose("activate_item");
  changeRatio(2.0);
  window.show();
  // What Qt makes of X's telling that the window has the pixels that it had.
  window.resize(before / 2);
  EXPECT_TRUE(
      wait_until([&] { return window.size() == before && pixelsOf(window) == before * 2; }));
}

}  // namespace velquon::test
