// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QScrollBar>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/printing.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/waiting.h"
#include "widgets/view_scroll_area.h"

namespace velquon::test {

namespace {

constexpr double picture_height = 500.0;
constexpr QPointF chamber_page_offset{-80.0, 120.0};

class ChamberPageTest : public DocumentsFixture {
 protected:
  void openEvent(const std::vector<PlotPoint>& points) {
    const QString file = write(QStringLiteral("event.cwd"), event_file(points));
    ASSERT_TRUE(documents().readAndDisplayFile(file));
  }

  PdfPage print(const Paper& paper = a4) {
    return print_to_pdf(chamber(), chamber(), paper, path(QStringLiteral("page.pdf")));
  }
};

/// Where a place of the chamber comes to lie on the paper.
QPointF on_paper(const PictureCamera& camera, const Vector& place, const Paper& paper) {
  const QPointF pixel = camera.pixel(place);
  return QPointF(pixel.x(), picture_height - pixel.y()) + chamber_page_offset + paper.origin;
}

/// The rectangle that holds a point's small cube.
QRectF cube_on_paper(const PictureCamera& camera, const PlotPoint& point, const Paper& paper) {
  constexpr double half = 2.25 / 2.0;
  const double far = std::numeric_limits<double>::max();
  QPointF low(far, far);
  QPointF high(-far, -far);
  for (const double x : {-half, half}) {
    for (const double y : {-half, half}) {
      for (const double z : {-half, half}) {
        const QPointF corner = on_paper(
            camera, {point.coords[0] + x, point.coords[1] + y, point.coords[2] + z}, paper);
        low = {std::min(low.x(), corner.x()), std::min(low.y(), corner.y())};
        high = {std::max(high.x(), corner.x()), std::max(high.y(), corner.y())};
      }
    }
  }
  return {low, high};
}

void expect_cubes(const PdfPage& page, const std::vector<PlotPoint>& points,
                  const PictureCamera& camera, const Paper& paper) {
  ASSERT_EQ(page.rectangles.size(), points.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    const QRectF expected = cube_on_paper(camera, points[i], paper);
    const QRectF& printed = page.rectangles[i].area;
    EXPECT_TRUE(is_near(printed.topLeft(), expected.topLeft())) << "point " << i;
    EXPECT_TRUE(is_near(printed.bottomRight(), expected.bottomRight())) << "point " << i;
    EXPECT_EQ(page.rectangles[i].color, ink);
  }
}

using Edge = std::array<Vector, 2>;

std::vector<Edge> cube_edges() {
  std::vector<Edge> edges;
  for (const double a : {-400.0, 400.0}) {
    for (const double b : {-400.0, 400.0}) {
      edges.push_back({Vector{-400.0, a, b}, Vector{400.0, a, b}});
      edges.push_back({Vector{a, -400.0, b}, Vector{a, 400.0, b}});
      edges.push_back({Vector{a, b, -400.0}, Vector{a, b, 400.0}});
    }
  }
  return edges;
}

std::vector<Edge> axes() {
  return {{Vector{0, 0, 0}, Vector{400, 0, 0}},
          {Vector{0, 0, 0}, Vector{0, 400, 0}},
          {Vector{0, 0, 0}, Vector{0, 0, 400}}};
}

std::vector<Edge> middle_plane() {
  return {{Vector{400, -400, 0}, Vector{400, 400, 0}},
          {Vector{400, 400, 0}, Vector{-400, 400, 0}},
          {Vector{-400, 400, 0}, Vector{-400, -400, 0}},
          {Vector{-400, -400, 0}, Vector{400, -400, 0}}};
}

bool runs_along(const PaperLine& line, const Edge& edge, const Paper& paper) {
  const PictureCamera camera = resting_camera();
  const QPointF from = on_paper(camera, edge[0], paper);
  const QPointF to = on_paper(camera, edge[1], paper);
  return (is_near(line.from, from) && is_near(line.to, to)) ||
         (is_near(line.from, to) && is_near(line.to, from));
}

/// How many of the edges have a line of their own on the page.
std::size_t printed_edges(const PdfPage& page, const std::vector<Edge>& edges, const Paper& paper) {
  return static_cast<std::size_t>(std::ranges::count_if(edges, [&](const Edge& edge) {
    return std::ranges::any_of(
        page.lines, [&](const PaperLine& line) { return runs_along(line, edge, paper); });
  }));
}

bool belongs_to(const PaperLine& line, const std::vector<Edge>& edges, const Paper& paper) {
  return std::ranges::any_of(edges,
                             [&](const Edge& edge) { return runs_along(line, edge, paper); });
}

TEST_F(ChamberPageTest, IsOnThePaperChosenWithEachPointInItsPlace) {
  const std::vector<PlotPoint> points = spiral(350);
  openEvent(points);
  for (const Paper& paper : {a4, letter}) {
    SCOPED_TRACE(paper.size.width());
    const PdfPage page = print(paper);
    EXPECT_EQ(page.paper, paper.size);
    expect_cubes(page, points, resting_camera(), paper);
  }
}

TEST_F(ChamberPageTest, HasTheChamberItsAxesAndItsMiddlePlaneAsLinesOfOneColour) {
  openEvent({point_at(0, 0, 0, 3)});
  for (const Paper& paper : {a4, letter}) {
    SCOPED_TRACE(paper.size.width());
    const PdfPage page = print(paper);
    EXPECT_EQ(printed_edges(page, cube_edges(), paper), 12U);
    EXPECT_EQ(printed_edges(page, axes(), paper), 3U);
    EXPECT_EQ(printed_edges(page, middle_plane(), paper), 4U);
    EXPECT_EQ(page.other_fills, 0);
    for (const PaperLine& line : page.lines) {
      EXPECT_EQ(line.color, ink);
      EXPECT_TRUE(belongs_to(line, cube_edges(), paper) || belongs_to(line, axes(), paper) ||
                  belongs_to(line, middle_plane(), paper));
    }
  }
}

TEST_F(ChamberPageTest, LeavesTheAxesOutWhenTheyAreNotShown) {
  openEvent({point_at(0, 0, 0, 3)});
  chamber().set_show_axes(false);
  const PdfPage page = print();
  EXPECT_EQ(printed_edges(page, cube_edges(), a4), 12U);
  EXPECT_EQ(printed_edges(page, axes(), a4), 0U);
  EXPECT_EQ(printed_edges(page, middle_plane(), a4), 4U);
}

TEST_F(ChamberPageTest, HasItsLinesWithoutAnEvent) {
  const PdfPage page = print();
  EXPECT_TRUE(page.rectangles.empty());
  EXPECT_EQ(printed_edges(page, cube_edges(), a4), 12U);
}

TEST_F(ChamberPageTest, HoldsTheLargestEvent) {
  const std::vector<PlotPoint> points = spiral(5000);
  openEvent(points);
  expect_cubes(print(), points, resting_camera(), a4);
}

TEST_F(ChamberPageTest, LeavesOutPointsThatAreNotInThePicture) {
  const PlotPoint near_point = point_at(10, 20, 30, 4);
  const PlotPoint far_point = point_at(-50, 0, 200, 5);
  // Far to the side, behind the eye, and beyond the far plane.
  openEvent({near_point, point_at(0, 9000, 0, 3), point_at(9000, 0, 0, 3),
             point_at(-90000, 30000, 0, 3), far_point});
  expect_cubes(print(), {near_point, far_point}, resting_camera(), a4);
}

TEST_F(ChamberPageTest, LeavesOutPointsThatAreNowhere) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  const PlotPoint somewhere = point_at(10, 20, 30, 4);
  openEvent({point_at(nan, nan, nan, 3), point_at(infinity, 0, 0, 3), point_at(0, -infinity, 0, 3),
             point_at(0, 0, 1e300, 3), point_at(nan, 0, 0, 3), somewhere});
  const PdfPage page = print();
  EXPECT_EQ(page.operators.find("nan"), std::string::npos);
  EXPECT_EQ(page.operators.find("inf"), std::string::npos);
  expect_cubes(page, {somewhere}, resting_camera(), a4);
}

TEST_F(ChamberPageTest, HoldsNothingBeyondItsEdges) {
  // In the picture, but beside the page, which is narrower.
  const PlotPoint beside = point_at(0, -1050, 0, 3);
  const double place = on_paper(resting_camera(), {0, -1050, 0}, a4).x() - a4.origin.x();
  ASSERT_LT(place, -5.0);
  ASSERT_GT(place, -45.0);
  openEvent({beside, point_at(0, 0, 0, 3)});
  EXPECT_EQ(print().rectangles.size(), 2U);
  const QImage page = picture_of_pdf(path(QStringLiteral("page.pdf")));
  EXPECT_EQ(ink_in(page, QRectF(0, 0, a4.origin.x() - 1, a4.size.height())), 0);
  EXPECT_GT(ink_in(page, QRectF(a4.origin + QPointF(0, 100), QSizeF(500, 500))), 1000);
}

TEST_F(ChamberPageTest, HasLinesWithSquareEnds) {
  openEvent(spiral(3));
  EXPECT_EQ(line_styles_of(print()), (std::set<std::string>{"0 J", "0 j"}));
}

TEST_F(ChamberPageTest, ShowsTheChamberAsItIsTurned) {
  const std::vector<PlotPoint> points = spiral(100);
  openEvent(points);
  choose("rotate_item");
  ASSERT_TRUE(wait_until([this] { return chamber().rotation_steps() >= 20; }));
  chamber().stopRotating();
  const double degrees = 0.5 * static_cast<double>(chamber().rotation_steps());
  expect_cubes(print(), points, resting_camera().turned(degrees, along_x), a4);
}

TEST_F(ChamberPageTest, DoesNotFollowTheScrollBars) {
  const std::vector<PlotPoint> points = spiral(50);
  openEvent(points);
  chamberWindow().resize(450, 450);
  auto* const bar = chamberWindow().area()->horizontalScrollBar();
  ASSERT_TRUE(wait_until([bar] { return bar->maximum() > 100; }));
  bar->setValue(100);
  expect_cubes(print(), points, resting_camera(), a4);
}

TEST_F(ChamberPageTest, IsTheSameWhenPrintedAgain) {
  openEvent(spiral(200));
  const PdfPage first = print();
  const PdfPage second = print();
  ASSERT_EQ(first.rectangles.size(), second.rectangles.size());
  for (std::size_t i = 0; i < first.rectangles.size(); ++i) {
    EXPECT_EQ(first.rectangles[i].area, second.rectangles[i].area);
  }
  ASSERT_EQ(first.lines.size(), second.lines.size());
  for (std::size_t i = 0; i < first.lines.size(); ++i) {
    EXPECT_EQ(first.lines[i].from, second.lines[i].from);
    EXPECT_EQ(first.lines[i].to, second.lines[i].to);
  }
}

TEST_F(ChamberPageTest, LeavesTheScreenAsItWas) {
  makeEvent(5);
  const Shown before = shown();
  print();
  EXPECT_EQ(differences(before, shown()), "");
  const int passes = chamber().passes();
  choose("values_item");
  choose("values_item");
  EXPECT_EQ(chamber().passes(), passes + 2);
  EXPECT_EQ(differences(before, shown()), "");
}

TEST_F(ChamberPageTest, CanBePrintedWhileItsWindowIsHidden) {
  const std::vector<PlotPoint> points = spiral(50);
  openEvent(points);
  chamberWindow().close();
  ASSERT_FALSE(chamberWindow().isVisible());
  expect_cubes(print(), points, resting_camera(), a4);
}

}  // namespace

}  // namespace velquon::test
