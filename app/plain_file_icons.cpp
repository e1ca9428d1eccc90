// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/plain_file_icons.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStyle>

namespace velquon {

PlainFileIcons::PlainFileIcons()
    : file_(QApplication::style()->standardIcon(QStyle::SP_FileIcon)),
      folder_(QApplication::style()->standardIcon(QStyle::SP_DirIcon)),
      file_kind_(QFileDialog::tr("File")),
      folder_kind_(QFileDialog::tr("File Folder")) {}

QIcon PlainFileIcons::icon(IconType type) const {
  return type == File ? file_ : QFileIconProvider::icon(type);
}

QIcon PlainFileIcons::icon(const QFileInfo& info) const {
  return info.isDir() ? folder_ : file_;
}

QString PlainFileIcons::type(const QFileInfo& info) const {
  if (info.isDir()) {
    return folder_kind_;
  }
  const QString ending = info.suffix();
  return ending.isEmpty() ? file_kind_ : ending + QLatin1Char(' ') + file_kind_;
}

}  // namespace velquon
