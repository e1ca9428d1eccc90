// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

namespace velquon {

/// What is to become of something that is not saved.
enum class SaveAnswer : std::uint8_t { save, discard, cancel };

/// What the program asks the user and tells him. The tests answer in his place.
class UserDialogs {
 public:
  UserDialogs() = default;
  UserDialogs(const UserDialogs&) = delete;
  UserDialogs& operator=(const UserDialogs&) = delete;
  UserDialogs(UserDialogs&&) = delete;
  UserDialogs& operator=(UserDialogs&&) = delete;
  virtual ~UserDialogs() = default;

  /// Tells something and waits for the single button "OK".
  virtual void alert(const QString& title, const QString& message) = 0;

  /// Tells something about a file, whose name stands below the message, and waits for the single
  /// button "OK".
  virtual void alertAboutFile(const QString& title, const QString& message,
                              const QString& path) = 0;

  /// Asks for a file to open.
  /// \param filter kinds of files offered, as "Name (*.one *.two)"; upper and lower case differ
  /// \return its path, or empty when the user gives up
  virtual QString fileToOpen(const QString& title, const QString& filter) = 0;

  /// Asks for files to open, any number of them.
  /// \return their paths, empty when the user gives up
  virtual QStringList filesToOpen(const QString& title, const QString& filter) = 0;

  /// Asks whether to save something before it is lost.
  virtual SaveAnswer askToSave(const QString& title, const QString& message) = 0;

  /// Asks for the name of a file to save, and once whether an existing one may be overwritten;
  /// if not, for another name.
  /// \param suggestion name offered
  /// \param filter     kinds of files offered, joined by ";;"; the name gets the ending of the kind
  ///                   that the user chooses, unless he gives it one of another kind
  /// \param suffix     ending of the first kind, without the dot
  /// \return its path, or empty when the user gives up
  virtual QString fileToSave(const QString& title, const QString& suggestion, const QString& filter,
                             const QString& suffix) = 0;
};

}  // namespace velquon
