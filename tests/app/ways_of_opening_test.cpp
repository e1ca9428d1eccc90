// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <array>

#include "app/start_file.h"
#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"
#include "track/track_window.h"

namespace velquon::test {

namespace {

class WaysOfOpeningTest : public DocumentsFixture {
 protected:
  void SetUp() override {
    DocumentsFixture::SetUp();
    file_ = write(QStringLiteral("event.cwd"), event_file(spiral(7)));
  }

  [[nodiscard]] const QString& file() const { return file_; }

 private:
  QString file_;
};

RecordingDialogs::Question question(const QString& title, const QString& filter) {
  return {title, filter, {}, {}};
}

TEST_F(WaysOfOpeningTest, OpeningOffersEventFilesOnly) {
  dialogs().answer = file();
  choose("open_item");
  EXPECT_EQ(dialogs().questions, std::vector{question(QStringLiteral("Open Event"),
                                                      QStringLiteral("Event files (*.cwd)"))});
  EXPECT_EQ(chamber().point_number(), 7);
}

TEST_F(WaysOfOpeningTest, ImportingOffersTheNamesOfThePcEditionToo) {
  dialogs().answer = file();
  choose("import_item");
  EXPECT_EQ(dialogs().questions,
            std::vector{question(QStringLiteral("Import PC Event"),
                                 QStringLiteral("PC event files (*.cwd *.CWD *.txt *.TXT)"))});
  EXPECT_EQ(chamber().point_number(), 7);
}

TEST_F(WaysOfOpeningTest, TheFormatTagAloneDecides) {
  const QString pc = write(QStringLiteral("pc.cwd"), pc_file(spiral(9)));
  dialogs().answer = pc;
  choose("open_item");
  EXPECT_EQ(chamber().point_number(), 9);
  dialogs().answer = file();
  choose("import_item");
  EXPECT_EQ(chamber().point_number(), 7);
  EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(WaysOfOpeningTest, CancelledChangesNothing) {
  makeEvent(0);
  const Shown before = shown();
  for (const char* const name : {"open_item", "import_item"}) {
    choose(name);
  }
  EXPECT_EQ(dialogs().questions.size(), 2U);
  EXPECT_TRUE(dialogs().alerts.empty());
  EXPECT_EQ(differences(before, shown()), "");
}

TEST_F(WaysOfOpeningTest, AFileOfAnotherProgramIsRefusedWhicheverWay) {
  dialogs().answer = write(QStringLiteral("letter.txt"), "Dear reader");
  choose("open_item");
  choose("import_item");
  EXPECT_FALSE(documents().application_openFile(dialogs().answer));
  EXPECT_EQ(dialogs().alerts, std::vector(3, wrong_format));
}

TEST_F(WaysOfOpeningTest, AnOpenRequestAnswersWhetherItIsShown) {
  EXPECT_TRUE(documents().application_openFile(file()));
  EXPECT_EQ(chamber().point_number(), 7);
  EXPECT_TRUE(dialogs().questions.empty());
}

/// Drags something over a window and, if the window takes it, drops it there.
bool drag_and_drop(QWidget& window, const QMimeData& data) {
  const QPoint place(50, 50);
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QCoreApplication::sendEvent(&window, &enter);
  if (enter.isAccepted()) {
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
  }
  handle_waiting_events();
  return enter.isAccepted();
}

TEST_F(WaysOfOpeningTest, AFileDroppedOnEitherWindowIsShown) {
  QMimeData data;
  for (QWidget* const window :
       {static_cast<QWidget*>(&chamberWindow()), static_cast<QWidget*>(&projectorWindow())}) {
    makeEvent(0);
    data.setUrls({QUrl::fromLocalFile(file())});
    EXPECT_TRUE(drag_and_drop(*window, data));
    EXPECT_EQ(copy_of(chamber().data_ptr()), spiral(7));
    EXPECT_EQ(chamberWindow().windowTitle(), QStringLiteral("Particle Chamber: event.cwd"));
  }
}

/// What another program sends that would rather have the file moved than copied.
template <typename Event>
class MoveProposal : public Event {
 public:
  explicit MoveProposal(const QMimeData& data)
      : Event(QPoint(50, 50), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
              Qt::ShiftModifier) {
    this->m_defaultAction = Qt::MoveAction;
    this->m_dropAction = Qt::MoveAction;
  }
};

TEST_F(WaysOfOpeningTest, ADroppedFileIsCopiedWhateverIsProposed) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file())});
  MoveProposal<QDragEnterEvent> enter(data);
  QCoreApplication::sendEvent(&chamberWindow(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
  MoveProposal<QDropEvent> drop(data);
  QCoreApplication::sendEvent(&chamberWindow(), &drop);
  EXPECT_TRUE(drop.isAccepted());
  EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
  handle_waiting_events();
  EXPECT_EQ(chamber().point_number(), 7);
}

TEST_F(WaysOfOpeningTest, NoFileIsTakenWhileTheTrackWindowIsActive) {
  makeEvent(0);
  choose("activate_item");
  ASSERT_TRUE(wait_until([&] { return !item("open_item").isEnabled(); }));
  const int points = chamber().point_number();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file())});
  const std::array<QWidget*, 3> windows{&chamberWindow(), &projectorWindow(),
                                        &application().trackWindow()};
  for (QWidget* const window : windows) {
    EXPECT_FALSE(drag_and_drop(*window, data));
  }
  EXPECT_EQ(chamber().point_number(), points);
  choose("activate_item");
  for (QWidget* const window : windows) {
    EXPECT_TRUE(drag_and_drop(*window, data));
  }
  EXPECT_EQ(chamber().point_number(), 7);
}

