// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The program as a person starts it, by its process and the screen.

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "files/event_file.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// A screen with a depth of our own choice.
class OtherScreen {
 public:
  explicit OtherScreen(const QString& size_and_depth) {
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start(
        QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
         QStringLiteral("0"), size_and_depth, QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    EXPECT_TRUE(server_.waitForReadyRead(2 * longest_wait));
    name_ = QLatin1Char(':') + QString::fromLatin1(server_.readLine()).trimmed();
  }
  ~OtherScreen() {
    server_.terminate();
    EXPECT_TRUE(server_.waitForFinished());
  }
  OtherScreen(const OtherScreen&) = delete;
  OtherScreen& operator=(const OtherScreen&) = delete;
  OtherScreen(OtherScreen&&) = delete;
  OtherScreen& operator=(OtherScreen&&) = delete;

  [[nodiscard]] const QString& name() const { return name_; }

 private:
  QProcess server_;
  QString name_;
};

class ProgramTest : public testing::Test {
 protected:
  void start(const QStringList& arguments, const QString& variable = {},
             const QString& value = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // What the graphics driver keeps would be reported as leaks of the program.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    if (!variable.isEmpty()) {
      environment.insert(variable, value);
    }
    program_.setProcessEnvironment(environment);
    program_.start(QStringLiteral(VELQUON_PROGRAM), arguments);
    ASSERT_TRUE(program_.waitForStarted());
  }
  /// The end with a status and a last line of errors.
  void expectEnd(int status, const QByteArray& last_line) {
    ASSERT_TRUE(program_.waitForFinished(2 * longest_wait));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), status);
    const QByteArray errors = program_.readAllStandardError();
    EXPECT_TRUE(errors.endsWith(last_line)) << errors.toStdString();
  }
  /// Activates a window of the program, when it has come up with the large event.
  static void activateWindow(const char* name) {
    // xdotool gives up when a window that it looks at goes, as those of a program that starts do.
    constexpr int most_tries = 20;
    for (int i = 0; i < most_tries; ++i) {
      const QString title = QStringLiteral("%1:.large.cwd").arg(QLatin1String(name));
      if (QProcess::execute(QStringLiteral("xdotool"),
                            {QStringLiteral("search"), QStringLiteral("--sync"),
                             QStringLiteral("--onlyvisible"), QStringLiteral("--name"), title,
                             QStringLiteral("windowactivate"), QStringLiteral("--sync")}) == 0) {
        return;
      }
    }
    FAIL() << "the window " << name << " does not become active";
  }
  /// An event file of 5000 points, whose replay takes 50 s at least.
  [[nodiscard]] QString largeEvent() {
    const auto bytes = encode_event(spread_points(5000), ChamberValues{});
    QFile file(folder_.filePath(QStringLiteral("large.cwd")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
    return file.fileName();
  }

  QProcess program_;

 private:
  QTemporaryDir folder_;
};

}  // namespace

TEST_F(ProgramTest, AScreenOfTooFewColorsIsToldAndEndsTheProgram) {
  const OtherScreen screen(QStringLiteral("1024x768x16"));
  const QByteArray told = "velquon: the X display '" + screen.name().toLatin1() +
                          "' has only 16 bits of colour a pixel, not 24\n";
  const QTemporaryDir folder;
  for (const QStringList& arguments :
       {QStringList{}, QStringList{QStringLiteral("--pictures"), folder.path()}}) {
    start(arguments, QStringLiteral("DISPLAY"), screen.name());
    expectEnd(1, told);
  }
}

TEST_F(ProgramTest, AnOpenGLThatGivesNoContextIsToldAndEndsTheProgram) {
  const QByteArray told =
      "velquon: the OpenGL driver gives the views no context of version 2.1 to draw with\n";
  start({}, QStringLiteral("LIBGL_ALWAYS_INDIRECT"), QStringLiteral("1"));
  expectEnd(1, told);
  start({}, QStringLiteral("MESA_GL_VERSION_OVERRIDE"), QStringLiteral("1.1"));
  expectEnd(1, told);
}

TEST_F(ProgramTest, TheStartLoadsNoneOfQtsPluginsForImages) {
  start({largeEvent()});
  activateWindow("Chamber");
  QFile maps(QStringLiteral("/proc/%1/maps").arg(program_.processId()));
  ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
  const QByteArray loaded = maps.readAll();
  EXPECT_TRUE(loaded.contains("/plugins/platforms/"));
  EXPECT_FALSE(loaded.contains("/plugins/imageformats/"));
  const RealInput quit(QStringLiteral("key ctrl+q"));
  expectEnd(0, "");
}

TEST_F(ProgramTest, QuitEndsTheProgramInTheMiddleOfAReplay) {
  start({largeEvent()});
  activateWindow("Chamber");
  const RealInput keys(QStringLiteral("key ctrl+r sleep 1.5 key ctrl+q"));
  expectEnd(0, "");
}

TEST_F(ProgramTest, ClosingItsLastWindowEndsTheProgramInTheMiddleOfAReplay) {
  start({largeEvent()});
  activateWindow("Projector");
  { const RealInput close(QStringLiteral("key alt+F4")); }
  activateWindow("Chamber");
  const RealInput keys(QStringLiteral("key ctrl+r sleep 1.5 key alt+F4"));
  expectEnd(0, "");
}

}  // namespace velquon::test
