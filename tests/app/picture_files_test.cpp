// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of the views in files.

#include <QTest>
#include <QXmlStreamReader>
#include <ctime>

#include "printing/picture_file.h"
#include "tests/app/picture_files_fixture.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/sanitizers.h"
#include "tests/support/type_places.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/light.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class PictureFilesTest : public PictureFilesFixture {
 protected:
  /// Lays a curve through three places.
  void layCurve() {
    clickButton("snap_button");
    clickButton("curve_tool");
    for (const QPoint place : {QPoint(150, 250), QPoint(250, 150), QPoint(350, 250)}) {
      QTest::mouseClick(&projection(), Qt::LeftButton, {}, place);
    }
  }
};

double light_of(const QImage& picture) {
  double light = 0.0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      light += brightness(picture.pixel(x, y));
    }
  }
  return light;
}

void expect_same_scaled_down(const QImage& plain, const QImage& large) {
  ASSERT_EQ(large.size(), plain.size() * 4);
  const QImage scaled = large.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  EXPECT_EQ(strangers(plain, scaled, 0.2), 0);
  EXPECT_EQ(strangers(scaled, plain, 0.2), 0);
  EXPECT_NEAR(light_of(scaled), light_of(plain), 0.05 * light_of(plain));
}

/// The smallest rectangle that holds what is lit.
QRect lit_area(const QImage& picture) {
  QRect area;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (brightness(picture.pixel(x, y)) > 0.5) {
        area |= QRect(x, y, 1, 1);
      }
    }
  }
  return area;
}

struct SvgFile {
  QString title;
  int height = 0;   ///< view units
  int squares = 0;  ///< rectangles of one by one
  int images = 0;
  QStringList texts;
};

SvgFile read_svg(const QByteArray& bytes) {
  SvgFile file;
  QXmlStreamReader reader(bytes);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) {
      continue;
    }
    const QXmlStreamAttributes attributes = reader.attributes();
    if (reader.name() == QLatin1String("svg")) {
      file.height = attributes.value(QLatin1String("viewBox")).split(u' ').value(3).toInt();
    } else if (reader.name() == QLatin1String("title")) {
      file.title = reader.readElementText();
    } else if (reader.name() == QLatin1String("text")) {
      file.texts << reader.readElementText().trimmed();
    } else if (reader.name() == QLatin1String("image")) {
      ++file.images;
    } else if (reader.name() == QLatin1String("rect") &&
               attributes.value(QLatin1String("width")) == QLatin1String("1")) {
      ++file.squares;
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return file;
}

}  // namespace

TEST_F(PictureFilesTest, AtOnceItsSizeAPictureIsThatOfTheScreen) {
  drag(chamber(), {300, 250}, {350, 220});
  const PictureChoices choices{.scale = 1, .values = true, .legend = false};
  EXPECT_EQ(saved(chamberWindow(), choices), picture_of(chamber()));
  layCurve();
  EXPECT_EQ(saved(projectorWindow(), plain_picture), picture_of(projection()));
}

TEST_F(PictureFilesTest, AtFourTimesItsSizeAPictureIsTheSameAndFiner) {
  layCurve();
  for (QMainWindow* const window :
       std::initializer_list<QMainWindow*>{&chamberWindow(), &projectorWindow()}) {
    SCOPED_TRACE(window->windowTitle().toStdString());
    expect_same_scaled_down(saved(*window, plain_picture),
                            saved(*window, {.scale = 4, .values = false, .legend = false}));
  }
}

TEST_F(PictureFilesTest, TheValuesAreWhereTheScreenHasThemInLettersOfTheSize) {
  constexpr int scale = 4;
  const auto line_of = [&](int times, bool values) {
    const QImage picture =
        saved(chamberWindow(), {.scale = times, .values = values, .legend = false});
    return lit_area(picture.copy(0, 0, picture.width(), 30 * times));
  };
  const QRect plain = line_of(1, true);
  const QRect large = line_of(scale, true);
  ASSERT_GT(plain.width(), 150);
  EXPECT_NEAR(large.left(), scale * plain.left(), 2 * scale);
  EXPECT_NEAR(large.right(), scale * plain.right(), 2 * scale);
  EXPECT_NEAR(large.bottom(), scale * plain.bottom(), 2 * scale);
  EXPECT_NEAR(large.height(), scale * plain.height(), 2 * scale);
  EXPECT_TRUE(line_of(1, false).isNull());
  EXPECT_TRUE(line_of(scale, false).isNull());
}

