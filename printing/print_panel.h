// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QPageLayout>
#include <QPageSize>
#include <memory>

#include "printing/printer_search.h"

class QLabel;
class QPrinter;
class QPushButton;

namespace velquon {

class PagePreview;
class PrintView;
class UserDialogs;

/// What is kept from one print to the next.
struct PrintChoices {
  PrintChoices();
  ~PrintChoices();
  PrintChoices(const PrintChoices&) = delete;
  PrintChoices& operator=(const PrintChoices&) = delete;
  PrintChoices(PrintChoices&&) = delete;
  PrintChoices& operator=(PrintChoices&&) = delete;

  QPageSize::PageSizeId paper = QPageSize::A4;
  /// Made for the first page that goes to a printer: making it asks the print server, and waits.
  std::unique_ptr<QPrinter> printer;
};

/// The print panel: a preview of the page, and the ways to get it onto paper or into a PDF file. It
/// comes up at once; printing is offered as soon as a printer is found.
class PrintPanel : public QDialog {
  Q_OBJECT

 public:
  /// \param view    the page
  /// \param name    name offered for a PDF file, without its ending
  /// \param dialogs asks and tells the user
  PrintPanel(PrintView& view, QString name, PrintChoices& choices, UserDialogs& dialogs,
             QWidget* parent = nullptr);

 private:
  QLayout* makePaperRow();
  QWidget* makeButtons();
  void choosePaper(QPageSize::PageSizeId paper);
  [[nodiscard]] QPageLayout pageLayout() const;
  void showPrinters(PrinterSearch::Result result);
  void sendToPrinter();
  void saveAsPdf();

  PrintView& view_;
  QString name_;
  PrintChoices& choices_;
  UserDialogs& dialogs_;
  PrinterSearch search_{this};
  PagePreview* preview_;
  QLabel* state_;
  QPushButton* pdf_button_ = nullptr;
  QPushButton* print_button_ = nullptr;
};

}  // namespace velquon
