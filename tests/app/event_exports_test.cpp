// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files of the shown event for other programs, compared with what the command line writes.

#include <HepMC3/GenEvent.h>
#include <HepMC3/GenParticle.h>
#include <HepMC3/GenRunInfo.h>
#include <HepMC3/ReaderAscii.h>

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QTest>
#include <memory>

#include "app/desktop_dialogs.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/record_window_fixture.h"
#include "tests/support/file_size_limit.h"

namespace velquon::test {

namespace {

/// What the command-line tool writes of the first event of the program's seed.
QByteArray from_tool(const QString& format, const QStringList& arguments) {
  QProcess tool;
  tool.start(QStringLiteral(EVENT_TOOL),
             QStringList{QStringLiteral("--seed"), QString::number(fixture_seed),
                         QStringLiteral("--format"), format} +
                 arguments);
  EXPECT_TRUE(tool.waitForFinished());
  EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
  return tool.readAllStandardOutput();
}

struct ToolCase {
  const char* name;
  int type;
  const char* arguments;
  ChamberValues values;
};

const std::vector<ToolCase> tool_cases{
    {"PionAtStartUp", negative_pion, "--type pi-", {}},
    {"Pizero",
     neutral_pion,
     "--type pi0 --field 2 --side 400 --energy 30",
     {.B_field = 2.0F, .sides_cm = 400.0F, .kinetic_Mev = 30.0F}},
    {"Lambda",
     lambda_type,
     "--type lambda --field 1.5 --side 300 --energy 100",
     {.B_field = 1.5F, .sides_cm = 300.0F, .kinetic_Mev = 100.0F}}};

class EventExportsTest : public RecordWindowFixture {
 protected:
  /// Chooses an export and answers with a name.
  /// \return what is in the file then
  QByteArray exported(const char* item_name, const QString& name) {
    dialogs().answer = path(name);
    choose(item_name);
    return read(path(name));
  }
  QStringList filesInFolder() {
    return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
};

class ExportBytesTest : public EventExportsTest, public ::testing::WithParamInterface<ToolCase> {
 protected:
  void SetUp() override {
    EventExportsTest::SetUp();
    newEvent(GetParam().type, GetParam().values);
  }
  [[nodiscard]] static QByteArray fromTool(const char* format) {
    return from_tool(QLatin1String(format),
                     QString::fromLatin1(GetParam().arguments).split(QLatin1Char(' ')));
  }
};

TEST_P(ExportBytesTest, PointsAreThoseOfTheCommandLine) {
  const QByteArray table = exported("export_points_item", QStringLiteral("points.csv"));
  EXPECT_EQ(table, fromTool("csv"));
  EXPECT_GT(table.count('\n'), 3);
}

TEST_P(ExportBytesTest, TheTableOfParticlesIsThatOfTheCommandLine) {
  const QByteArray table = exported("export_record_item", QStringLiteral("record.csv"));
  EXPECT_EQ(table, fromTool("particles"));
  EXPECT_GT(table.count('\n'), 1);
}

TEST_P(ExportBytesTest, TheHepmc3RecordIsThatOfTheCommandLine) {
  EXPECT_EQ(exported("export_record_item", QStringLiteral("record.hepmc3")), fromTool("hepmc3"));
}

INSTANTIATE_TEST_SUITE_P(Events, ExportBytesTest, ::testing::ValuesIn(tool_cases),
                         [](const auto& tested) { return tested.param.name; });

/// Dialogs as the program shows them, with a user at the keys.
class ExportDialogsTest : public EventExportsTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(chosen_folder_.isValid());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    EventExportsTest::SetUp();
  }
  /// What the user gets who chooses a kind of files, types a name and presses Return.
  QString saved(const QString& kind, const QString& name) {
    QString result;
    DesktopDialogs desktop_dialogs;
    EXPECT_TRUE(with_dialogs(
        [&] {
          result = desktop_dialogs.fileToSave(
              QStringLiteral("Export Record"), QStringLiteral("event"),
              QStringLiteral("Tables (*.csv);;HepMC3 records (*.hepmc3)"), QStringLiteral("csv"));
        },
        {{"QFileDialog", [&](QWidget& dialog) {
            auto& kinds = *dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
            kinds.setFocus();
            QTest::keyClicks(&kinds, kind);
            auto& edit = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit.setText(name.isEmpty() ? chosen_folder_.filePath(edit.text())
                                        : chosen_folder_.filePath(name));
            QTest::keyClick(&edit, Qt::Key_Return);
          }}}));
    return QDir(chosen_folder_.path()).relativeFilePath(result);
  }

 private:
  QTemporaryDir chosen_folder_;
};

TEST_F(ExportDialogsTest, TheNameGetsTheEndingOfTheChosenKindUnlessItHasOne) {
  EXPECT_EQ(saved(QStringLiteral("Tables"), QStringLiteral("a")), QStringLiteral("a.csv"));
  EXPECT_EQ(saved(QStringLiteral("HepMC3"), QStringLiteral("a")), QStringLiteral("a.hepmc3"));
  EXPECT_EQ(saved(QStringLiteral("Tables"), QStringLiteral("a.hepmc3")),
            QStringLiteral("a.hepmc3"));
  EXPECT_EQ(saved(QStringLiteral("HepMC3"), QStringLiteral("a.CSV")), QStringLiteral("a.csv"));
  EXPECT_EQ(saved(QStringLiteral("HepMC3"), QStringLiteral("a.txt")),
            QStringLiteral("a.txt.hepmc3"));
}

TEST_F(ExportDialogsTest, TheSuggestedNameFollowsTheChosenKind) {
  EXPECT_EQ(saved(QStringLiteral("Tables"), {}), QStringLiteral("event.csv"));
  EXPECT_EQ(saved(QStringLiteral("HepMC3"), {}), QStringLiteral("event.hepmc3"));
}

}  // namespace

