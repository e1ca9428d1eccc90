// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileIconProvider>
#include <QIcon>
#include <QString>

namespace velquon {

/// Gives a file dialog one icon for all files and one for all folders. Qt's own provider looks into
/// every file for its kind, which makes a dialog stand still for ten seconds in a folder of fifty
/// thousand event files. Used by the dialog's thread, too.
class PlainFileIcons : public QFileIconProvider {
 public:
  PlainFileIcons();

  [[nodiscard]] QIcon icon(IconType type) const override;
  [[nodiscard]] QIcon icon(const QFileInfo& info) const override;
  [[nodiscard]] QString type(const QFileInfo& info) const override;

 private:
  QIcon file_;
  QIcon folder_;
  QString file_kind_;
  QString folder_kind_;
};

}  // namespace velquon
