// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/user_dialogs.h"

namespace velquon {

/// Dialogs on the screen, which belong to the program's window in front. They keep nothing between
/// runs: neither the folders that were opened nor how the files were listed.
class DesktopDialogs : public UserDialogs {
 public:
  DesktopDialogs();
  void alert(const QString& title, const QString& message) override;
  void alertAboutFile(const QString& title, const QString& message, const QString& path) override;
  QString fileToOpen(const QString& title, const QString& filter) override;
  QStringList filesToOpen(const QString& title, const QString& filter) override;
  SaveAnswer askToSave(const QString& title, const QString& message) override;
  QString fileToSave(const QString& title, const QString& suggestion, const QString& filter,
                     const QString& suffix) override;
};

}  // namespace velquon