TEST_F(WaysOfOpeningTest, OfSeveralFilesDroppedTheLastIsShown) {
  const QString last = write(QStringLiteral("last.cwd"), event_file(spiral(11)));
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file()), QUrl::fromLocalFile(last)});
  EXPECT_TRUE(drag_and_drop(chamberWindow(), data));
  EXPECT_EQ(chamber().point_number(), 11);
}

TEST_F(WaysOfOpeningTest, ADroppedFileThatIsRefusedIsTold) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(write(QStringLiteral("a.cwd"), hex("50")))});
  EXPECT_TRUE(drag_and_drop(chamberWindow(), data));
  EXPECT_EQ(dialogs().alerts, std::vector{bad_data});
}

TEST_F(WaysOfOpeningTest, WhatIsNoFileIsNotTaken) {
  makeEvent(0);
  const Shown before = shown();
  QMimeData text;
  text.setText(QStringLiteral("event.cwd"));
  QMimeData page;
  page.setUrls({QUrl(QStringLiteral("https://example.org/event.cwd"))});
  for (const QMimeData* const data : {&text, &page}) {
    EXPECT_FALSE(drag_and_drop(chamberWindow(), *data));
    QDropEvent drop(QPoint(50, 50), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&chamberWindow(), &drop);
    handle_waiting_events();
  }
  EXPECT_TRUE(dialogs().alerts.empty());
  EXPECT_EQ(differences(before, shown()), "");
}

