// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAction>
#include <array>

#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/printing.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

class SaveEventTest : public DocumentsFixture {
 protected:
  /// Saves the shown event through the menu. \return the file's path
  QString save(const QString& name) {
    dialogs().answer = path(name);
    choose("save_item");
    return dialogs().answer;
  }
};

TEST_F(SaveEventTest, AsksForAnEventFileUnderTheShownName) {
  makeEvent(0);
  save(QStringLiteral("saved.cwd"));
  choose("save_item");
  const auto question = [](const QString& name) {
    return RecordingDialogs::Question{QStringLiteral("Save Event"),
                                      QStringLiteral("Event files (*.cwd)"), name,
                                      QStringLiteral("cwd")};
  };
  EXPECT_EQ(dialogs().questions, (std::vector{question(QStringLiteral("Untitled Type 1 Decay")),
                                              question(QStringLiteral("saved.cwd"))}));
}

TEST_F(SaveEventTest, WritesEveryByteOfTheLayout) {
  controller().model().setNext({.B_field = 2.0F, .sides_cm = 400.0F, .kinetic_Mev = 0.5F});
  controller().setCurrentChamberValues();
  PlotPoint second = point_at(-0.0, 1e-300, 400.0, -2);
  second.time = 3.0;
  controller().setChamberData(std::array{point_at(100.0, -50.0, 25.0, 3), second});
  const QByteArray expected =
      hex("50 0002"
          "4059000000000000 C049000000000000 4039000000000000 3FF0000000000000"
          "0000000000000000 0003 000000000000"
          "8000000000000000 01A56E1FC2F8F359 4079000000000000 3FF0000000000000"
          "4008000000000000 FFFE 000000000000"
          "4079000000000000 4000000000000000 0000000000000000 0000000000000000"
          "4000000000000000 0000000000000000 0000000000000000 0000000000000000 3FE0000000000000");
  EXPECT_EQ(read(save(QStringLiteral("two.cwd"))), expected);
}

TEST_F(SaveEventTest, TakesTheValuesOfTheEventNotOfTheControls) {
  makeEvent(3);
  controller().settings().setFieldControl(9.0F);
  controller().settings().setSidesControl(100.0F);
  controller().settings().setEnergyControl(77.0F);
  controller().settings().setNextChamberValues();
  const QByteArray trailer = read(save(QStringLiteral("a.cwd"))).right(72);
  EXPECT_EQ(trailer.mid(0, 8), hex("407F400000000000"));  // 500 cm
  EXPECT_EQ(trailer.mid(8, 8), big_endian(1.6));
  EXPECT_EQ(trailer.mid(32, 8), big_endian(static_cast<double>(0.6F)));
  EXPECT_EQ(trailer.mid(64, 8), big_endian(static_cast<double>(0.4F)));
}

TEST_F(SaveEventTest, HasFortyEightBytesAPointAndSeventyFiveMore) {
  for (const int count : {0, 1, 350, 5000}) {
    controller().setChamberData(spiral(count));
    EXPECT_EQ(read(save(QStringLiteral("a.cwd"))).size(), 48 * count + 75);
  }
}

