// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/desktop_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTreeView>
#include <algorithm>

#include "app/command_line.h"
#include "app/plain_file_icons.h"
#include "widgets/gl_panel.h"

namespace velquon {

namespace {

/// The window that a dialog belongs to. It is the active one or, while another program has
/// them, the one that a person would expect a dialog of this program to be in front of.
QWidget* owner_of_dialog() {
  QWidget* const active = QApplication::activeWindow();
  if (active != nullptr) {
    return active;
  }
  QWidget* const modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : GLPanel::inFront();
}

void prepare(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
}

/// The file's name as a line of a message: control characters replaced, the middle of a long one
/// left out.
QString name_line(const QWidget& box, const QString& path) {
  constexpr int widest = 400;
  return box.fontMetrics().elidedText(as_one_line(QFileInfo(path).fileName()), Qt::ElideMiddle,
                                      widest);
}

QString chosen_file(QFileDialog& dialog) {
  dialog.setFilter(dialog.filter() | QDir::CaseSensitive);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constLast() : QString();
}

/// Makes a dialog one of this program: a desktop's own would keep the files chosen for later.
void prepare(QFileDialog& dialog, PlainFileIcons& icons) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setIconProvider(&icons);
  // Titles of columns are longer in some languages than the widths they are given.
  if (auto* const list = dialog.findChild<QTreeView*>()) {
    QHeaderView& header = *list->header();
    for (int column = 1; column < header.count(); ++column) {
      header.resizeSection(column,
                           std::max(header.sectionSize(column), header.sectionSizeHint(column)));
    }
  }
}

/// The path with the ending that the dialogs look for: one in other letters, of which the suggested
/// name of an imported file may be, gives way to it.
QString with_suffix(QString path, const QString& suffix) {
  const QString ending = QLatin1Char('.') + suffix;
  if (path.endsWith(ending, Qt::CaseInsensitive)) {
    path.chop(ending.size());
  }
  return path.isEmpty() ? path : path + ending;
}

/// The first ending of a kind of files, "Name (*.one *.two)", without the dot.
QString suffix_of_kind(const QString& kind) {
  static const QRegularExpression ending(QStringLiteral(R"(\*\.(\w+))"));
  return ending.match(kind).captured(1);
}

/// The ending of a path if one of the kinds offered has it, else that of the kind chosen.
QString suffix_for(const QString& path, const QFileDialog& dialog) {
  for (const QString& kind : dialog.nameFilters()) {
    QString suffix = suffix_of_kind(kind);
    if (path.endsWith(QLatin1Char('.') + suffix, Qt::CaseInsensitive)) {
      return suffix;
    }
  }
  return suffix_of_kind(dialog.selectedNameFilter());
}

bool may_overwrite(const QString& path) {
  QMessageBox box(QMessageBox::Warning, QFileDialog::tr("Save"),
                  QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                      .arg(QFileInfo(path).fileName()),
                  QMessageBox::Yes | QMessageBox::No, owner_of_dialog());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace

DesktopDialogs::DesktopDialogs() {
  // Qt's file dialog reads and writes its state there. No folder can be made below a device, so
  // nothing is found and nothing is left, however the program ends.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QStringLiteral("/dev/null/velquon"));
}

void DesktopDialogs::alert(const QString& title, const QString& message) {
  QMessageBox box(QMessageBox::Warning, title, message, QMessageBox::Ok, owner_of_dialog());
  prepare(box);
  box.exec();
}

void DesktopDialogs::alertAboutFile(const QString& title, const QString& message,
                                    const QString& path) {
  QMessageBox box(QMessageBox::Warning, title, message, QMessageBox::Ok, owner_of_dialog());
  box.setInformativeText(name_line(box, path));
  prepare(box);
  // The format of the message is not that of the text below it.
  for (QLabel* const label : box.findChildren<QLabel*>()) {
    label->setTextFormat(Qt::PlainText);
  }
  box.exec();
}

QString DesktopDialogs::fileToOpen(const QString& title, const QString& filter) {
  PlainFileIcons icons;
  QFileDialog dialog(owner_of_dialog(), title, QString(), filter);
  prepare(dialog, icons);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosen_file(dialog);
}

QStringList DesktopDialogs::filesToOpen(const QString& title, const QString& filter) {
  PlainFileIcons icons;
  QFileDialog dialog(owner_of_dialog(), title, QString(), filter);
  prepare(dialog, icons);
  dialog.setFileMode(QFileDialog::ExistingFiles);
  dialog.setFilter(dialog.filter() | QDir::CaseSensitive);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

SaveAnswer DesktopDialogs::askToSave(const QString& title, const QString& message) {
  QMessageBox box(QMessageBox::Question, title, message,
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                  owner_of_dialog());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Save);
  switch (box.exec()) {
    case QMessageBox::Save:
      return SaveAnswer::save;
    case QMessageBox::Discard:
      return SaveAnswer::discard;
    default:
      return SaveAnswer::cancel;
  }
}

QString DesktopDialogs::fileToSave(const QString& title, const QString& suggestion,
                                   const QString& filter, const QString& suffix) {
  PlainFileIcons icons;
  QFileDialog dialog(owner_of_dialog(), title, QString(), filter);
  prepare(dialog, icons);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  // The dialog would ask about the name as typed, not about the one with the ending.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(with_suffix(suggestion, suffix));
  for (;;) {
    const QString chosen = chosen_file(dialog);
    QString path = with_suffix(chosen, suffix_for(chosen, dialog));
    if (path.isEmpty() || !QFileInfo::exists(path) || may_overwrite(path)) {
      return path;
    }
  }
}

}  // namespace velquon
