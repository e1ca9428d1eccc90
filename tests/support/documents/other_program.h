// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QProcess>
#include <QStringList>

namespace velquon::test {

/// How another program ended.
struct ProgramEnd {
  bool crashed = false;
  int status = -1;
  QString output;
  QString errors;
};

/// Runs a program to its end, with a few more variables of the environment ("NAME=value").
ProgramEnd run_program(const char* program, const QStringList& arguments,
                       const QStringList& variables = {});

/// A program that runs beside the test and is killed with this object at the latest.
class RunningProgram {
 public:
  RunningProgram(const char* program, const QStringList& arguments,
                 const QStringList& variables = {});
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  RunningProgram(RunningProgram&&) = delete;
  RunningProgram& operator=(RunningProgram&&) = delete;

  /// Ends it at once, and waits until the window manager has taken note.
  void kill();
  [[nodiscard]] bool isRunning();
  /// Waits for output.
  /// \return the next line of it
  QString nextLine();
  /// What it has said on standard error so far.
  [[nodiscard]] QString errors();
  /// Activates its window with a title and presses some keys in it, as xdotool names them.
  void type(const QString& title, const QString& keys);
  /// Titles of the windows that it has on the screen.
  [[nodiscard]] QStringList windowTitles();
  /// The picture on the screen of its window with a title; nothing without one.
  [[nodiscard]] QImage windowPicture(const QString& title);

 private:
  /// The numbers of its windows that are on the screen.
  [[nodiscard]] QStringList windows();

  QProcess process_;
  QByteArray errors_;
};

}  // namespace velquon::test
