// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// When a view draws and when its picture comes to the screen.

#include "widgets/gl_view.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTest>

#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// A view of one colour whose drawing takes as long as wanted.
class OneColorView : public GLView {
 public:
  OneColorView() { resize(200, 100); }

  QRgb color = blue;
  int drawing_milliseconds = 0;
  int ratio = 1;
  int reshapes = 0;

  using GLView::pixelRatio;

  /// Where a mouse at a place in the widget is.
  [[nodiscard]] QPointF locationOfMouseAt(QPointF place) const {
    return locationOf(QMouseEvent(QEvent::MouseMove, place, mapToGlobal(place), Qt::NoButton,
                                  Qt::NoButton, Qt::NoModifier));
  }

 protected:
  void reshape() override { ++reshapes; }
  void drawRect() override {
    QTest::qSleep(drawing_milliseconds);
    glClearColor(static_cast<float>(qRed(color)) / 255.0F,
                 static_cast<float>(qGreen(color)) / 255.0F,
                 static_cast<float>(qBlue(color)) / 255.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
  }
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmDevicePixelRatio:
        return ratio;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(ratio * devicePixelRatioFScale());
      default:
        return GLView::metric(metric);
    }
  }
};

class GLViewTest : public testing::Test {
 protected:
  void SetUp() override {
    view_.move(100, 100);
    view_.show();
    ASSERT_TRUE(wait_until_exposed(&view_));
    view_.raise();
    ASSERT_TRUE(wait_until([this] { return isSeen(blue); }));
  }

  [[nodiscard]] bool isSeen(QRgb color) {
    return count_on_screen(view_, color) == view_.width() * view_.height();
  }

  OneColorView view_;
};

}  // namespace

TEST_F(GLViewTest, APictureIsOnTheScreenWithoutTheEventLoop) {
  view_.color = red;
  view_.display();
  QImage all_red(view_.size(), QImage::Format_RGB32);
  all_red.fill(red);
  EXPECT_TRUE(screen_comes_to_show(view_, all_red));
}

TEST_F(GLViewTest, APassThatTakesLongerThanAFrameIsBroughtToTheScreenToo) {
  int presented = 0;
  QObject::connect(&view_, &QOpenGLWidget::aboutToCompose, &view_, [&] { ++presented; });
  // On a busy machine the picture before may be so old that the next is presented at once.
  int passes = 0;
  for (int attempt = 0; attempt < 100 && (attempt == 0 || presented > 0); ++attempt) {
    view_.color = blue;
    view_.drawing_milliseconds = 0;
    view_.display();
    // Nothing that is left of that picture brings the next to the screen.
    handle_waiting_events();
    view_.color = red;
    view_.drawing_milliseconds = 60;
    passes = view_.passes();
    presented = 0;
    view_.drawAndPresentSoon();
    EXPECT_EQ(view_.passes(), passes + 1);
  }
  ASSERT_EQ(presented, 0);
  EXPECT_TRUE(wait_until([this] { return isSeen(red); }, 3000));
  EXPECT_EQ(view_.passes(), passes + 1);
}

TEST_F(GLViewTest, ANewFramebufferIsDrawnAnew) {
  const int passes = view_.passes();
  view_.ratio = 2;
  QEvent other_screen(QEvent::ScreenChangeInternal);
  QCoreApplication::sendEvent(&view_, &other_screen);
  EXPECT_TRUE(wait_until([&] { return view_.passes() > passes; }, 3000));
  const QImage picture = view_.grabFramebuffer();
  ASSERT_EQ(picture.size(), QSize(400, 200));
  EXPECT_EQ(picture.pixel(200, 100) & RGB_MASK, blue & RGB_MASK);
}

TEST_F(GLViewTest, PlacesOfAMagnifiedViewAreInViewUnits) {
  view_.setVisibleOrigin({10.0, 30.0});
  view_.ratio = 3;
  EXPECT_EQ(view_.visibleRect(), QRectF(10.0, 30.0, 200.0, 100.0));
  EXPECT_EQ(view_.locationOfMouseAt({50.0, 25.0}), QPointF(60.0, 105.0));
  EXPECT_EQ(view_.pixelRatio(), 3.0);
  view_.place({100, 100, 400, 200}, 2.5);
  EXPECT_EQ(view_.visibleRect(), QRectF(10.0, 30.0, 160.0, 80.0));
  EXPECT_EQ(view_.locationOfMouseAt({50.0, 25.0}), QPointF(30.0, 100.0));
  EXPECT_EQ(view_.pixelRatio(), 7.5);
}

TEST_F(GLViewTest, AnotherMagnificationIsDrawnAlsoAtTheSameSize) {
  const int passes = view_.passes();
  const int reshapes = view_.reshapes;
  view_.place(view_.geometry(), 2.0);
  EXPECT_EQ(view_.reshapes, reshapes + 1);
  EXPECT_TRUE(wait_until([&] { return view_.passes() > passes; }, 3000));
  view_.place(view_.geometry(), 2.0);
  EXPECT_EQ(view_.reshapes, reshapes + 1);
}

}  // namespace velquon::test