TEST_F(PictureFilesTest, TheCaptionStandsBelowThePicture) {
  const QImage plain = saved(projectorWindow(), plain_picture);
  const QImage values = saved(projectorWindow(), {.scale = 1, .values = true, .legend = false});
  EXPECT_EQ(values.copy(plain.rect()), plain);
  EXPECT_GT(values.height(), plain.height());
  EXPECT_EQ(values.pixel(0, plain.height()), white);
  const QImage chamber_alone = saved(chamberWindow(), plain_picture);
  const QImage legend = saved(chamberWindow(), {.scale = 1, .values = false, .legend = true});
  EXPECT_EQ(legend.copy(chamber_alone.rect()), chamber_alone);
  const QRect below(0, chamber_alone.height(), legend.width(),
                    legend.height() - chamber_alone.height());
  for (std::int16_t code = 3; code <= 7; ++code) {
    EXPECT_FALSE(pixels_of(legend.copy(below), color_of_code(code)).empty()) << code;
  }
}

TEST_F(PictureFilesTest, ATurnedChamberIsSavedAsItStands) {
  const QImage before = saved(chamberWindow(), plain_picture);
  drag(chamber(), {300, 250}, {350, 220});
  const QImage turned = saved(chamberWindow(), plain_picture);
  EXPECT_NE(turned, before);
  choose("reset_orientation_item");
  EXPECT_EQ(saved(chamberWindow(), plain_picture), before);
}

TEST_F(PictureFilesTest, APartlySeenPictureIsSavedWhole) {
  const QImage whole = saved(projectorWindow(), plain_picture);
  projectorWindow().resize(300, 300);
  ASSERT_TRUE(wait_until([&] { return projection().height() < 300; }));
  EXPECT_EQ(saved(projectorWindow(), plain_picture), whole);
}

TEST_F(PictureFilesTest, ThePngTellsOfTheEventAndOfItsSizeOnPaper) {
  makeEvent(lambda_type);
  const QImage picture = saved(chamberWindow(), {.scale = 4, .values = false, .legend = false});
  EXPECT_EQ(picture.text(QStringLiteral("Title")), chamberWindow().windowTitle());
  EXPECT_EQ(picture.text(QStringLiteral("Description")),
            QString::fromStdString(chamber().values_text()));
  EXPECT_EQ(picture.text(QStringLiteral("Event")), QStringLiteral("Untitled Type 6 Decay 2"));
  EXPECT_EQ(picture.text(QStringLiteral("Seed")), QString::number(fixture_seed));
  // 4 dots where a screen of 96 dots an inch has one.
  EXPECT_NEAR(picture.dotsPerMeterX(), 4.0 * 96.0 / 0.0254, 1.0);
  EXPECT_EQ(picture.dotsPerMeterX(), picture.dotsPerMeterY());
  showTracks();
  EXPECT_FALSE(saved(chamberWindow(), plain_picture).textKeys().contains(QStringLiteral("Seed")));
}

TEST_F(PictureFilesTest, ThePngDoesNotGiveAwayHiddenAnswersByTheSeed) {
  makeEvent(lambda_type);
  ChamberModel& model = application().model();
  ChamberPreferences preferences = model.preferences();
  preferences.hide_answers = true;
  model.setPreferences(preferences);
  const QImage hidden = saved(chamberWindow(), plain_picture);
  EXPECT_FALSE(hidden.textKeys().contains(QStringLiteral("Seed")));
  model.revealAnswers();
  const QImage revealed = saved(chamberWindow(), plain_picture);
  EXPECT_TRUE(revealed.textKeys().contains(QStringLiteral("Seed")));
}

