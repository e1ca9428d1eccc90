// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/print_panel.h"

#include <QBuffer>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "printing/page_preview.h"
#include "printing/print_view.h"
#include "printing/whole_file.h"
#include "widgets/user_dialogs.h"

namespace velquon {

PrintChoices::PrintChoices() = default;
PrintChoices::~PrintChoices() = default;

PrintPanel::PrintPanel(PrintView& view, QString name, PrintChoices& choices, UserDialogs& dialogs,
                       QWidget* parent)
    : QDialog(parent),
      view_(view),
      name_(std::move(name)),
      choices_(choices),
      dialogs_(dialogs),
      preview_(new PagePreview(view)),
      state_(new QLabel(tr("Looking for printers… The page can be saved as a PDF file."))) {
  setWindowTitle(tr("Print"));
  preview_->setObjectName(QStringLiteral("print_preview"));
  preview_->setAccessibleName(tr("Preview of the page"));
  state_->setObjectName(QStringLiteral("printer_state"));
  state_->setWordWrap(true);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(preview_, 1);
  layout->addLayout(makePaperRow());
  layout->addWidget(state_);
  layout->addWidget(makeButtons());
  // It stays so when a printer is found: the Enter key is not to do another thing in between.
  pdf_button_->setDefault(true);
  pdf_button_->setFocus();
  constexpr QSize panel_size(480, 640);
  resize(panel_size);

  connect(&search_, &PrinterSearch::ended, this, &PrintPanel::showPrinters);
  search_.start();
}

QLayout* PrintPanel::makePaperRow() {
  auto* const popup = new QComboBox;
  popup->setObjectName(QStringLiteral("paper_popup"));
  auto* const label = new QLabel(tr("Pa&per:"));
  label->setBuddy(popup);
  for (const QPageSize::PageSizeId size : {QPageSize::A4, QPageSize::Letter}) {
    popup->addItem(QPageSize::name(size), size);
  }
  popup->setCurrentIndex(std::max(popup->findData(choices_.paper), 0));
  const auto take_choice = [this, popup] {
    choosePaper(popup->currentData().value<QPageSize::PageSizeId>());
  };
  take_choice();
  connect(popup, &QComboBox::currentIndexChanged, this, take_choice);
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(popup);
  row->addStretch();
  return row;
}

QWidget* PrintPanel::makeButtons() {
  auto* const buttons = new QDialogButtonBox;
  pdf_button_ = buttons->addButton(tr("Save as P&DF…"), QDialogButtonBox::ActionRole);
  print_button_ = buttons->addButton(tr("P&rint…"), QDialogButtonBox::ActionRole);
  // Last, or the Tab key would not reach it.
  buttons->addButton(QDialogButtonBox::Cancel);
  pdf_button_->setObjectName(QStringLiteral("pdf_button"));
  print_button_->setObjectName(QStringLiteral("print_button"));
  print_button_->setEnabled(false);
  connect(pdf_button_, &QPushButton::clicked, this, &PrintPanel::saveAsPdf);
  connect(print_button_, &QPushButton::clicked, this, &PrintPanel::sendToPrinter);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void PrintPanel::choosePaper(QPageSize::PageSizeId paper) {
  choices_.paper = paper;
  preview_->setPaper(pageLayout().fullRect(QPageLayout::Point).size());
}

QPageLayout PrintPanel::pageLayout() const {
  return {QPageSize(choices_.paper), QPageLayout::Portrait,
          QMarginsF(page_margin, page_margin, page_margin, page_margin), QPageLayout::Point};
}

void PrintPanel::showPrinters(PrinterSearch::Result result) {
  switch (result) {
    case PrinterSearch::Result::found:
      print_button_->setEnabled(true);
      state_->setText(tr("The page can be printed or saved as a PDF file."));
      break;
    case PrinterSearch::Result::none:
      state_->setText(
          tr("No printer is set up on this computer. The page can be saved as a PDF "
             "file."));
      break;
    case PrinterSearch::Result::no_answer:
      state_->setText(tr("No print server answers. The page can be saved as a PDF file."));
      break;
    case PrinterSearch::Result::no_command:
      state_->setText(
          tr("Printers cannot be looked for, because the command lpstat is not "
             "installed (package cups-client). The page can be saved as a PDF file."));
      break;
  }
}

void PrintPanel::sendToPrinter() {
  if (choices_.printer == nullptr) {
    choices_.printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  }
  QPrinter& printer = *choices_.printer;
  printer.setDocName(view_.title());
  printer.setPageLayout(pageLayout());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) {
    return;
  }
  if (view_.print(printer)) {
    accept();
  } else {
    dialogs_.alert(tr("Not printed"),
                   tr("The printer %1 did not take the page.").arg(printer.printerName()));
  }
}

void PrintPanel::saveAsPdf() {
  const QString path =
      dialogs_.fileToSave(tr("Save as PDF"), name_, tr("PDF files (*.pdf)"), QStringLiteral("pdf"));
  if (path.isEmpty()) {
    return;
  }
  QByteArray document;
  QBuffer buffer(&document);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(view_.title());
  writer.setPageLayout(pageLayout());
  const auto reason = view_.print(writer) ? write_whole_file(path, document)
                                          : std::optional(tr("the page cannot be drawn"));
  if (reason) {
    dialogs_.alert(tr("Not saved"), tr("Velquon can't write the file %1: %2.").arg(path, *reason));
  } else {
    accept();
  }
}

}  // namespace velquon