/// The program itself, started with a file.
class StartedProgramTest : public testing::Test {
 protected:
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
  }

  static void expectTitles(const QString& file, const QString& name) {
    RunningProgram program(VELQUON_PROGRAM, {file});
    const QStringList titles{QStringLiteral("Particle Chamber: ") + name,
                             QStringLiteral("Projector: ") + name};
    EXPECT_TRUE(wait_until([&] { return program.windowTitles() == titles; }))
        << program.windowTitles().join(QStringLiteral(" | ")).toStdString();
    // Nor does a dialog follow.
    run_loop_for(200);
    EXPECT_EQ(program.windowTitles(), titles);
    EXPECT_TRUE(program.isRunning());
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(StartedProgramTest, OpensTheFileItIsStartedWith) {
  expectTitles(write(QStringLiteral("event.cwd"), event_file(spiral(7))),
               QStringLiteral("event.cwd"));
}

/// Pixels of a colour in a window that another program has on the screen.
std::size_t pixels_in(RunningProgram& program, const QString& title, QRgb color) {
  return pixels_of(program.windowPicture(title), color).size();
}

TEST_F(StartedProgramTest, ShowsTheFileItIsStartedWithInBothViews) {
  std::vector<PlotPoint> points = spiral(300);
  for (PlotPoint& point : points) {
    point.code = 3;  // red
  }
  const QString file = write(QStringLiteral("red.cwd"), event_file(points));
  std::size_t white_without_event = 0;
  {
    RunningProgram empty(VELQUON_PROGRAM, {});
    ASSERT_TRUE(wait_until([&] {
      white_without_event = pixels_in(empty, QStringLiteral("Projector: Empty"), white);
      return white_without_event > 500;  // the dotted frame
    }));
  }
  RunningProgram program(VELQUON_PROGRAM, {file});
  EXPECT_TRUE(wait_until(
      [&] { return pixels_in(program, QStringLiteral("Particle Chamber: red.cwd"), red) > 300; }));
  EXPECT_TRUE(wait_until([&] {
    return pixels_in(program, QStringLiteral("Projector: red.cwd"), white) >
           white_without_event + 200;
  }));
}

TEST_F(StartedProgramTest, OpensAFileOfThePcEdition) {
  expectTitles(write(QStringLiteral("EVENT.CWD"), pc_file(spiral(7))), QStringLiteral("EVENT.CWD"));
}

struct Unloadable {
  const char* path;
  const char* reason;
};
constexpr std::array unloadable_files{
    Unloadable{"/no/such\n/file.cwd", "No such file or directory"},
    Unloadable{"/dev/zero", "It is no regular file"}, Unloadable{"/tmp", "It is a folder"},
    Unloadable{"/dev/null/event.cwd", "Not a directory"}};

TEST_F(WaysOfOpeningTest, AFileOfTheCommandLineThatCannotBeLoadedIsToldWithTheReason) {
  makeEvent(0);
  const Shown before = shown();
  for (const auto& [path, reason] : unloadable_files) {
    dialogs().alerts.clear();
    open_start_file(documents(), dialogs(), QLatin1String(path));
    const RecordingDialogs::Alert told{
        QStringLiteral("Not opened"),
        QStringLiteral("Velquon can't open the file it was started with: %1.")
            .arg(QLatin1String(reason))};
    EXPECT_EQ(dialogs().alerts, std::vector{told});
    EXPECT_EQ(dialogs().files_told.back(), QLatin1String(path));
  }
  EXPECT_EQ(differences(before, shown()), "");
}

TEST_F(StartedProgramTest, SaysWhyAFileCannotBeLoadedAndGoesOn) {
  RunningProgram program(VELQUON_PROGRAM, {QStringLiteral("/no/such\n/file.cwd")});
  const QStringList empty{QStringLiteral("Particle Chamber: Empty"),
                          QStringLiteral("Projector: Empty")};
  EXPECT_TRUE(wait_until([&] {
    return program.windowTitles() == QStringList(QStringLiteral("Not opened")) + empty;
  })) << program.windowTitles().join(QStringLiteral(" | ")).toStdString();
  EXPECT_TRUE(wait_until([&] {
    return program.errors().contains(
        QStringLiteral("velquon: cannot open /no/such?/file.cwd: No such file or directory\n"));
  })) << program.errors().toStdString();
  program.type(QStringLiteral("Not opened"), QStringLiteral("Return"));
  EXPECT_TRUE(wait_until([&] { return program.windowTitles() == empty; }));
  EXPECT_TRUE(program.isRunning());
}

TEST_F(StartedProgramTest, TellsOfAFileThatItRefuses) {
  RunningProgram program(VELQUON_PROGRAM, {write(QStringLiteral("a.cwd"), hex("50"))});
  const QStringList titles{QStringLiteral("Bad data"), QStringLiteral("Particle Chamber: Empty"),
                           QStringLiteral("Projector: Empty")};
  EXPECT_TRUE(wait_until([&] { return program.windowTitles() == titles; }))
      << program.windowTitles().join(QStringLiteral(" | ")).toStdString();
}

}  // namespace

}  // namespace velquon::test
