// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Axis letters and the arrow of the field in the picture of the chamber.

#include <gtest/gtest.h>

#include <QImage>
#include <QRect>
#include <QtMath>
#include <array>
#include <vector>

#include "render/chamber_scene.h"
#include "render/off_screen.h"

namespace velquon::test {

namespace {

QImage drawn(const SceneOptions& options, double scale = 1.0, const Camera& camera = Camera()) {
  ChamberScene scene;
  const auto picture = draw_off_screen((QSizeF(chamber_width, chamber_height) * scale).toSize(),
                                       [&] { scene.draw(camera, scale, 0, options); });
  EXPECT_TRUE(picture);
  return picture.value_or(QImage()).convertToFormat(QImage::Format_RGB32);
}

/// The extent of the pixels in which two pictures differ, or of those of them near a place.
QRect changed_area(const QImage& before, const QImage& after, const QRect& where) {
  QRect area;
  for (int y = 0; y < after.height(); ++y) {
    for (int x = 0; x < after.width(); ++x) {
      if (where.contains(x, y) && before.pixel(x, y) != after.pixel(x, y)) {
        area |= QRect(x, y, 1, 1);
      }
    }
  }
  return area;
}

QRect changed_area(const QImage& before, const QImage& after) {
  return changed_area(before, after, after.rect());
}

/// A square of pixels around a place of the chamber.
QRect around(const Vector& place, const Camera& camera = Camera()) {
  constexpr int reach = 20;
  const auto [x, y] = camera.pixel(place);
  const QPoint middle(static_cast<int>(x), chamber_height - static_cast<int>(y));
  return {middle - QPoint(reach, reach), middle + QPoint(reach, reach)};
}

SceneOptions with_letters() {
  SceneOptions options;
  options.axis_letters = true;
  return options;
}

SceneOptions with_field(double field_kG) {
  SceneOptions options;
  options.field_kG = field_kG;
  return options;
}

}  // namespace

TEST(SceneMarksTest, ALetterStandsBeyondTheTipOfEachAxis) {
  const QImage plain = drawn({});
  const QImage lettered = drawn(with_letters());
  for (const Vector& place :
       {Vector{440.0, 0.0, 0.0}, Vector{0.0, 440.0, 0.0}, Vector{0.0, 0.0, 440.0}}) {
    const QRect letter = changed_area(plain, lettered, around(place));
    EXPECT_GE(letter.width(), 6);
    EXPECT_GE(letter.height(), 7);
    EXPECT_LE(letter.height(), 12);
  }
}

TEST(SceneMarksTest, EachAxisBearsItsOwnLetterInItsOwnColour) {
  constexpr double scale = 4.0;
  constexpr QRgb white = qRgb(255, 255, 255);
  constexpr QRgb green = qRgb(0, 188, 0);
  struct Case {
    Vector place;
    QRgb color;
    std::vector<QPointF> on_strokes;  ///< view units from the middle of the letter, upwards
    std::vector<QPointF> beside;
  };
  const QImage plain = drawn({}, scale);
  const QImage lettered = drawn(with_letters(), scale);
  for (const auto& [place, color, on_strokes, beside] :
       {Case{{440.0, 0.0, 0.0},
             white,
             {{-2, -2.8}, {2, -2.8}, {-2, 1.8}, {2, 1.8}},
             {{0, 2}, {0, -3}}},
        Case{{0.0, 440.0, 0.0}, white, {{-2, 0.8}, {2, 0.7}, {-2, -6.6}}, {{3, -3}, {-3, -3}}},
        Case{{0.0, 0.0, 440.0}, green, {{0, 3}, {0, -4}}, {{-2, 1}, {2, -2}}}}) {
    const auto color_at = [&, middle = Camera().pixel(place)](QPointF in_letter) {
      const QPoint pixel(qFloor((middle[0] + in_letter.x()) * scale),
                         qFloor((chamber_height - middle[1] - in_letter.y()) * scale));
      const bool is_changed = lettered.pixel(pixel) != plain.pixel(pixel);
      return is_changed ? lettered.pixel(pixel) : qRgb(0, 0, 0);
    };
    for (const QPointF& part : on_strokes) {
      EXPECT_EQ(color_at(part), color) << place[0] << ": " << part.x() << ", " << part.y();
    }
    for (const QPointF& part : beside) {
      EXPECT_EQ(color_at(part), qRgb(0, 0, 0)) << place[0] << ": " << part.x() << ", " << part.y();
    }
  }
}

TEST(SceneMarksTest, LettersFollowTheAxesAndStayUpright) {
  Camera turned;
  turned.turn(70.0, along_z);
  const QImage plain = drawn({}, 1.0, turned);
  const QImage lettered = drawn(with_letters(), 1.0, turned);
  const QRect letter = changed_area(plain, lettered, around({440.0, 0.0, 0.0}, turned));
  const QRect at_rest = changed_area(drawn({}), drawn(with_letters()), around({440.0, 0.0, 0.0}));
  // A letter may begin anywhere in a pixel.
  EXPECT_NEAR(letter.width(), at_rest.width(), 1);
  EXPECT_NEAR(letter.height(), at_rest.height(), 1);
}

TEST(SceneMarksTest, WithoutAxesThereAreNoLetters) {
  SceneOptions options = with_letters();
  options.axes = false;
  SceneOptions plain;
  plain.axes = false;
  EXPECT_EQ(drawn(options), drawn(plain));
}

TEST(SceneMarksTest, TheArrowPointsAlongTheField) {
  const QImage plain = drawn({});
  const auto is_head_at = [&](double field_kG, double z) {
    // The head is broader than the shaft.
    const Vector head{470.0, -470.0, z};
    const auto [x, y] = Camera().pixel(head);
    const QRect slice(static_cast<int>(x) - 15, chamber_height - static_cast<int>(y) - 1, 30, 3);
    return changed_area(plain, drawn(with_field(field_kG)), slice).width() > 4;
  };
  EXPECT_TRUE(is_head_at(0.6, 150.0));
  EXPECT_FALSE(is_head_at(0.6, -150.0));
  EXPECT_TRUE(is_head_at(-0.6, -150.0));
  EXPECT_FALSE(is_head_at(-0.6, 150.0));
}

TEST(SceneMarksTest, TheFieldsLetterStandsAtTheTipOfItsArrowAlone) {
  const QImage plain = drawn({});
  for (const double field_kG : {0.6, -0.6}) {
    const QImage marked = drawn(with_field(field_kG));
    const double along = field_kG > 0.0 ? 1.0 : -1.0;
    const auto letter_at = [&](double z) {
      const auto [x, y] = Camera().pixel({470.0, -470.0, z});
      const QPoint middle(static_cast<int>(x), chamber_height - static_cast<int>(y));
      return changed_area(plain, marked, QRect(middle - QPoint(4, 6), QSize(9, 13)));
    };
    EXPECT_GE(letter_at(along * 250.0).height(), 9);
    EXPECT_GE(letter_at(along * 250.0).width(), 6);
    EXPECT_TRUE(letter_at(-along * 250.0).isEmpty());
  }
}

TEST(SceneMarksTest, WithoutAFieldThereIsNoArrow) {
  const QImage plain = drawn({});
  EXPECT_EQ(drawn(with_field(0.0)), plain);
  EXPECT_EQ(drawn(with_field(-0.0)), plain);
  EXPECT_NE(drawn(with_field(0.1)), plain);
}

TEST(SceneMarksTest, MarksAreAsLargeInThePictureAtEveryRatio) {
  SceneOptions options = with_letters();
  options.field_kG = 1.0;
  const QRect once = changed_area(drawn({}), drawn(options));
  for (const double ratio : {1.25, 1.5, 2.0, 3.0}) {
    const QRect area = changed_area(drawn({}, ratio), drawn(options, ratio));
    EXPECT_NEAR(area.width() / ratio, once.width(), 2.0) << ratio;
    EXPECT_NEAR(area.height() / ratio, once.height(), 2.0) << ratio;
    EXPECT_NEAR(area.left() / ratio, once.left(), 2.0) << ratio;
    EXPECT_NEAR(area.top() / ratio, once.top(), 2.0) << ratio;
  }
}

TEST(SceneMarksTest, MarksAreScrolledWithThePicture) {
  const Camera scrolled = Camera().scrolled(10.0, 30.0);
  const QRect still = changed_area(drawn({}), drawn(with_letters()));
  const QRect moved = changed_area(drawn({}, 1.0, scrolled), drawn(with_letters(), 1.0, scrolled));
  const auto [x, y] = Camera().pixel({440.0, 0.0, 0.0});
  const auto [moved_x, moved_y] = scrolled.pixel({440.0, 0.0, 0.0});
  EXPECT_NEAR(moved.left() - still.left(), moved_x - x, 1.5);
  EXPECT_NEAR(still.bottom() - moved.bottom(), moved_y - y, 1.5);
}

}  // namespace velquon::test
