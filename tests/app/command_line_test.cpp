// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the program answers to its command line, as a shell sees it.

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "app/command_line.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

QStringList words(std::initializer_list<const char*> list) {
  QStringList result;
  for (const char* const word : list) {
    result << QString::fromUtf8(word);
  }
  return result;
}

ProgramEnd start(const QStringList& arguments, const QStringList& variables = {}) {
  return run_program(VELQUON_PROGRAM, arguments, variables);
}

/// Reads a command line; the program's name is added.
ParsedCommandLine parsed(const QStringList& arguments) {
  return parse_command_line(QStringList{QStringLiteral("velquon")} + arguments);
}

TEST(CommandLine, WithoutArgumentsChoosesNothing) {
  const auto options = parsed({}).options;
  ASSERT_TRUE(options.has_value());
  EXPECT_FALSE(options->seed.has_value());
  EXPECT_EQ(options->file, QString());
  EXPECT_EQ(options->pictures, QString());
}

TEST(CommandLine, TakesASeedInItsWholeRange) {
  EXPECT_EQ(parsed(words({"--seed", "0"})).options->seed, 0U);
  EXPECT_EQ(parsed(words({"--seed=4294967295"})).options->seed, 4294967295U);
}

TEST(CommandLine, GivesTheFileItsPathFromTheRoot) {
  const QString here = QDir::currentPath();
  EXPECT_EQ(parsed(words({"event.cwd"})).options->file, here + QStringLiteral("/event.cwd"));
  EXPECT_EQ(parsed(words({":x.cwd"})).options->file, here + QStringLiteral("/:x.cwd"));
  EXPECT_EQ(parsed(words({"--", "-x.cwd"})).options->file, here + QStringLiteral("/-x.cwd"));
  EXPECT_EQ(parsed(words({"/tmp/event.cwd"})).options->file, QStringLiteral("/tmp/event.cwd"));
}

TEST(CommandLine, TakesALanguageThatThereIs) {
  EXPECT_EQ(parsed({}).options->language, QString());
  for (const char* const code : {"en", "de", "es", "fr", "it"}) {
    EXPECT_EQ(parsed(words({"--language", code})).options->language, QLatin1String(code));
  }
  EXPECT_EQ(start(words({"--language", "deu"})).errors,
            QStringLiteral("velquon: --language: 'deu' is not one of en, de, es, fr, it\n"));
}

/// Starts the program and waits for one of its windows.
bool shows_window(const QStringList& arguments, const QStringList& variables, const char* title) {
  RunningProgram program(VELQUON_PROGRAM, arguments, variables);
  return wait_until([&] { return program.windowTitles().contains(QString::fromUtf8(title)); });
}

TEST(CommandLine, TheLanguageIsThatOfTheOptionOrOfTheDesktop) {
  const auto german = words({"LC_ALL=de_AT.UTF-8", "LANGUAGE="});
  EXPECT_TRUE(shows_window({}, german, "Projektor: Leer"));
  EXPECT_TRUE(shows_window(words({"--language", "fr"}), german, "Projecteur\u00a0: Vide"));
  EXPECT_TRUE(shows_window(words({"--language", "en"}), german, "Projector: Empty"));
  EXPECT_TRUE(shows_window({}, words({"LC_ALL=pl_PL.UTF-8", "LANGUAGE="}), "Projector: Empty"));
}

class HostileArguments : public ::testing::TestWithParam<QStringList> {};

TEST_P(HostileArguments, EndTheProgramWithStatus2AndOneLine) {
  const ProgramEnd ending = start(GetParam());
  EXPECT_FALSE(ending.crashed);
  EXPECT_EQ(ending.status, 2);
  EXPECT_EQ(ending.output, QString());
  EXPECT_TRUE(ending.errors.startsWith(QStringLiteral("velquon: ")));
  EXPECT_EQ(ending.errors.count(QLatin1Char('\n')), 1);
  EXPECT_TRUE(ending.errors.endsWith(QLatin1Char('\n')));
  EXPECT_FALSE(ending.errors.contains(QChar(0x1B)));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, HostileArguments,
    ::testing::Values(words({"--seed"}), words({"--seed", "-1"}), words({"--seed", "4294967296"}),
                      words({"--seed", "1.5"}), words({"--seed", ""}), words({"--bogus"}),
                      words({"--bo\ngus\x1b[31m"}), words({"a.cwd", "b.cwd"}),
                      words({"--pictures"}), words({"--pictures="}), words({"--language"}),
                      words({"--language", "pl"}), words({"--language", ""}),
                      words({"--pictures", "folder", "a.cwd"}), words({"--seed", "1\n\x1b[31m"})));

