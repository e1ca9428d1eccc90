// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Marks of the chosen rows in the pictures of the chamber and the projector, as they are on the
// screen.

#include <QCheckBox>
#include <QLineF>
#include <QPainter>
#include <QTest>

#include "tests/support/documents/record_window_fixture.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class MarksTest : public RecordWindowFixture {
 protected:
  /// An event with a red and a yellow track on the screen, and its window beside it.
  void SetUp() override {
    RecordWindowFixture::SetUp();
    newEventUntil(negative_pion, slow, [](const ShownEvent& shown) {
      const auto rows = event_rows(*shown.tracks->record, shown.tracks->values);
      return rows.size() == 3 && rows[0].points.size() > 5 && rows[1].points.size() > 5;
    });
    openRecord();
    ASSERT_TRUE(wait_until([this] {
      return screen_picture(chamber()) == opaque(chamber()) &&
             screen_picture(projection()) == opaque(projection());
    }));
    plain_chamber_ = screen_picture(chamber());
    plain_projection_ = screen_picture(projection());
  }

  /// Waits until the screen shows the views with marks.
  [[nodiscard]] bool marksComeUp() {
    return wait_until([this] {
      return screen_picture(chamber()) != plain_chamber_ &&
             screen_picture(projection()) != plain_projection_;
    });
  }
  /// Waits until the screen shows the views as they were before any mark, to the pixel.
  [[nodiscard]] bool marksGo() {
    return wait_until([this] {
      return screen_picture(chamber()) == plain_chamber_ &&
             screen_picture(projection()) == plain_projection_;
    });
  }
  [[nodiscard]] int onScreen(QRgb color) { return count_on_screen(chamber(), color); }
  [[nodiscard]] int inPlainPicture(QRgb color) {
    return static_cast<int>(pixels_of(plain_chamber_, color).size());
  }

 private:
  static QImage opaque(GLView& view) {
    return picture_of(view).convertToFormat(QImage::Format_RGB32);
  }

  QImage plain_chamber_;
  QImage plain_projection_;
};

/// The middle of what differs between two pictures.
QPointF middle_of_change(const QImage& before, const QImage& after) {
  QRect changed;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      if (before.pixel(x, y) != after.pixel(x, y)) {
        changed |= QRect(x, y, 1, 1);
      }
    }
  }
  return QRectF(changed).center();
}

/// A printed view as a picture.
QImage page_of(Printable& view) {
  QImage page(500, 720, QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  view.paint(painter);
  return page;
}

}  // namespace

TEST_F(MarksTest, AChosenRowIsMarkedOnTheScreenAndNoneRestoresThePictures) {
  clickRow(1);
  EXPECT_TRUE(marksComeUp());
  EXPECT_EQ(
      model().marked(),
      event_rows(*model().shown()->tracks->record, model().shown()->tracks->values)[1].points);
  clickRow(1, Qt::ControlModifier);
  EXPECT_TRUE(model().marked().empty());
  EXPECT_TRUE(marksGo());
}

TEST_F(MarksTest, OnlyTheChosenTrackGrows) {
  clickRow(0);
  ASSERT_TRUE(marksComeUp());
  EXPECT_GT(onScreen(red), inPlainPicture(red) * 3 / 2);
  EXPECT_LE(onScreen(yellow), inPlainPicture(yellow) + 60);
  clickRow(1);
  EXPECT_TRUE(wait_until([this] { return onScreen(yellow) > inPlainPicture(yellow) * 3 / 2; }));
  EXPECT_LE(onScreen(red), inPlainPicture(red));
}

TEST_F(MarksTest, AMarkStandsAtItsPointInBothViews) {
  // A step of a track is some 10 pixels.
  constexpr double most_off = 3.0;
  const auto points = model().shown()->points();
  const EventTracks& tracks = *model().shown()->tracks;
  const auto red_points = event_rows(*tracks.record, tracks.values)[0].points;
  const QImage plain_chamber = picture_of(chamber());
  const QImage plain_projection = picture_of(projection());
  for (const std::size_t point : {red_points.front(), red_points.back(), points.size() - 1}) {
    model().mark({point});
    const auto& coords = points[point].coords;
    const QPointF in_chamber = resting_camera().pixel({coords[0], coords[1], coords[2]});
    EXPECT_LT(QLineF(middle_of_change(plain_chamber, picture_of(chamber())), in_chamber).length(),
              most_off)
        << point;
    const auto place =
        projection().mapping().map(project(points[point], projection().projection_plane()));
    const QPointF in_projection(place.x, projection().height() - place.y);
    EXPECT_LT(QLineF(middle_of_change(plain_projection, picture_of(projection())), in_projection)
                  .length(),
              most_off)
        << point;
  }
}

TEST_F(MarksTest, SeveralRowsAreMarkedTogether) {
  clickRow(0);
  const std::size_t points_of_one = model().marked().size();
  clickRow(1, Qt::ControlModifier);
  EXPECT_GT(model().marked().size(), points_of_one);
  EXPECT_TRUE(std::ranges::is_sorted(model().marked()));
}

TEST_F(MarksTest, AParticleWithoutATrackHasNoMarks) {
  clickRow(2);
  EXPECT_TRUE(model().marked().empty());
  EXPECT_TRUE(marksGo());
}

TEST_F(MarksTest, EscapeChoosesNone) {
  clickRow(0);
  ASSERT_TRUE(marksComeUp());
  QTest::keyClick(&tree(), Qt::Key_Escape);
  EXPECT_TRUE(tree().selectedItems().isEmpty());
  EXPECT_TRUE(marksGo());
}

TEST_F(MarksTest, ClosingTheWindowRestoresThePictures) {
  clickRow(0);
  ASSERT_TRUE(marksComeUp());
  recordWindow().close();
  EXPECT_TRUE(marksGo());
}

TEST_F(MarksTest, HidingTheAnswersRestoresThePicturesAndTracksCanBeMarked) {
  clickRow(0);
  ASSERT_TRUE(marksComeUp());
  recordControl<QCheckBox>("hide_answers_box").click();
  EXPECT_TRUE(marksGo());
  clickRow(1);
  EXPECT_TRUE(marksComeUp());
  EXPECT_EQ(model().marked(), visible_tracks(model().shown()->points())[1].points);
}

TEST_F(MarksTest, AnotherEventHasNone) {
  clickRow(0);
  ASSERT_TRUE(marksComeUp());
  newEvent(positive_pion, lively);
  EXPECT_TRUE(model().marked().empty());
  EXPECT_TRUE(tree().selectedItems().isEmpty());
  const QImage chamber_seen = picture_of(chamber());
  const QImage projection_seen = picture_of(projection());
  controller().displayViews();
  EXPECT_EQ(picture_of(chamber()), chamber_seen);
  EXPECT_EQ(picture_of(projection()), projection_seen);
}

TEST_F(MarksTest, APageShowsNone) {
  const QImage chamber_page = page_of(chamber());
  const QImage projection_page = page_of(projection());
  clickRow(0);
  ASSERT_TRUE(marksComeUp());
  EXPECT_EQ(page_of(chamber()), chamber_page);
  EXPECT_EQ(page_of(projection()), projection_page);
}

}  // namespace velquon::test
