#pragma once

#include <QDialog>
#include <memory>

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
  /// \param dialogs asks and tells the user
  PrintPanel(PrintView& view, QString name, UserDialogs& dialogs, QWidget* parent = nullptr);
  ~PrintPanel() override;

 private:
  QLayout* makePaperRow(QPrintPreviewWidget* preview);
  QWidget* makeButtons(bool has_printer);
  void sendToPrinter();
  void saveAsPdf();

  PrintView& view_;
  QString name_;
  UserDialogs& dialogs_;
  std::unique_ptr<QPrinter> printer_;
  QPushButton* default_button_ = nullptr;
};

}  // namespace velquon
