// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The line of chamber values in the chamber view's picture.

#include <GL/freeglut.h>

#include <algorithm>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class ValuesOverlayTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    chamber().set_show_axes(false);
  }
  /// Pixels of the text; without axes and points nothing else is white.
  [[nodiscard]] std::vector<QPoint> text() { return pixels_of(picture_of(chamber()), white); }
};

}  // namespace

TEST_F(ValuesOverlayTest, NothingIsWrittenWithoutAnEvent) {
  EXPECT_TRUE(chamber().show_values());
  EXPECT_TRUE(text().empty());
}

TEST_F(ValuesOverlayTest, TheLineBeginsAtItsPlaceAndIsAsLongAsItsText) {
  showEvent({});
  const auto pixels = text();
  ASSERT_FALSE(pixels.empty());
  const QPointF start = overlay_camera().pixel({600.0, -400.0, 780.0});
  const std::string line = "B = 0.6 kG, T = 0.4 MeV, L = 5 m";
  EXPECT_EQ(chamber().values_text(), line);
  int length = 0;
  for (const char character : line) {
    length += glutBitmapWidth(GLUT_BITMAP_HELVETICA_12, character);
  }
  const QRect extent = extent_of(pixels);
  EXPECT_NEAR(extent.left(), start.x(), 3.0);
  EXPECT_NEAR(extent.right(), start.x() + length, 4.0);
  EXPECT_NEAR(extent.top(), start.y() - 9.0, 3.0);
  EXPECT_NEAR(extent.bottom(), start.y() + 2.0, 3.0);
}

TEST_F(ValuesOverlayTest, TheLineShowsFourOrFiveDigits) {
  controller().settings().setFieldControl(1.23456F);
  controller().settings().setEnergyControl(1234.5678F);
  controller().settings().setSidesControl(123.456F);
  choose("new_event_item");
  EXPECT_EQ(chamber().values_text(), "B = 1.235 kG, T = 1234.6 MeV, L = 1.235 m");
  controller().settings().setFieldControl(0.0F);
  controller().settings().setEnergyControl(0.000012345678F);
  controller().settings().setSidesControl(50'000.0F);
  choose("new_event_item");
  EXPECT_EQ(chamber().values_text(), "B = 0 kG, T = 1.2346E-05 MeV, L = 500 m");
}

TEST_F(ValuesOverlayTest, TheLineGoesAndComesWithItsItem) {
  showEvent({});
  const auto shown = text();
  ASSERT_FALSE(shown.empty());
  choose("values_item");
  EXPECT_TRUE(text().empty());
  choose("values_item");
  EXPECT_EQ(text(), shown);
}

TEST_F(ValuesOverlayTest, TheLineIsAwayWhileTheChamberTurnsAndComesBackInItsPlace) {
  showEvent({});
  const auto shown = text();
  const QImage resting = picture_of(chamber());
  ASSERT_FALSE(shown.empty());
  choose("rotate_item");
  const auto steps = chamber().rotation_steps();
  ASSERT_TRUE(wait_until([&] { return chamber().rotation_steps() > steps + 20; }));
  chamber().display();
  EXPECT_TRUE(text().empty());
  chamber().stopRotating();
  EXPECT_GT(differing_pixels(picture_of(chamber()), resting), 500);
  EXPECT_EQ(text(), shown);
}

}  // namespace velquon::test
