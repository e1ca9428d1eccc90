#include "app/user_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace velquon {

namespace {

QString chosen_file(QFileDialog& dialog) {
  dialog.setFilter(dialog.filter() | QDir::CaseSensitive);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constLast() : QString();
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

bool may_overwrite(const QString& path) {
  QMessageBox box(QMessageBox::Warning, QFileDialog::tr("Save"),
                  QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                      .arg(QFileInfo(path).fileName()),
                  QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace

void DesktopDialogs::alert(const QString& title, const QString& message) {
  QMessageBox box(QMessageBox::Warning, title, message, QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
  box.exec();
}

QString DesktopDialogs::fileToOpen(const QString& title, const QString& filter) {
  QFileDialog dialog(QApplication::activeWindow(), title, QString(), filter);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosen_file(dialog);
}

QString DesktopDialogs::fileToSave(const QString& title, const QString& suggestion,
                                   const QString& filter, const QString& suffix) {
  QFileDialog dialog(QApplication::activeWindow(), title, QString(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  // The dialog would ask about the name as typed, not about the one with the ending.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(with_suffix(suggestion, suffix));
  for (;;) {
    QString path = with_suffix(chosen_file(dialog), suffix);
    if (path.isEmpty() || !QFileInfo::exists(path) || may_overwrite(path)) {
      return path;
    }
  }
}

}  // namespace velquon