TEST_F(PictureFilesTest, TheSvgIsTheProjectionInLines) {
  clickButton("tape_tool");
  drag(projection(), {100, 150}, {250, 210});
  const QString told = save(
      projectorWindow(), {.scale = 2, .values = true, .legend = true, .format = PictureFormat::svg},
      QStringLiteral("picture.svg"));
  const SvgFile svg = read_svg(read(path(QStringLiteral("picture.svg"))));
  EXPECT_EQ(told, QStringLiteral("%1 × %2 points").arg(2 * 470).arg(2 * svg.height));
  EXPECT_GT(svg.height, 420 + 54 + 30) << "with the caption";
  EXPECT_EQ(svg.title, projectorWindow().windowTitle());
  EXPECT_EQ(svg.squares, 60);
  EXPECT_EQ(svg.images, 0);
  EXPECT_TRUE(svg.texts.contains(QStringLiteral("xy plane, zoom 1, tape D = 161.55 cm")))
      << svg.texts.join(u'|').toStdString();
  EXPECT_TRUE(svg.texts.contains(QString::fromStdString(chamber().values_text())));
}

TEST_F(PictureFilesTest, ThePdfIsThePageOfTheProjectorAtItsSize) {
  layCurve();
  EXPECT_EQ(save(projectorWindow(),
                 {.scale = 3, .values = false, .legend = false, .format = PictureFormat::pdf},
                 QStringLiteral("picture.pdf")),
            QStringLiteral("1410 × 1422 points"));
  const PdfPage page = read_pdf(read(path(QStringLiteral("picture.pdf"))));
  EXPECT_NEAR(page.paper.width(), 3 * 470, 0.5);
  EXPECT_NEAR(page.paper.height(), 3 * (420 + 54), 0.5);
  const auto is_square = [](const PaperFill& fill) {
    return std::fabs(fill.area.width() - 3.0) < 0.01 && std::fabs(fill.area.height() - 3.0) < 0.01;
  };
  EXPECT_EQ(std::ranges::count_if(page.rectangles, is_square), 60);
  // The frame, the circle with its chord and the arc in many pieces, three marks, the scale bar.
  EXPECT_GT(page.lines.size(), 4U + 1U + 40U + 12U + 3U);
  EXPECT_EQ(title_of_pdf(path(QStringLiteral("picture.pdf"))), projectorWindow().windowTitle());
}

TEST_F(PictureFilesTest, ADrawingEndsAtItsPictureWhateverTheZoom) {
  // At zoom 3 the second is 20 units below the picture.
  const std::array points{point_at(0.0, -203.0, 0.0, 3), point_at(153.3, -203.0, 0.0, 3)};
  showEvent(points);
  clickButton("zoom_3");
  save(projectorWindow(),
       {.scale = 1, .values = false, .legend = false, .format = PictureFormat::pdf},
       QStringLiteral("picture.pdf"));
  const QImage page = picture_of_pdf(path(QStringLiteral("picture.pdf")));
  constexpr double foot = 54.0;
  EXPECT_GT(ink_in(page, QRectF(395.0, foot, 10.0, 420.0)), 0) << "the first point";
  EXPECT_EQ(ink_in(page, QRectF(395.0, 0.0, 10.0, foot)), 0) << "the second";
  EXPECT_GT(ink_in(page, QRectF(0.0, 0.0, 300.0, foot)), 100) << "the words";
}

#if !VELQUON_ADDRESS_SANITIZER
TEST_F(PictureFilesTest, EightTimesTheSizeTakesTwoSecondsOfTheProcessorAtMost) {
  const auto seconds = [] { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; };
  // Without the panel, whose window takes its time.
  for (const bool is_chamber : {true, false}) {
    const double before = seconds();
    const auto picture = is_chamber ? chamber().picture(8.0, true) : projection().picture(8.0);
    ASSERT_TRUE(picture);
    const auto file = png_file(with_caption(*picture, 8.0, {}).value_or(QImage()), 8.0, {});
    ASSERT_TRUE(file);
    EXPECT_LT(seconds() - before, 2.0);
  }
}
#endif

}  // namespace velquon::test