TEST(CommandLine, HelpAndVersionGoToStandardOutput) {
  for (const char* const word : {"--help", "-h", "--version", "-v"}) {
    const ProgramEnd ending = start(words({word}));
    EXPECT_EQ(ending.status, 0);
    EXPECT_TRUE(ending.output.contains(QStringLiteral("velquon"))) << word;
    EXPECT_EQ(ending.errors, QString());
  }
}

TEST(CommandLine, OptionsOfQtAreLeftToIt) {
  struct Case {
    QStringList given;
    QStringList of_qt;
  };
  for (const auto& [given, of_qt] : std::initializer_list<Case>{
           {words({"-style", "fusion", "a.cwd"}), words({"-style", "fusion"})},
           {words({"a.cwd", "--style", "fusion"}), words({"--style", "fusion"})},
           {words({"--style=fusion", "a.cwd"}), words({"--style=fusion"})},
           {words({"-session", "10_2", "-reverse", "a.cwd"}),
            words({"-session", "10_2", "-reverse"})},
           {words({"-platform", "xcb", "-geometry", "800x600+10+20", "a.cwd"}),
            words({"-platform", "xcb", "-geometry", "800x600+10+20"})}}) {
    const auto options = parsed(given).options;
    ASSERT_TRUE(options.has_value()) << given.join(u' ').toStdString();
    EXPECT_EQ(options->file, QDir::currentPath() + QStringLiteral("/a.cwd"));
    EXPECT_EQ(options->qt_arguments, words({"velquon"}) + of_qt);
  }
}

TEST(CommandLine, WhatFollowsTwoDashesIsAFileAndNoOptionOfQt) {
  const auto options = parsed(words({"--", "-style"})).options;
  ASSERT_TRUE(options.has_value());
  EXPECT_EQ(options->file, QDir::currentPath() + QStringLiteral("/-style"));
  EXPECT_EQ(options->qt_arguments, words({"velquon"}));
}

TEST(CommandLine, TheDisplayOfAnOptionIsTheOneOfTheWholeProgram) {
  EXPECT_EQ(start(words({"-display", ":9999"})).errors,
            QStringLiteral("velquon: the X display ':9999' does not answer\n"));
}

TEST(CommandLine, QtTakesItsOptions) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("a.cwd"));
  QFile event(file);
  ASSERT_TRUE(event.open(QIODevice::WriteOnly) && event.write(event_file(spiral(7))) > 0);
  event.close();
  RunningProgram program(VELQUON_PROGRAM,
                         {QStringLiteral("-style"), QStringLiteral("no such"),
                          QStringLiteral("-qwindowtitle"), QStringLiteral("x"), file});
  EXPECT_TRUE(wait_until(
      [&] { return program.windowTitles().contains(QStringLiteral("Projector: a.cwd")); }));
  EXPECT_TRUE(wait_until([&] { return program.errors().contains(QStringLiteral("no such")); }))
      << "Qt misses the style";
}

TEST(CommandLine, APlatformThatTheViewsCannotBeDrawnOnIsNamed) {
  const ProgramEnd ending = start(words({"-platform", "offscreen"}));
  EXPECT_FALSE(ending.crashed);
  EXPECT_EQ(ending.status, 1);
  EXPECT_TRUE(ending.errors.endsWith(
      QStringLiteral("velquon: the windows need Qt's platform 'xcb', and this is 'offscreen'\n")))
      << ending.errors.toStdString();
}

TEST(CommandLine, TheHelpTellsOfQtsOptions) {
  EXPECT_TRUE(start(words({"--help"}), words({"DISPLAY="}))
                  .output.contains(QStringLiteral("Qt's own options")));
}

TEST(CommandLine, HelpAndVersionNeedNoDisplay) {
  for (const char* const word : {"--help", "--version"}) {
    EXPECT_EQ(start(words({word}), words({"DISPLAY="})).status, 0) << word;
  }
}

TEST(CommandLine, WithoutADisplayTheProgramSaysSo) {
  const ProgramEnd ending = start({}, words({"DISPLAY="}));
  EXPECT_EQ(ending.status, 1);
  EXPECT_EQ(ending.errors, QStringLiteral("velquon: there is no X display to show windows on "
                                          "(DISPLAY is not set)\n"));
}

TEST(CommandLine, AnEmptyFileNameIsNone) {
  EXPECT_EQ(parsed({QString()}).options->file, QString());
}

