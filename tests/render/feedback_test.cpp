// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QTemporaryDir>
#include <cmath>
#include <limits>
#include <vector>

#include "render/feedback.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/documents/pdf_page.h"

namespace velquon::test {

namespace {

constexpr auto line = static_cast<float>(GL_LINE_TOKEN);
constexpr auto line_reset = static_cast<float>(GL_LINE_RESET_TOKEN);
constexpr auto polygon = static_cast<float>(GL_POLYGON_TOKEN);
constexpr auto mark = static_cast<float>(GL_PASS_THROUGH_TOKEN);
constexpr auto point = static_cast<float>(GL_POINT_TOKEN);
constexpr auto bitmap = static_cast<float>(GL_BITMAP_TOKEN);
constexpr float no_number = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

TEST(FeedbackTest, ABufferHasRoomForTheLinesAndSixFacesAPoint) {
  EXPECT_EQ(feedback_buffer_size(0), 217);
  EXPECT_EQ(feedback_buffer_size(1), 301);
  EXPECT_EQ(feedback_buffer_size(10), 1057);
  EXPECT_EQ(feedback_buffer_size(5000), 420217);
}

TEST(FeedbackTest, LinesKeepTheirEndsAndLoseTheirDepth) {
  const FeedbackPicture picture =
      read_feedback({line_reset, 10, 20, 0.5F, 30, 40, 0.6F, line, 30, 40, 0.6F, 50, 60, 0.7F});
  ASSERT_EQ(picture.lines.size(), 2U);
  EXPECT_EQ(picture.lines[0], std::pair(QPointF(10, 20), QPointF(30, 40)));
  EXPECT_EQ(picture.lines[1], std::pair(QPointF(30, 40), QPointF(50, 60)));
  EXPECT_TRUE(picture.cubes.empty());
}

TEST(FeedbackTest, ThePolygonsBehindAMarkAreOneCube) {
  const FeedbackPicture picture = read_feedback({mark,    1,                             //
                                                 polygon, 3, 1, 2, 0, 4, 3, 0, 2, 9, 0,  //
                                                 polygon, 4, 0, 5, 0, 3, 3, 0, 7, 4, 0, 2, 2, 0});
  ASSERT_EQ(picture.cubes.size(), 1U);
  EXPECT_EQ(picture.cubes[0], QRectF(QPointF(0, 2), QPointF(7, 9)));
}

TEST(FeedbackTest, EachMarkBeginsACubeOfItsOwn) {
  const FeedbackPicture picture = read_feedback({mark, 1, polygon, 3, 1, 1, 0, 2, 1, 0, 2, 3, 0,  //
                                                 mark, 1,  // clipped away
                                                 mark, 1, polygon, 3, 5, 5, 0, 6, 5, 0, 6, 8, 0});
  ASSERT_EQ(picture.cubes.size(), 2U);
  EXPECT_EQ(picture.cubes[0], QRectF(QPointF(1, 1), QPointF(2, 3)));
  EXPECT_EQ(picture.cubes[1], QRectF(QPointF(5, 5), QPointF(6, 8)));
}

TEST(FeedbackTest, WhatIsNeitherLineNorPolygonIsPassedOver) {
  // The values of a point or a bitmap may look like tokens.
  const FeedbackPicture picture = read_feedback({point, line, polygon, mark, bitmap, line, 1, 2,  //
                                                 0, 0, 17, line, 1, 2, 0, 3, 4, 0});
  ASSERT_EQ(picture.lines.size(), 1U);
  EXPECT_EQ(picture.lines[0], std::pair(QPointF(1, 2), QPointF(3, 4)));
  EXPECT_TRUE(picture.cubes.empty());
}

struct HostileStream {
  const char* name;
  std::vector<float> values;
};

class HostileFeedbackTest : public testing::TestWithParam<HostileStream> {};

TEST_P(HostileFeedbackTest, EndsWithoutALineOrACube) {
  const FeedbackPicture picture = read_feedback(GetParam().values);
  EXPECT_TRUE(picture.lines.empty());
  EXPECT_TRUE(picture.cubes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Streams, HostileFeedbackTest,
    testing::Values(
        HostileStream{"empty", {}},  //
        HostileStream{"zeros", std::vector<float>(217, 0.0F)},
        HostileStream{"line_cut_in_its_end", {line, 1, 2, 0, 3, 4}},
        HostileStream{"line_token_alone", {line}},
        HostileStream{"polygon_token_alone", {mark, 1, polygon}},
        HostileStream{"mark_alone", {mark}},
        HostileStream{"polygon_without_vertices", {mark, 1, polygon, 0}},
        HostileStream{"negative_count", {mark, 1, polygon, -3}},
        HostileStream{"count_not_a_number", {mark, 1, polygon, no_number}},
        HostileStream{"infinite_count", {mark, 1, polygon, infinite}},
        HostileStream{"huge_count", {mark, 1, polygon, 2.0e9F}},
        HostileStream{"count_beyond_integers", {mark, 1, polygon, 3.0e38F}},
        HostileStream{"token_not_a_number", {no_number, 1, 2}},
        HostileStream{"negative_token", {-1794.0F, 1, 2, 0, 3, 4, 0}},
        HostileStream{"infinite_token", {infinite, -infinite, 3.0e38F}},
        HostileStream{"polygon_without_a_mark", {polygon, 3, 1, 1, 0, 2, 1, 0, 2, 3, 0}},
        HostileStream{"line_to_nowhere", {line, 1, 2, 0, no_number, 4, 0}},
        HostileStream{"line_from_infinity", {line, infinite, 2, 0, 3, 4, 0}},
        HostileStream{"cube_nowhere",
                      {mark, 1, polygon, 3, no_number, 1, 0, no_number, 1, 0, no_number, 3, 0}}),
    [](const auto& tested) { return tested.param.name; });

TEST(FeedbackTest, AStreamOfHugeCountsIsReadAtOnce) {
  std::vector<float> values;
  for (int i = 0; i < 1000; ++i) {
    values.insert(values.end(), {mark, 1, polygon, 2.0e9F, 1, 1, 0});
  }
  const FeedbackPicture picture = read_feedback(values);
  // The first polygon takes the rest of the stream for its vertices.
  EXPECT_LE(picture.cubes.size(), 1U);
}

TEST(FeedbackTest, APolygonThatIsCutOffCountsAsFarAsItGoes) {
  const FeedbackPicture picture = read_feedback({mark, 1, polygon, 4, 1, 2, 0, 3, 8, 0, 100});
  ASSERT_EQ(picture.cubes.size(), 1U);
  EXPECT_EQ(picture.cubes[0], QRectF(QPointF(1, 2), QPointF(3, 8)));
}

/// A context of its own to draw with.
class DrawnFeedbackTest : public testing::Test {
 protected:
  void SetUp() override {
    surface_.create();
    ASSERT_TRUE(context_.create());
    ASSERT_TRUE(context_.makeCurrent(&surface_));
  }
  void TearDown() override { context_.doneCurrent(); }

  static void drawLines(int count) {
    glBegin(GL_LINES);
    for (int i = 0; i < count; ++i) {
      glVertex2f(-0.5F, 0.0F);
      glVertex2f(0.5F, 0.0F);
    }
    glEnd();
  }
  /// Lines that take more than the first buffer's size.
  static constexpr int too_many_lines = feedback_buffer_size(0) / 7 + 1;

 private:
  QOffscreenSurface surface_;
  QOpenGLContext context_;
};

TEST_F(DrawnFeedbackTest, ABufferGrowsUntilTheDrawingFits) {
  for (const int times : {1, 3, 40}) {
    int passes = 0;
    const auto picture = draw_into_feedback(0, [&] {
      ++passes;
      drawLines(too_many_lines * times);
    });
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->lines.size(), static_cast<std::size_t>(too_many_lines * times));
    EXPECT_GT(passes, 1);
  }
}

TEST_F(DrawnFeedbackTest, WhatFitsIntoNoBufferIsGivenUp) {
  int passes = 0;
  const auto picture = draw_into_feedback(0, [&] {
    drawLines(too_many_lines << passes);
    ++passes;
  });
  EXPECT_FALSE(picture);
  EXPECT_EQ(passes, most_feedback_doublings + 1);
}

#ifndef VELQUON_SANITIZED  // A sanitizer does not run behind another library.
TEST(FeedbackTest, APageSaysThatItsPictureIsMissing) {
  const QTemporaryDir folder;
  const QString event = folder.filePath(QStringLiteral("event.cwd"));
  const QString page = folder.filePath(QStringLiteral("page.pdf"));
  QFile file(event);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(event_file(spiral(3)));
  file.close();
  const ProgramEnd ending = run_program(
      SCRIPTED_PROGRAM, {QStringLiteral("print"), QStringLiteral("chamber"), event, page},
      {QStringLiteral("LD_PRELOAD=") + QStringLiteral(FULL_FEEDBACK)});
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  EXPECT_TRUE(ending.errors.contains(QStringLiteral(
      "velquon: the OpenGL driver does not hand the chamber's picture over for printing\n")))
      << ending.errors.toStdString();
  QStringList words;
  for (const PaperWord& word : words_of_pdf(page)) {
    words << word.text;
  }
  EXPECT_TRUE(words.join(QLatin1Char(' '))
                  .contains(QStringLiteral("The graphics driver did not hand the picture over.")))
      << words.join(QLatin1Char(' ')).toStdString();
}
#endif

}  // namespace

}  // namespace velquon::test
