// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <limits>
#include <set>

#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/printing.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/waiting.h"
#include "widgets/view_scroll_area.h"

namespace velquon::test {

namespace {

constexpr QPointF projection_page_offset{20.0, 100.0};
// The chamber's outline, and the scale bar with its ends.
constexpr std::size_t lines_of_page = 4 + 3;

class ProjectionPageTest : public DocumentsFixture {
 protected:
  void openEvent(const std::vector<PlotPoint>& points) {
    const QString file = write(QStringLiteral("event.cwd"), event_file(points));
    ASSERT_TRUE(documents().readAndDisplayFile(file));
  }

  PdfPage print(const Paper& paper = a4) {
    return print_to_pdf(projection(), chamber(), paper, path(QStringLiteral("page.pdf")));
  }
  QImage printedPicture() {
    print();
    return picture_of_pdf(path(QStringLiteral("page.pdf")));
  }
};

/// An area of the page on the A4 paper.
QRectF on_a4(double x, double y, double width, double height) {
  return QRectF(x, y, width, height).translated(a4.origin);
}

std::ptrdiff_t clips_of(const PdfPage& page) {
  const QString operators = QString::fromStdString(page.operators);
  return operators.count(QStringLiteral("W n")) + operators.count(QStringLiteral("W* n"));
}

struct View {
  double zoom = 1.0;
  double across = 470.0;
  double up = 420.0;
};

QPointF on_paper(const View& view, double u, double v, double height, const Paper& paper) {
  const double s = 0.5 * view.zoom;
  return QPointF(s * (u + view.across), height - s * (view.up / view.zoom - v)) +
         projection_page_offset + paper.origin;
}

void expect_squares(const PdfPage& page, const std::vector<QPointF>& middles) {
  ASSERT_EQ(page.rectangles.size(), middles.size());
  for (std::size_t i = 0; i < middles.size(); ++i) {
    const QRectF& area = page.rectangles[i].area;
    EXPECT_TRUE(is_near(area.topLeft(), middles[i] - QPointF(0.5, 0.5))) << "point " << i;
    EXPECT_TRUE(is_near(area.bottomRight(), middles[i] + QPointF(0.5, 0.5))) << "point " << i;
    EXPECT_EQ(page.rectangles[i].color, ink);
  }
}

bool is_gray(const PaperColor& color) {
  return color[0] > 0.2 && color[0] < 0.8 && color[0] == color[1] && color[1] == color[2];
}

/// Whether a line joins two places, in either direction.
bool joins(const PaperLine& line, QPointF a, QPointF b) {
  return (is_near(line.from, a) && is_near(line.to, b)) ||
         (is_near(line.from, b) && is_near(line.to, a));
}

void expect_frame(const PdfPage& page, QPointF low, QPointF high) {
  const QPointF right(high.x(), low.y());
  const QPointF left(low.x(), high.y());
  ASSERT_GE(page.lines.size(), lines_of_page);
  const std::array<std::pair<QPointF, QPointF>, 4> sides{
      {{low, right}, {right, high}, {high, left}, {left, low}}};
  for (const auto& [from, to] : sides) {
    const auto side = std::ranges::find_if(
        page.lines,
        [&, from = from, to = to](const PaperLine& line) { return joins(line, from, to); });
    ASSERT_NE(side, page.lines.end());
    EXPECT_TRUE(is_gray(side->color));
  }
}

TEST_F(ProjectionPageTest, HasAGrayFrameAndASquareForEachPointOnEitherPaper) {
  const std::vector<PlotPoint> points = spiral(350);
  openEvent(points);
  const double height = projection().height();
  for (const Paper& paper : {a4, letter}) {
    SCOPED_TRACE(paper.size.width());
    std::vector<QPointF> middles;
    middles.reserve(points.size());
    for (const PlotPoint& point : points) {
      middles.push_back(on_paper({}, point.coords[1], -point.coords[0], height, paper));
    }
    const PdfPage page = print(paper);
    EXPECT_EQ(page.paper, paper.size);
    expect_squares(page, middles);
    EXPECT_EQ(page.lines.size(), lines_of_page);
    EXPECT_EQ(page.other_fills, 0);
    expect_frame(page, QPointF(35, height - 410) + projection_page_offset + paper.origin,
                 QPointF(435, height - 10) + projection_page_offset + paper.origin);
  }
}

TEST_F(ProjectionPageTest, ShowsThePlaneThatIsChosen) {
  openEvent({point_at(100, 50, -20, 3)});
  const double height = projection().height();
  clickButton("xz_button");
  expect_squares(print(), {on_paper({}, 100, -20, height, a4)});
  clickButton("yz_button");
  expect_squares(print(), {on_paper({}, 50, -20, height, a4)});
  clickButton("xy_button");
  expect_squares(print(), {on_paper({}, 50, -100, height, a4)});
}

TEST_F(ProjectionPageTest, ShowsTheZoomThatIsChosen) {
  openEvent({point_at(100, 50, -20, 3)});
  const double height = projection().height();
  clickButton("zoom_2");
  const PdfPage page = print();
  expect_squares(page, {on_paper({.zoom = 2.0}, 50, -100, height, a4)});
  expect_frame(page, QPointF(70, height - 610) + projection_page_offset + a4.origin,
               QPointF(870, height + 190) + projection_page_offset + a4.origin);
  clickButton("zoom_3");
  expect_squares(print(), {on_paper({.zoom = 3.0}, 50, -100, height, a4)});
}

TEST_F(ProjectionPageTest, ShowsThePictureWhereItWasDragged) {
  openEvent({point_at(100, 50, -20, 3)});
  const double height = projection().height();
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {130, 80});
  // 30 to the right and 20 upwards; the offset across counts half at zoom 1.
  expect_squares(print(), {on_paper({.across = 500.0, .up = 400.0}, 50, -100, height, a4)});
}

TEST_F(ProjectionPageTest, HasTheTapeWhenItIsOnTheScreen) {
  openEvent({point_at(100, 50, -20, 3)});
  const double height = projection().height();
  clickButton("tape_tool");
  drag(projection(), {100, 150}, {250, 210});
  ASSERT_TRUE(projection().tape_visible());
  const PdfPage page = print();
  ASSERT_EQ(page.lines.size(), lines_of_page + 1);
  const QPointF start = QPointF(100, height - 150) + projection_page_offset + a4.origin;
  const QPointF end = QPointF(250, height - 210) + projection_page_offset + a4.origin;
  EXPECT_EQ(std::ranges::count_if(page.lines,
                                  [&](const PaperLine& line) { return joins(line, start, end); }),
            1);
  clickButton("zoom_1");
  EXPECT_FALSE(projection().tape_visible());
  EXPECT_EQ(print().lines.size(), lines_of_page);
}

TEST_F(ProjectionPageTest, HasOnlyItsFrameWithoutAnEvent) {
  const PdfPage page = print();
  EXPECT_TRUE(page.rectangles.empty());
  EXPECT_EQ(page.lines.size(), lines_of_page);
}

TEST_F(ProjectionPageTest, HasAScaleBarOfARoundLength) {
  openEvent({point_at(100, 50, -20, 3)});  // in a chamber of 400 cm
  for (const auto& [button, length] :
       {std::pair("zoom_1", 100.0), std::pair("zoom_2", 100.0), std::pair("zoom_3", 60.0)}) {
    SCOPED_TRACE(button);
    clickButton(button);
    const QPointF start = QPointF(55.0, 85.0) + a4.origin;
    const PdfPage page = print();
    EXPECT_EQ(std::ranges::count_if(page.lines,
                                    [&, length = length](const PaperLine& line) {
                                      return joins(line, start, start + QPointF(length, 0.0));
                                    }),
              1);
  }
}

TEST_F(ProjectionPageTest, HasWhatACurveMeasures) {
  openEvent({point_at(100, 50, -20, 3)});
  clickButton("snap_button");
  clickButton("curve_tool");
  for (const QPoint place : {QPoint(150, 250), QPoint(250, 150), QPoint(350, 250)}) {
    QTest::mouseClick(&projection(), Qt::LeftButton, {}, place);
  }
  const double height = projection().height();
  const QPointF middle = QPointF(250, height - 250) + projection_page_offset + a4.origin;
  const PdfPage page = print();
  const auto on_circle = [&](const PaperLine& line, bool measured) {
    const QPointF from = line.from - middle;
    return std::fabs(std::hypot(from.x(), from.y()) - 100.0) < 0.1 &&
           is_gray(line.color) != measured;
  };
  for (const bool measured : {true, false}) {
    EXPECT_GT(std::ranges::count_if(
                  page.lines, [&](const PaperLine& line) { return on_circle(line, measured); }),
              20);
  }
}

TEST_F(ProjectionPageTest, LeavesOutPointsThatAreNowhere) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  openEvent({point_at(nan, 0, 0, 3), point_at(0, nan, 0, 3), point_at(infinity, 0, 0, 3),
             point_at(0, -infinity, 0, 3), point_at(1e300, 0, 0, 3), point_at(0, 1e18, 0, 3),
             point_at(100, 50, -20, 3)});
  const PdfPage page = print();
  EXPECT_EQ(page.operators.find("nan"), std::string::npos);
  EXPECT_EQ(page.operators.find("inf"), std::string::npos);
  expect_squares(page, {on_paper({}, 50, -100, projection().height(), a4)});
}

