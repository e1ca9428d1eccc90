// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_drawing.h"

#include <gtest/gtest.h>

// How much of a live track a drawing shows, without a screen.

namespace velquon {
namespace {

/// A straight track of a number of points.
TrackSimulation track_of(int points) {
  TrackSimulation track;
  track.settings = {.B_field = 0.0, .speed = 1.0, .charge = -1.0, .direction = 1};
  track.launch();
  track.enter(timed_start);
  while (track.show_points() < points) {
    track.advance();
    track.goOn();
  }
  return track;
}

/// A picture that shows the track so far.
TrackDrawing drawn(const TrackSimulation& track) {
  TrackDrawing drawing;
  drawing.drawn(track);
  return drawing;
}

struct DrawingCase {
  int points;
  bool do_all, resetting, stretching;
  bool clears;
  int first_point;
};

class TrackDrawingTest : public ::testing::TestWithParam<DrawingCase> {};

TEST_P(TrackDrawingTest, ShowsTheNewestPointsOverThePictureUnlessAllAreAskedFor) {
  const DrawingCase& row = GetParam();
  TrackSimulation track = track_of(row.points);
  ASSERT_EQ(track.show_points(), row.points);
  TrackDrawing drawing = drawn(track);
  if (row.do_all) {
    drawing.showAll();
  }
  track.resetting = row.resetting;
  track.stretching = row.stretching;
  EXPECT_EQ(drawing.needsClearing(track), row.clears);
  EXPECT_EQ(drawing.firstPoint(track), row.first_point);
}

INSTANTIATE_TEST_SUITE_P(Table, TrackDrawingTest,
                         ::testing::Values(DrawingCase{1, false, false, false, true, 0},
                                           DrawingCase{2, false, false, false, false, 0},
                                           DrawingCase{99, false, false, false, false, 0},
                                           DrawingCase{100, false, false, false, false, 0},
                                           DrawingCase{101, false, false, false, false, 1},
                                           DrawingCase{300, false, false, false, false, 200},
                                           DrawingCase{300, true, false, false, false, 0},
                                           DrawingCase{300, true, true, false, true, 0},
                                           DrawingCase{300, true, false, true, true, 0}));

TEST(TrackDrawing, APictureThatIsLostIsMadeAnewOnce) {
  const TrackSimulation track = track_of(300);
  TrackDrawing drawing;
  for (int time = 0; time < 2; ++time) {
    EXPECT_TRUE(drawing.needsClearing(track));
    EXPECT_EQ(drawing.firstPoint(track), 0);
    drawing.drawn(track);
    EXPECT_FALSE(drawing.needsClearing(track));
    EXPECT_EQ(drawing.firstPoint(track), 200);
    drawing.losePicture();
  }
}

TEST(TrackDrawing, AllPointsAreShownOnceButEachTimeWhileTheTapeIsStretched) {
  TrackSimulation track = track_of(300);
  TrackDrawing drawing = drawn(track);
  drawing.showAll();
  drawing.drawn(track);
  EXPECT_EQ(drawing.firstPoint(track), 200);

  track.stretching = true;
  drawing.losePicture();
  drawing.drawn(track);
  EXPECT_EQ(drawing.firstPoint(track), 0) << "also those of a picture that was lost";
  drawing.drawn(track);
  EXPECT_EQ(drawing.firstPoint(track), 0);
  track.stretching = false;
  drawing.drawn(track);
  EXPECT_EQ(drawing.firstPoint(track), 200);
}

}  // namespace
}  // namespace velquon
