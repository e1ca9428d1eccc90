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

bool may_overwrite(const QString& path) {
  const auto answer =
      QMessageBox::warning(QApplication::activeWindow(), QFileDialog::tr("Save"),
                           QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                               .arg(QFileInfo(path).fileName()),
                           QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
  return answer == QMessageBox::Yes;
}

}  // namespace

void DesktopDialogs::alert(const QString& title, const QString& message) {
  QMessageBox box(QMessageBox::Warning, title, message, QMessageBox::Ok,
                  QApplication::activeWindow());
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
  dialog.setDefaultSuffix(suffix);
  dialog.selectFile(suggestion);
  QString path = chosen_file(dialog);
  const bool needs_suffix =
      !path.isEmpty() && QFileInfo(path).suffix().compare(suffix, Qt::CaseInsensitive) != 0;
  if (needs_suffix) {
    // The dialog asked about the name as typed, not about the one with the ending.
    path += QLatin1Char('.') + suffix;
    if (QFileInfo::exists(path) && !may_overwrite(path)) {
      return {};
    }
  }
  return path;
}

}  // namespace velquon
