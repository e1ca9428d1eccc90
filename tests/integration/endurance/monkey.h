// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "app/application.h"
#include "widgets/user_dialogs.h"

class QWidget;

namespace velquon::test {

/// Chance with a seed.
class Chance {
 public:
  explicit Chance(std::uint32_t seed) : engine_(seed) {}

  /// A whole number from 0 to below a bound, which is above 0.
  int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(engine_); }
  bool oneIn(int many) { return below(many) == 0; }
  template <typename Row>
  auto& oneOf(Row& row) {
    return row[static_cast<typename Row::size_type>(below(static_cast<int>(row.size())))];
  }

 private:
  std::mt19937 engine_;
};

/// Answers questions for files by chance: with event files, tables, refuse, folders, names that
/// cannot be written, and not at all.
class ChanceDialogs : public UserDialogs {
 public:
  explicit ChanceDialogs(Chance& chance);

  void alert(const QString& title, const QString& message) override;
  void alertAboutFile(const QString& title, const QString& message, const QString& path) override;
  QString fileToOpen(const QString& title, const QString& filter) override;
  QStringList filesToOpen(const QString& title, const QString& filter) override;
  SaveAnswer askToSave(const QString& title, const QString& message) override;
  QString fileToSave(const QString& title, const QString& suggestion, const QString& filter,
                     const QString& suffix) override;

  /// A file of the folder, a folder, or none that there is.
  QString anyPath();
  [[nodiscard]] int alerts() const { return alerts_; }

 private:
  void write(const QString& name, const QByteArray& bytes);

  Chance& chance_;
  QTemporaryDir folder_;
  QStringList paths_;
  int alerts_ = 0;
};

/// Does by chance what a user can do with keys, mouse, menus and windows.
class Monkey : public QObject {
  Q_OBJECT

 public:
  explicit Monkey(std::uint32_t seed);
  ~Monkey() override;
  Monkey(const Monkey&) = delete;
  Monkey& operator=(const Monkey&) = delete;
  Monkey(Monkey&&) = delete;
  Monkey& operator=(Monkey&&) = delete;

  /// Plays with the program, starting it anew when it has ended.
  /// \return the number of things done
  int play(int seconds);

  /// What was done last, a line each.
  [[nodiscard]] std::string lastDone() const;
  [[nodiscard]] const ChanceDialogs& dialogs() const { return dialogs_; }

 private:
  void start();
  void act();
  void checkState();
  QWidget* target();
  void clickOrDrag();
  void pressKey();
  void writeText();
  void chooseItem();
  void turnWheel();
  void workWindow();
  void dropFile();
  void note(const QString& what);

  Chance chance_;
  ChanceDialogs dialogs_;
  std::unique_ptr<Application> application_;
  std::deque<QString> done_;
  int count_ = 0;
  bool over_ = false;
};

}  // namespace velquon::test
