// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/other_program.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <stdexcept>

#include "tests/support/windows/window_manager.h"

namespace velquon::test {

namespace {

constexpr int answer_patience = 60'000;  // milliseconds

QString output_of(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  if (!process.waitForFinished(answer_patience)) {
    throw std::runtime_error("no answer from " + tool.toStdString());
  }
  return QString::fromUtf8(process.readAllStandardOutput());
}

QString title_of(const QString& window) {
  return output_of(QStringLiteral("xdotool"), {QStringLiteral("getwindowname"), window}).trimmed();
}

/// The environment of a program with windows. At its end the graphics driver is no longer loaded,
/// and what that never frees would be taken for a leak of the program.
QStringList environment_with(const QStringList& variables) {
  return QProcess::systemEnvironment() + variables +
         QStringList{QStringLiteral("ASAN_OPTIONS=detect_leaks=0:verify_asan_link_order=0")};
}

}  // namespace

ProgramEnd run_program(const char* program, const QStringList& arguments,
                       const QStringList& variables) {
  QProcess process;
  process.setEnvironment(environment_with(variables));
  process.start(QString::fromUtf8(program), arguments);
  if (!process.waitForFinished(answer_patience)) {
    throw std::runtime_error("the program does not end");
  }
  return {process.exitStatus() == QProcess::CrashExit, process.exitCode(),
          QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

RunningProgram::RunningProgram(const char* program, const QStringList& arguments,
                               const QStringList& variables) {
  process_.setEnvironment(environment_with(variables));
  process_.start(QString::fromUtf8(program), arguments);
  if (!process_.waitForStarted(answer_patience)) {
    throw std::runtime_error("the program does not start");
  }
}

RunningProgram::~RunningProgram() {
  kill();
}

void RunningProgram::kill() {
  process_.kill();
  process_.waitForFinished(answer_patience);
  // The next program may get the same window numbers.
  EXPECT_TRUE(wait_for_window_manager());
}

bool RunningProgram::isRunning() {
  return !process_.waitForFinished(0) && process_.state() == QProcess::Running;
}

QString RunningProgram::nextLine() {
  while (!process_.canReadLine()) {
    if (!process_.waitForReadyRead(answer_patience)) {
      throw std::runtime_error("the program says nothing");
    }
  }
  return QString::fromUtf8(process_.readLine()).trimmed();
}

QString RunningProgram::errors() {
  errors_ += process_.readAllStandardError();
  return QString::fromUtf8(errors_);
}

void RunningProgram::type(const QString& title, const QString& keys) {
  for (const QString& window : windows()) {
    if (title_of(window) == title) {
      output_of(QStringLiteral("xdotool"),
                {QStringLiteral("windowactivate"), QStringLiteral("--sync"), window});
      output_of(QStringLiteral("xdotool"), {QStringLiteral("key"), keys});
      return;
    }
  }
  throw std::runtime_error("no window " + title.toStdString());
}

QStringList RunningProgram::windows() {
  return output_of(
             QStringLiteral("xdotool"),
             {QStringLiteral("search"), QStringLiteral("--all"), QStringLiteral("--onlyvisible"),
              QStringLiteral("--pid"), QString::number(process_.processId()),
              QStringLiteral("--name"), QStringLiteral(".")})
      .split(u'\n', Qt::SkipEmptyParts);
}

QStringList RunningProgram::windowTitles() {
  QStringList titles;
  for (const QString& window : windows()) {
    titles << title_of(window);
  }
  titles.sort();
  titles.removeDuplicates();
  return titles;
}

QImage RunningProgram::windowPicture(const QString& title) {
  for (const QString& window : windows()) {
    if (title_of(window) == title) {
      return QGuiApplication::primaryScreen()
          ->grabWindow(window.toULongLong())
          .toImage()
          .convertToFormat(QImage::Format_RGB32);
    }
  }
  return {};
}

}  // namespace velquon::test