TEST_F(SaveEventTest, NamesTheWindowsAfterTheFile) {
  makeEvent(0);
  save(QStringLiteral("Ring of λ & co.cwd"));
  EXPECT_EQ(chamberWindow().windowTitle(), QStringLiteral("Particle Chamber: Ring of λ & co.cwd"));
  EXPECT_EQ(projectorWindow().windowTitle(), QStringLiteral("Projector: Ring of λ & co.cwd"));
  EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(SaveEventTest, ChangesNothingElse) {
  makeEvent(1);
  Shown before = shown();
  save(QStringLiteral("a.cwd"));
  const Shown after = shown();
  before.titles = after.titles;
  EXPECT_EQ(differences(before, after), "");
}

TEST_F(SaveEventTest, CancelledWritesNothing) {
  makeEvent(1);
  const Shown before = shown();
  dialogs().answer.clear();
  choose("save_item");
  EXPECT_EQ(dialogs().questions.size(), 1U);
  EXPECT_TRUE(dialogs().alerts.empty());
  EXPECT_EQ(differences(before, shown()), "");
  EXPECT_TRUE(QDir(folder()).isEmpty());
}

TEST_F(SaveEventTest, ReplacesALongerFileWhole) {
  write(QStringLiteral("a.cwd"), QByteArray(100'000, 'x'));
  controller().setChamberData(spiral(1));
  EXPECT_EQ(read(save(QStringLiteral("a.cwd"))).size(), 123);
  EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(SaveEventTest, KeepsTheRightsOfTheFileItReplaces) {
  const QString file = write(QStringLiteral("a.cwd"), "old");
  const QFile::Permissions rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
  ASSERT_TRUE(QFile::setPermissions(file, rights));
  save(QStringLiteral("a.cwd"));
  EXPECT_EQ(QFile::permissions(file) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
            rights);
}

TEST_F(SaveEventTest, FollowsALinkToTheFileItNames) {
  const QString file = write(QStringLiteral("real.cwd"), "old");
  const QString link = path(QStringLiteral("link.cwd"));
  ASSERT_TRUE(QFile::link(file, link));
  controller().setChamberData(spiral(1));
  save(QStringLiteral("link.cwd"));
  EXPECT_EQ(QFile::symLinkTarget(link), file);
  EXPECT_EQ(read(file).size(), 123);
}

TEST_F(SaveEventTest, AnEventWithoutPointsIsSavedAndNotRead) {
  controller().setChamberData({});
  const QString file = save(QStringLiteral("a.cwd"));
  EXPECT_EQ(read(file).left(3), hex("500000"));
  EXPECT_FALSE(documents().readAndDisplayFile(file));
  EXPECT_EQ(dialogs().alerts, std::vector{bad_data});
}

/// An event type, 0 to 5.
class RoundTripTest : public SaveEventTest, public testing::WithParamInterface<int> {};

void expect_same_drawing(const PdfPage& left, const PdfPage& right) {
  ASSERT_EQ(left.rectangles.size(), right.rectangles.size());
  for (std::size_t i = 0; i < left.rectangles.size(); ++i) {
    EXPECT_EQ(left.rectangles[i].area, right.rectangles[i].area);
  }
  ASSERT_EQ(left.lines.size(), right.lines.size());
  for (std::size_t i = 0; i < left.lines.size(); ++i) {
    EXPECT_EQ(left.lines[i].from, right.lines[i].from);
    EXPECT_EQ(left.lines[i].to, right.lines[i].to);
  }
}

TEST_P(RoundTripTest, GivesTheSameEventValuesPictureAndPrint) {
  controller().settings().setFieldControl(1.7F);
  controller().settings().setSidesControl(250.0F);
  controller().settings().setEnergyControl(3.3F);
  makeEvent(GetParam());
  const QString file = save(QStringLiteral("event.cwd"));
  const Shown saved = shown();
  const QString pdf = path(QStringLiteral("page.pdf"));
  const PdfPage chamber_page = print_to_pdf(chamber(), chamber(), a4, pdf);
  const PdfPage projection_page = print_to_pdf(projection(), chamber(), a4, pdf);

  controller().settings().setFieldControl(0.2F);
  controller().settings().setSidesControl(900.0F);
  makeEvent((GetParam() + 1) % 6);
  ASSERT_NE(differences(saved, shown()), "");
  ASSERT_TRUE(documents().readAndDisplayFile(file));
  EXPECT_EQ(differences(saved, shown()), "");
  expect_same_drawing(print_to_pdf(chamber(), chamber(), a4, pdf), chamber_page);
  expect_same_drawing(print_to_pdf(projection(), chamber(), a4, pdf), projection_page);
  const QByteArray bytes = read(file);
  EXPECT_EQ(read(save(QStringLiteral("again.cwd"))), bytes);
}

INSTANTIATE_TEST_SUITE_P(Types, RoundTripTest, testing::Range(0, 6));

TEST_F(SaveEventTest, ValuesBeyondTheSlidersSurvive) {
  const FileSettings settings{.field_kG = -37.5, .side_cm = 5000.0, .energy_MeV = 25000.0};
  const QByteArray bytes = event_file(spiral(20), settings);
  ASSERT_TRUE(documents().readAndDisplayFile(write(QStringLiteral("a.cwd"), bytes)));
  EXPECT_EQ(read(save(QStringLiteral("b.cwd"))), bytes);
}

}  // namespace

}  // namespace velquon::test
