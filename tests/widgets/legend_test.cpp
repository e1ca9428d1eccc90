// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/legend.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QtMath>

#include "widgets/contrast.h"
#include "widgets/legend_strip.h"

namespace velquon::test {

namespace {

LegendStyle style_of(int pixels, const QColor& text = Qt::black) {
  LegendStyle style;
  style.font.setPixelSize(pixels);
  style.text = text;
  return style;
}

const std::vector<LegendLine>& two_lines() {
  static const std::vector<LegendLine> lines{
      {.color = QColor(255, 0, 0), .symbol = QStringLiteral("π⁻"), .name = QStringLiteral("Pion")},
      {.color = QColor(255, 255, 51),
       .symbol = QStringLiteral("μ⁻"),
       .name = QStringLiteral("Muon")}};
  return lines;
}

QImage painted(const std::vector<LegendLine>& lines, const LegendStyle& style, QSizeF size,
               const QColor& ground) {
  QImage image(size.toSize() + QSize(2, 2), QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  paint_legend(painter, QRectF(QPointF(0, 0), size), lines, style);
  return image;
}

int count_of(const QImage& image, const QColor& color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y) == color ? 1 : 0;
    }
  }
  return count;
}

}  // namespace

TEST(LegendPaintingTest, EachColourIsOnBlackInAFrame) {
  const auto& lines = two_lines();
  const LegendStyle style = style_of(20, QColor(0x202020));
  const QImage image = painted(lines, style, legend_size(lines, style, 1000.0), Qt::white);
  EXPECT_GT(count_of(image, *lines[0].color), 50);
  EXPECT_GT(count_of(image, *lines[1].color), 50);
  EXPECT_GT(count_of(image, Qt::black), 100);
  EXPECT_GT(count_of(image, style.text), 100);
}

TEST(LegendPaintingTest, WithoutColoursThereAreNoChips) {
  std::vector<LegendLine> lines = two_lines();
  const LegendStyle style = style_of(20, Qt::black);
  const qreal with_chips = legend_size(lines, style, 1000.0).width();
  for (LegendLine& line : lines) {
    line.color.reset();
  }
  EXPECT_LT(legend_size(lines, style, 1000.0).width(), with_chips - 20.0);
  const QImage image = painted(lines, style, legend_size(lines, style, 1000.0), Qt::white);
  EXPECT_EQ(count_of(image, QColor(255, 0, 0)), 0);
}

TEST(LegendPaintingTest, LinesThatFindNoRoomBesideOthersGoBelow) {
  const auto& lines = two_lines();
  const LegendStyle style = style_of(20);
  const QSizeF side_by_side = legend_size(lines, style, 1000.0);
  const QSizeF stacked = legend_size(lines, style, side_by_side.width() - 1.0);
  EXPECT_DOUBLE_EQ(stacked.height(), 2.0 * side_by_side.height());
  EXPECT_LT(stacked.width(), side_by_side.width());
}

TEST(LegendPaintingTest, ItGrowsWithItsLetters) {
  const auto& lines = two_lines();
  const QSizeF once = legend_size(lines, style_of(20), 1e6);
  const QSizeF thrice = legend_size(lines, style_of(60), 1e6);
  EXPECT_NEAR(thrice.width() / once.width(), 3.0, 0.15);
  EXPECT_NEAR(thrice.height() / once.height(), 3.0, 0.15);
}

TEST(LegendPaintingTest, WhereThereIsNoRoomForNamesTheSymbolsRemain) {
  const auto& lines = two_lines();
  const LegendStyle style = style_of(20);
  const QSizeF whole = legend_size(lines, style, 1000.0);
  const QSizeF narrow(whole.width() * 0.7, whole.height());
  const QImage image = painted(lines, style, narrow, Qt::white);
  EXPECT_GT(count_of(image, *lines[1].color), 50);
  std::vector<LegendLine> without_names = lines;
  for (LegendLine& line : without_names) {
    line.name.clear();
  }
  EXPECT_EQ(image, painted(without_names, style, narrow, Qt::white));
}

TEST(LegendPaintingTest, ALineThatIsTooWideAloneLosesItsName) {
  const std::vector<LegendLine> line{two_lines().front()};
  const LegendStyle style = style_of(20);
  const QSizeF whole = legend_size(line, style, 1000.0);
  const QSizeF narrow(whole.width() * 0.8, whole.height());
  std::vector<LegendLine> without_name = line;
  without_name.front().name.clear();
  EXPECT_EQ(painted(line, style, narrow, Qt::white),
            painted(without_name, style, narrow, Qt::white));
}

TEST(LegendStripTest, ItHasRoomForTheNamesOfTheLinesItIsMadeForAtAnyWidth) {
  LegendStrip strip;
  const LegendStyle style{.font = strip.font(), .text = Qt::black};
  const int widest = qCeil(legend_size(two_lines(), style, 1000.0).width());
  for (int width = widest - 10; width < widest + 40; ++width) {
    strip.setRoomFor(two_lines(), width);
    strip.setLegend(two_lines(), QString());
    strip.resize(strip.sizeHint());
    const QImage with_names = strip.grab().toImage();
    std::vector<LegendLine> without_names = two_lines();
    for (LegendLine& line : without_names) {
      line.name.clear();
    }
    strip.setLegend(without_names, QString());
    EXPECT_NE(strip.grab().toImage(), with_names) << width;
  }
}

TEST(LegendPaintingTest, NoLinesTakeNoRoom) {
  EXPECT_EQ(legend_size({}, style_of(20), 100.0), QSizeF(0.0, 0.0));
}

}  // namespace velquon::test
