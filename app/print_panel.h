#pragma once

#include <QDialog>

class QPrintPreviewWidget;
class QPrinter;
class QPushButton;

namespace velquon {

class PrintView;
class UserDialogs;

/// The print panel: a preview of the page, and the ways to get it onto paper or into a PDF file.
class PrintPanel : public QDialog {
  Q_OBJECT

 public:
  /// \param view    the page
  /// \param name    name offered for a PDF file, without its ending
  /// \param printer keeps the choices of paper and printer from one print to the next
  /// \param dialogs asks and tells the user
  PrintPanel(PrintView& view, QString name, QPrinter& printer, UserDialogs& dialogs,
             QWidget* parent = nullptr);

 private:
  QLayout* makePaperRow(QPrintPreviewWidget* preview);
  QWidget* makeButtons(bool has_printer);
  void sendToPrinter();
  void saveAsPdf();

  PrintView& view_;
  QString name_;
  QPrinter& printer_;
  UserDialogs& dialogs_;
  QPushButton* default_button_ = nullptr;
};

}  // namespace velquon
