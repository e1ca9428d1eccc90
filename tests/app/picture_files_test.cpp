// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of the views in files and on the clipboard.

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMimeData>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidgetItem>
#include <QXmlStreamReader>
#include <ctime>

#include "printing/picture_file.h"
#include "printing/picture_panel.h"
#include "record/measurement_columns.h"
#include "record/measurements_window.h"
#include "record/record_tree.h"
#include "record/record_window.h"
#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/sanitizers.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr int lambda_type = 5;

const PictureChoices plain_picture{.scale = 1, .values = false, .legend = false};

/// Chooses in the panel as a person does.
void choose_in(QWidget& panel, const PictureChoices& choices) {
  auto& scale = *panel.findChild<QSpinBox*>(QStringLiteral("picture_scale_box"));
  scale.selectAll();
  QTest::keyClicks(&scale, QString::number(choices.scale));
  for (const auto& [name, on] : {std::pair("picture_values_check", choices.values),
                                 std::pair("picture_legend_check", choices.legend)}) {
    auto& check = *panel.findChild<QCheckBox*>(QLatin1String(name));
    if (check.isEnabled() && check.isChecked() != on) {
      QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(8, check.height() / 2));
    }
  }
  if (auto* const formats = panel.findChild<QComboBox*>(QStringLiteral("picture_format_popup"))) {
    QTest::keyClick(formats, "PSP"[static_cast<int>(choices.format)]);
    formats->setCurrentIndex(static_cast<int>(choices.format));
  }
}