TEST(CommandLine, ADisplayOfAnyNameIsNamedOnOneLine) {
  EXPECT_EQ(start({}, words({"DISPLAY=a\nb\x1b[31m"})).errors,
            QStringLiteral("velquon: the X display 'a?b?[31m' does not answer\n"));
}

TEST(CommandLine, ADisplayThatDoesNotAnswerIsNamed) {
  const ProgramEnd ending = start({}, words({"DISPLAY=:9999"}));
  EXPECT_EQ(ending.status, 1);
  EXPECT_EQ(ending.errors, QStringLiteral("velquon: the X display ':9999' does not answer\n"));
}

TEST(CommandLine, ADisplayWithoutOpenGLIsNamed) {
  QProcess server;
  server.start(QStringLiteral("Xvfb"),
               words({"-displayfd", "1", "-extension", "GLX", "-nolisten", "tcp"}));
  ASSERT_TRUE(server.waitForStarted() && server.waitForReadyRead());
  const QString name = QLatin1Char(':') + QString::fromUtf8(server.readLine()).trimmed();
  const ProgramEnd ending = start({}, {QStringLiteral("DISPLAY=") + name});
  server.terminate();
  server.waitForFinished();
  EXPECT_EQ(ending.status, 1);
  EXPECT_EQ(ending.errors,
            QStringLiteral("velquon: the X display '%1' has no OpenGL (GLX)\n").arg(name));
}

TEST(CommandLine, OnANarrowScreenBothWindowsAreWithinIt) {
  QProcess server;
  server.start(QStringLiteral("Xvfb"), words({"-displayfd", "1", "-screen", "0", "1024x768x24",
                                              "-nolisten", "tcp", "-noreset"}));
  ASSERT_TRUE(server.waitForStarted() && server.waitForReadyRead());
  const QString name = QLatin1Char(':') + QString::fromUtf8(server.readLine()).trimmed();
  QProcess program;
  program.setEnvironment(QProcess::systemEnvironment() +
                         QStringList{QStringLiteral("DISPLAY=") + name});
  program.start(QStringLiteral(VELQUON_PROGRAM), {});
  ASSERT_TRUE(program.waitForStarted());
  QString places;
  EXPECT_TRUE(wait_until([&] {
    places = run_program("xwininfo", words({"-name", "Projector: Empty"}),
                         {QStringLiteral("DISPLAY=") + name})
                 .output;
    return places.contains(QStringLiteral("IsViewable"));
  })) << places.toStdString();
  const auto number_behind = [&](const QString& label) {
    return places.section(label, 1).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
  };
  const int right = number_behind(QStringLiteral("Absolute upper-left X:")) +
                    number_behind(QStringLiteral("Width:"));
  EXPECT_GT(right, 470);
  EXPECT_LE(right, 1024);
  program.kill();
  program.waitForFinished();
  server.terminate();
  server.waitForFinished();
}

/// What the script that starts the program does without a display.
ProgramEnd start_without_display(const QStringList& arguments) {
  return run_program(START_SCRIPT, QStringList{QStringLiteral(VELQUON_PROGRAM)} + arguments,
                     {QStringLiteral("DISPLAY=")});
}

TEST(StartScript, HelpAndVersionArePrintedWithoutADisplay) {
  for (const char* const word : {"--help", "--version"}) {
    const ProgramEnd ending = start_without_display(words({word}));
    EXPECT_EQ(ending.status, 0) << word;
    EXPECT_EQ(ending.output, start(words({word})).output);
  }
}

TEST(StartScript, PicturesAreLeftWithoutADisplay) {
  const QTemporaryDir folder;
  const ProgramEnd ending = start_without_display(
      {QStringLiteral("--pictures"), folder.path(), QStringLiteral("--seed"), QStringLiteral("1")});
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 12);
}

TEST(StartScript, ArgumentsThatNeedADisplayAreNotDroppedInSilence) {
  for (const QStringList& arguments :
       {words({"event.cwd"}), words({"--seed", "7"}), words({"--", "--help"})}) {
    const ProgramEnd ending = start_without_display(arguments);
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.output, QString());
    EXPECT_TRUE(ending.errors.startsWith(
        QStringLiteral("There is no display to show windows on, and without one nothing can be "
                       "done with: %1\n")
            .arg(arguments.join(u' '))))
        << ending.errors.toStdString();
  }
}

