// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a run of the program leaves in the home folder.

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>

#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

TEST(KeptFiles, NothingIsKeptBetweenRuns) {
  const QTemporaryDir home;
  const auto variable = [&](const char* name, const char* folder) {
    return QLatin1String(name) + QLatin1Char('=') + home.filePath(QLatin1String(folder));
  };
  QDir(home.path()).mkpath(QStringLiteral("events"));
  QFile file(home.filePath(QStringLiteral("events/a.cwd")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(event_file(spiral(7))) > 0);
  file.close();
  RunningProgram program(
      VELQUON_PROGRAM, {},
      {// A session bus that is started for want of one leaves a file.
       QStringLiteral("DBUS_SESSION_BUS_ADDRESS=disabled:"), variable("HOME", ""),
       variable("XDG_CONFIG_HOME", "config"), variable("XDG_DATA_HOME", "data"),
       variable("XDG_STATE_HOME", "state"), variable("XDG_CACHE_HOME", "cache")});
  const QString chamber = QStringLiteral("Particle Chamber: Empty");
  ASSERT_TRUE(wait_until([&] { return program.windowTitles().contains(chamber); }));
  program.type(chamber, QStringLiteral("ctrl+o"));
  const QString dialog = QStringLiteral("Open Event");
  ASSERT_TRUE(wait_until([&] { return program.windowTitles().contains(dialog); }));
  QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("type"), file.fileName()});
  program.type(dialog, QStringLiteral("Return"));
  const QString shown = QStringLiteral("Particle Chamber: a.cwd");
  ASSERT_TRUE(wait_until([&] { return program.windowTitles().contains(shown); }));
  program.type(shown, QStringLiteral("ctrl+q"));
  EXPECT_TRUE(wait_until([&] { return !program.isRunning(); }));
  QStringList left;
  for (QDirIterator entry(home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
       entry.hasNext();) {
    const QString name = QDir(home.path()).relativeFilePath(entry.next());
    // What fontconfig knows of the fonts, and the shaders that Mesa and Qt have compiled, they keep for
    // any program.
    const QStringList shared{QStringLiteral("cache/fontconfig/"),
                             QStringLiteral("cache/mesa_shader_cache"),
                             QStringLiteral("cache/qtshadercache-")};
    if (std::ranges::none_of(shared,
                             [&](const QString& cache) { return name.startsWith(cache); })) {
      left << name;
    }
  }
  EXPECT_EQ(left, QStringList{QStringLiteral("events/a.cwd")});
}

}  // namespace velquon::test