class PictureFilesTest : public DocumentsFixture {
 protected:
  void SetUp() override {
    DocumentsFixture::SetUp();
    showTracks();
  }
  /// An event of a file, with a point of each colour.
  void showTracks() {
    ASSERT_TRUE(
        documents().readAndDisplayFile(write(QStringLiteral("event.cwd"), event_file(spiral(60)))));
  }
  /// Saves a picture of a window's view by its shortcut and the panel.
  /// \return what the panel told of its size
  QString save(QWidget& window, const PictureChoices& choices, const QString& name) {
    activate(window);
    dialogs().answer = path(name);
    QString told;
    EXPECT_TRUE(with_dialogs(
        [&] {
          QTest::keyClick(window.windowHandle(), Qt::Key_S,
                          Qt::ControlModifier | Qt::ShiftModifier);
        },
        {{"velquon::PicturePanel", [&](QWidget& panel) {
            choose_in(panel, choices);
            told = panel.findChild<QLabel*>(QStringLiteral("picture_size_label"))->text();
            QTest::keyClick(&panel, Qt::Key_Return);
          }}}));
    return told;
  }
  QImage saved(QWidget& window, const PictureChoices& choices) {
    const QString name = QStringLiteral("picture.png");
    const QString told = save(window, choices, name);
    EXPECT_TRUE(dialogs().alerts.empty());
    const QImage file(path(name));
    QImage picture = file.convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(told, QStringLiteral("%1 × %2 pixels").arg(picture.width()).arg(picture.height()));
    return picture;
  }
  QImage copied(QWidget& window) {
    activate(window);
    QApplication::clipboard()->clear();
    QTest::keyClick(window.windowHandle(), Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->image();
  }
  /// Chooses all in a window's focus and copies it.
  /// \return the text on the clipboard
  static QString textCopiedIn(QWidget& window) {
    QApplication::clipboard()->clear();
    QTest::keyClick(window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(window.windowHandle(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasImage());
    return QApplication::clipboard()->text();
  }
  /// Lays a curve through three places.
  void layCurve() {
    clickButton("snap_button");
    clickButton("curve_tool");
    for (const QPoint place : {QPoint(150, 250), QPoint(250, 150), QPoint(350, 250)}) {
      QTest::mouseClick(&projection(), Qt::LeftButton, {}, place);
    }
  }
  QStringList files() {
    return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
};

double brightness(QRgb pixel) {
  return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) / 255.0;
}

/// Pixels that are lit in one picture and nowhere near in the other.
int strangers(const QImage& one, const QImage& other) {
  const auto brightest_near = [&](int x, int y) {
    double brightest = 0.0;
    for (const int dy : {-1, 0, 1}) {
      for (const int dx : {-1, 0, 1}) {
        brightest = std::max(
            brightest, other.valid(x + dx, y + dy) ? brightness(other.pixel(x + dx, y + dy)) : 0.0);
      }
    }
    return brightest;
  };
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      count += brightness(one.pixel(x, y)) > 0.5 && brightest_near(x, y) < 0.2 ? 1 : 0;
    }
  }
  return count;
}

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
  EXPECT_EQ(strangers(plain, scaled), 0);
  EXPECT_EQ(strangers(scaled, plain), 0);
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

TEST_F(PictureFilesTest, ACopyIsThePictureOnTheScreenWithoutTheCrossOfTheKeys) {
  EXPECT_EQ(copied(chamberWindow()), picture_of(chamber()));
  chamber().set_show_values(false);
  EXPECT_EQ(copied(chamberWindow()), picture_of(chamber()));
  const QImage without_cross = picture_of(projection());
  activate(projectorWindow());
  projection().setFocus();
  QTest::keyClick(&projection(), Qt::Key_Left);
  ASSERT_FALSE(pixels_of(picture_of(projection()), yellow).empty());
  EXPECT_EQ(copied(projectorWindow()), without_cross);
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

TEST_F(PictureFilesTest, WhatCannotBeWrittenIsToldAndLeavesNoHalfFile) {
  const QString old = write(QStringLiteral("picture.png"), "old");
  const QStringList before = files();
  {
    const velquon::test::FileSizeLimit limit(1000);
    save(chamberWindow(), plain_picture, QStringLiteral("picture.png"));
  }
  save(chamberWindow(), plain_picture, QStringLiteral("missing/picture.png"));
  const auto not_saved = [](const QString& file, const char* reason) {
    return RecordingDialogs::Alert{
        QStringLiteral("Not saved"),
        QStringLiteral("Velquon can't write the file %1: %2.").arg(file, QLatin1String(reason))};
  };
  EXPECT_EQ(dialogs().alerts, (std::vector{not_saved(old, "File too large"),
                                           not_saved(path(QStringLiteral("missing/picture.png")),
                                                     "No such file or directory")}));
  EXPECT_EQ(read(old), "old");
  EXPECT_EQ(files(), before);
}

TEST_F(PictureFilesTest, NothingIsWrittenWhenOneGivesUp) {
  const QStringList before = files();
  save(chamberWindow(), plain_picture, {});
  dialogs().answer = path(QStringLiteral("picture.png"));
  dialogs().questions.clear();
  EXPECT_TRUE(with_dialogs([&] { choose("save_picture_item"); },
                           {{"velquon::PicturePanel",
                             [](QWidget& panel) { QTest::keyClick(&panel, Qt::Key_Escape); }}}));
  EXPECT_TRUE(dialogs().questions.empty());
  EXPECT_EQ(files(), before);
}

TEST_F(PictureFilesTest, AsksForAFileOfTheChosenFormatNamedAfterTheEvent) {
  save(projectorWindow(), {.format = PictureFormat::svg}, QStringLiteral("a.svg"));
  save(chamberWindow(), plain_picture, QStringLiteral("a.png"));
  const RecordingDialogs::Question drawing{
      QStringLiteral("Save Picture"), QStringLiteral("SVG files (*.svg)"),
      QStringLiteral("event Projector"), QStringLiteral("svg")};
  const RecordingDialogs::Question picture{QStringLiteral("Save Picture"),
                                           QStringLiteral("PNG files (*.png)"),
                                           QStringLiteral("event Chamber"), QStringLiteral("png")};
  EXPECT_EQ(dialogs().questions, (std::vector{drawing, picture}));
}

TEST_F(PictureFilesTest, CanBeChosenWhileAViewIsInFront) {
  const auto can_be_chosen = [this] {
    return item("save_picture_item").isEnabled() && item("copy_picture_item").isEnabled();
  };
  EXPECT_TRUE(can_be_chosen());
  choose("activate_item");
  ASSERT_TRUE(wait_until([&] { return !can_be_chosen(); }));
  EXPECT_FALSE(item("save_picture_item").isEnabled());
  EXPECT_FALSE(item("copy_picture_item").isEnabled());
}

TEST_F(PictureFilesTest, CtrlCInATextFieldCopiesItsText) {
  activate(chamberWindow());
  QTest::mouseDClick(&control<QWidget>("magfield_text"), Qt::LeftButton);
  ASSERT_TRUE(wait_until([] {
    return QApplication::focusWidget() != nullptr &&
           QApplication::focusWidget()->inherits("QAbstractSpinBox");
  }));
  EXPECT_EQ(textCopiedIn(chamberWindow()), QStringLiteral("2"));
}

TEST_F(PictureFilesTest, CtrlCInATableOrInTheGuideCopiesItsText) {
  makeEvent(lambda_type);
  choose("event_record_item");
  RecordWindow& record = application().recordWindow();
  ASSERT_TRUE(wait_until([&] { return record.isActiveWindow(); }));
  record.tree().setFocus();
  record.tree().setCurrentItem(record.tree().topLevelItem(0));
  EXPECT_EQ(textCopiedIn(record), record.tree().topLevelItem(0)->text(0));
  Measurement row;
  row.value = 12.5;
  application().measurements().add({row});
  choose("measurements_item");
  MeasurementsWindow& measured = application().measurementsWindow();
  ASSERT_TRUE(wait_until([&] { return measured.isActiveWindow(); }));
  QTableView& table = measured.table();
  table.setFocus();
  table.selectAll();
  table.setCurrentIndex(table.model()->index(0, static_cast<int>(MeasurementColumn::value)));
  EXPECT_TRUE(textCopiedIn(measured).contains(QStringLiteral("12.5")));
  choose("guide_item");
  ASSERT_TRUE(wait_until(
      [] { return qobject_cast<QTextBrowser*>(QApplication::focusWidget()) != nullptr; }));
  EXPECT_TRUE(textCopiedIn(*QApplication::activeWindow()).contains(QStringLiteral("Velquon")));
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