TEST_F(EventExportsTest, Hepmc3sOwnReaderReadsTheRecord) {
  newEvent(negative_pion, lively);
  exported("export_record_item", QStringLiteral("record.hepmc3"));
  HepMC3::ReaderAscii reader(path(QStringLiteral("record.hepmc3")).toStdString());
  HepMC3::GenEvent event;
  ASSERT_TRUE(reader.read_event(event));
  ASSERT_FALSE(reader.failed());
  const auto rows = model().shown()->tracks->record->particles();
  ASSERT_EQ(event.particles().size(), rows.size());
  EXPECT_EQ(event.particles().front()->pid(), -211);
  EXPECT_NEAR(event.particles().front()->momentum().e(), 179.6, 1e-4);
  EXPECT_EQ(reader.run_info()->attribute_as_string("field_kG"), "2");
  EXPECT_EQ(reader.run_info()->attribute_as_string("energy_MeV"), "40");
  EXPECT_EQ(reader.run_info()->attribute_as_string("seed"), std::to_string(fixture_seed));
  reader.read_event(event);
  EXPECT_TRUE(reader.failed());
}

TEST_F(EventExportsTest, AsksForNamesAsTheEventIsCalled) {
  newEvent(negative_pion, lively);
  dialogs().answer.clear();
  choose("export_points_item");
  choose("export_record_item");
  const RecordingDialogs::Question points{
      QStringLiteral("Export Points"), QStringLiteral("Tables of points (*.csv)"),
      QStringLiteral("Untitled Type 1 Decay"), QStringLiteral("csv")};
  const RecordingDialogs::Question record{
      QStringLiteral("Export Record"),
      QStringLiteral("Tables of particles (*.csv);;HepMC3 records (*.hepmc3)"),
      QStringLiteral("Untitled Type 1 Decay"), QStringLiteral("csv")};
  EXPECT_EQ(dialogs().questions, (std::vector{points, record}));
  EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(EventExportsTest, ChangesNothingOfWhatIsShown) {
  newEvent(negative_pion, lively);
  const Shown before = shown();
  exported("export_points_item", QStringLiteral("a.csv"));
  exported("export_record_item", QStringLiteral("b.csv"));
  EXPECT_EQ(differences(before, shown()), "");
}

TEST_F(EventExportsTest, TellsTheValuesUnderWhichTheTracksWereMade) {
  newEvent(negative_pion, lively);
  const QByteArray before = exported("export_record_item", QStringLiteral("a.hepmc3"));
  model().setNext({.B_field = 9.0F, .sides_cm = 100.0F, .kinetic_Mev = 1.0F});
  model().showNextValues();
  EXPECT_EQ(exported("export_record_item", QStringLiteral("b.hepmc3")), before);
}

TEST_F(EventExportsTest, CanBeChosenWhereThereIsSomethingToWrite) {
  const auto can_be_chosen = [this] {
    return std::pair(item("export_points_item").isEnabled(),
                     item("export_record_item").isEnabled());
  };
  EXPECT_EQ(can_be_chosen(), std::pair(false, false));
  newEvent(negative_pion, lively);
  EXPECT_EQ(can_be_chosen(), std::pair(true, true));
  ASSERT_TRUE(
      documents().readAndDisplayFile(write(QStringLiteral("a.cwd"), event_file(spiral(3)))));
  EXPECT_EQ(can_be_chosen(), std::pair(true, false));
  // A Lambda that is so fast that it leaves before it decays, unseen.
  newEventUntil(lambda_type, {.B_field = 2.0F, .sides_cm = 50.0F, .kinetic_Mev = 100'000.0F},
                [](const ShownEvent& shown) { return shown.points().empty(); });
  EXPECT_EQ(can_be_chosen(), std::pair(false, true));
}

TEST_F(EventExportsTest, AFullDiskLeavesTheOldFilesAndIsTold) {
  newEvent(negative_pion, lively);
  struct Export {
    const char* item;
    const char* file;
  };
  for (const auto& [item_name, name] :
       {Export{"export_points_item", "a.csv"}, Export{"export_record_item", "b.csv"},
        Export{"export_record_item", "c.hepmc3"}}) {
    const QString file = write(QLatin1String(name), "old");
    dialogs().alerts.clear();
    {
      const velquon::test::FileSizeLimit limit(100);
      dialogs().answer = file;
      choose(item_name);
    }
    const RecordingDialogs::Alert told{
        QStringLiteral("Not saved"),
        QStringLiteral("Velquon can't write the file %1: File too large.").arg(file)};
    EXPECT_EQ(dialogs().alerts, std::vector{told});
    EXPECT_EQ(read(file), "old");
  }
  EXPECT_EQ(filesInFolder().size(), 3);
}

}  // namespace velquon::test