TEST_F(ProjectionPageTest, DoesNotFollowTheScrollBars) {
  openEvent({point_at(100, 50, -20, 3)});
  projectorWindow().resize(projectorWindow().width(), 320);
  auto* const bar = projectorWindow().area()->verticalScrollBar();
  ASSERT_TRUE(wait_until([bar] { return bar->maximum() > 50; }));
  bar->setValue(25);
  // The document keeps its height when the window shows less of it.
  constexpr double document_height = 420.0;
  expect_squares(print(), {on_paper({}, 50, -100, document_height, a4)});
}

TEST_F(ProjectionPageTest, IsTheSameFromAnEnlargedWindow) {
  openEvent(spiral(50));
  clickButton("tape_tool");
  drag(projection(), {100, 150}, {250, 210});
  const PdfPage before = print();
  projectorWindow().resize(projectorWindow().width() + 100, projectorWindow().height() + 300);
  ASSERT_TRUE(wait_until([&] { return projection().height() > 650; }));
  const PdfPage after = print();
  ASSERT_EQ(after.rectangles.size(), before.rectangles.size());
  EXPECT_EQ(after.operators, before.operators);
}

TEST_F(ProjectionPageTest, IsTheSameWhenPrintedAgain) {
  openEvent(spiral(200));
  const PdfPage first = print();
  const PdfPage second = print();
  ASSERT_EQ(first.rectangles.size(), second.rectangles.size());
  for (std::size_t i = 0; i < first.rectangles.size(); ++i) {
    EXPECT_EQ(first.rectangles[i].area, second.rectangles[i].area);
  }
}