/// Leaves pictures in a folder that goes with the test.
class PicturesTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString folder() const { return folder_.filePath(QStringLiteral("pictures")); }
  [[nodiscard]] QStringList files() const {
    return QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  /// The bytes of all pictures, one after the other.
  [[nodiscard]] QByteArray allBytes() const {
    QByteArray bytes;
    for (const QString& name : files()) {
      QFile file(QDir(folder()).filePath(name));
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      bytes += file.readAll();
    }
    EXPECT_GT(bytes.size(), 12 * 500);
    return bytes;
  }
  [[nodiscard]] ProgramEnd leavePictures() const {
    return start(
        {QStringLiteral("--pictures"), folder(), QStringLiteral("--seed"), QStringLiteral("1")});
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(PicturesTest, ShowEachViewOfAnEventOfEachKind) {
  const ProgramEnd ending = leavePictures();
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  ASSERT_EQ(files(), words({"lambda-chamber.png", "lambda-projector.png",
                            "negative-muon-chamber.png", "negative-muon-projector.png",
                            "negative-pion-chamber.png", "negative-pion-projector.png",
                            "neutral-pion-chamber.png", "neutral-pion-projector.png",
                            "positive-muon-chamber.png", "positive-muon-projector.png",
                            "positive-pion-chamber.png", "positive-pion-projector.png"}));
  for (const QString& name : files()) {
    EXPECT_TRUE(ending.output.contains(name));
    const bool of_chamber = name.endsWith(QStringLiteral("chamber.png"));
    const QImage picture(QDir(folder()).filePath(name));
    EXPECT_EQ(picture.size(), of_chamber ? QSize(682, 500) : QSize(470, 420));
  }
  // The yellow track of the muon that the pion becomes.
  EXPECT_GT(
      pixels_of(QImage(folder() + QStringLiteral("/negative-pion-chamber.png")), yellow).size(),
      20U);
}

TEST_F(PicturesTest, AreWholeOnAScreenTooSmallForTheWindows) {
  ASSERT_EQ(leavePictures().status, 0);
  const QByteArray on_a_large_screen = allBytes();
  const ProgramEnd ending =
      run_program(WITH_DISPLAY,
                  {QStringLiteral(VELQUON_PROGRAM), QStringLiteral("--pictures"), folder(),
                   QStringLiteral("--seed"), QStringLiteral("1")},
                  {QStringLiteral("VELQUON_SCREEN=640x480x24")});
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  EXPECT_EQ(allBytes(), on_a_large_screen);
}

TEST_F(PicturesTest, OneSeedMakesTheSamePicturesAndAnotherMakesOthers) {
  const auto pictures = [this](const QStringList& seed) {
    EXPECT_EQ(start(QStringList{QStringLiteral("--pictures"), folder()} + seed).status, 0);
    return allBytes();
  };
  const QByteArray first = pictures(words({"--seed", "1"}));
  EXPECT_EQ(pictures(words({"--seed", "1"})), first);
  EXPECT_NE(pictures(words({"--seed", "2"})), first);
  const QByteArray without = pictures({});
  EXPECT_NE(without, first);
  EXPECT_NE(pictures({}), without);
}

TEST_F(PicturesTest, AnOutputThatIsClosedEndsTheProgramWithOneLine) {
  // What the shell does with the program's output, and what the program says of it.
  for (const auto& [output, reason] :
       {std::pair{">&-", "Bad file descriptor"}, std::pair{"| true", "Broken pipe"}}) {
    const QString script =
        QStringLiteral("\"$0\" --pictures \"$1\" --seed 1 %1; exit \"${PIPESTATUS[0]}\"")
            .arg(QLatin1String(output));
    const ProgramEnd ending = run_program(
        "bash", {QStringLiteral("-c"), script, QStringLiteral(VELQUON_PROGRAM), folder()});
    EXPECT_EQ(ending.status, 1) << output;
    const QString last = ending.errors.section(QLatin1Char('\n'), -2, -2);
    EXPECT_EQ(last.toStdString(),
              "velquon: cannot write to standard output: " + std::string(reason));
    EXPECT_EQ(ending.errors.count(QStringLiteral("velquon: ")), 1);
  }
}

TEST_F(PicturesTest, ThatDoNotFitOnTheDiskAreNamedAndNotLeftByHalves) {
  const velquon::test::FileSizeLimit limit(3000);
  const ProgramEnd ending = leavePictures();
  EXPECT_EQ(ending.status, 1);
  EXPECT_TRUE(ending.errors.contains(QStringLiteral("velquon: cannot write ")))
      << ending.errors.toStdString();
  EXPECT_EQ(files(), QStringList());
}

}  // namespace

}  // namespace velquon::test