TEST_F(ProjectionPageTest, LeavesItsHeaderFreeAtEveryZoom) {
  // At zoom 2 the last two would be printed beside the title, and above the page at zoom 3.
  openEvent({point_at(0, 0, 0, 3), point_at(-380, -50, 0, 4), point_at(-350, 0, 0, 4)});
  for (const char* const zoom : {"zoom_1", "zoom_2", "zoom_3"}) {
    SCOPED_TRACE(zoom);
    clickButton(zoom);
    const QImage page = printedPicture();
    EXPECT_EQ(ink_in(page, on_a4(350, 641, 150, 79)), 0);
    EXPECT_EQ(ink_in(page, on_a4(0, 662, 500, 12)), 0) << "between title and values";
    EXPECT_EQ(ink_in(page, on_a4(0, 690, 500, 8)), 0) << "between date and title";
    EXPECT_GT(ink_in(page, on_a4(0, 640, 350, 80)), 500) << "the header";
    EXPECT_GT(ink_in(page, on_a4(20, 100, 480, 538)), 1000) << "the picture";
  }
}

TEST_F(ProjectionPageTest, ReachesUpToItsHeader) {
  openEvent({point_at(0, 0, 0, 3)});
  clickButton("zoom_2");
  // The frame's left side.
  EXPECT_GT(ink_in(printedPicture(), on_a4(88, 638, 4, 2)), 0);
}

TEST_F(ProjectionPageTest, LeavesItsHeaderFreeWhereverThePictureWasDragged) {
  openEvent({point_at(0, 0, 0, 3)});
  clickButton("grab_tool");
  drag(projection(), {100, 400}, {100, 40});
  const QImage page = printedPicture();
  EXPECT_EQ(ink_in(page, on_a4(350, 641, 150, 79)), 0);
  EXPECT_EQ(ink_in(page, on_a4(0, 662, 500, 12)), 0);
}

TEST_F(ProjectionPageTest, LeavesItsHeaderFreeOfAPointFarOutsideTheChamber) {
  openEvent({point_at(0, 0, 0, 3), point_at(-716, 0, 0, 3)});
  const QImage page = printedPicture();
  EXPECT_EQ(ink_in(page, on_a4(0, 662, 500, 12)), 0);
}

TEST_F(ProjectionPageTest, LeavesItsHeaderFreeOfATapeThatEndsFarAboveTheView) {
  openEvent({point_at(0, 0, 0, 3)});
  drag(projection(), {420, 400}, {420, -250});
  ASSERT_TRUE(projection().tape_visible());
  const QImage page = printedPicture();
  EXPECT_EQ(ink_in(page, on_a4(350, 641, 150, 79)), 0);
  EXPECT_GT(ink_in(page, on_a4(436, 600, 8, 38)), 0) << "the tape up to the header";
}

TEST_F(ProjectionPageTest, HoldsNothingBeyondItsEdges) {
  openEvent({point_at(0, 0, 0, 3)});
  clickButton("grab_tool");
  drag(projection(), {100, 40}, {400, 410});
  const QImage page = printedPicture();
  EXPECT_EQ(ink_in(page, on_a4(-47, -61, 594, 60)), 0) << "below";
  EXPECT_EQ(ink_in(page, on_a4(501, -61, 46, 841)), 0) << "to the right";
  EXPECT_GT(ink_in(page, on_a4(100, 1, 399, 600)), 500);
}

TEST_F(ProjectionPageTest, IsLimitedByTheEdgesOfThePageAloneWhileThePictureIsInItsPlace) {
  openEvent(spiral(50));
  EXPECT_EQ(clips_of(print()), 1);
  clickButton("zoom_2");
  EXPECT_GT(clips_of(print()), 1);
}

TEST_F(ProjectionPageTest, HasLinesWithSquareEnds) {
  openEvent(spiral(3));
  EXPECT_EQ(line_styles_of(print()), (std::set<std::string>{"0 J", "0 j"}));
}

TEST_F(ProjectionPageTest, LeavesTheScreenAsItWas) {
  makeEvent(2);
  const Shown before = shown();
  print();
  EXPECT_EQ(differences(before, shown()), "");
}

}  // namespace

}  // namespace velquon::test
