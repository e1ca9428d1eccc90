#include "app/print_panel.h"

#include <QBuffer>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/print_view.h"
#include "app/user_dialogs.h"
#include "app/whole_file.h"

namespace velquon {

namespace {

constexpr double margin = 36.0;  // points

void set_margins(QPagedPaintDevice& device) {
  device.setPageOrientation(QPageLayout::Portrait);
  device.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
}

}  // namespace

PrintPanel::PrintPanel(PrintView& view, QString name, QPrinter& printer, UserDialogs& dialogs,
                       QWidget* parent)
    : QDialog(parent), view_(view), name_(std::move(name)), printer_(printer), dialogs_(dialogs) {
  setWindowTitle(tr("Print"));
  printer_.setDocName(view_.title());
  set_margins(printer_);
  const bool has_printer = !QPrinterInfo::availablePrinterNames().isEmpty();

  auto* const preview = new QPrintPreviewWidget(&printer_, this);
  preview->setObjectName(QStringLiteral("print_preview"));
  preview->setAccessibleName(tr("Preview of the page"));
  preview->fitInView();
  connect(preview, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* page) { view_.print(*page); });

  auto* const state = new QLabel(
      has_printer ? tr("The page can be printed or saved as a PDF file.")
                  : tr("No printer is set up on this computer. The page can be saved as a PDF "
                       "file."));
  state->setObjectName(QStringLiteral("printer_state"));
  state->setWordWrap(true);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(preview, 1);
  layout->addLayout(makePaperRow(preview));
  layout->addWidget(state);
  layout->addWidget(makeButtons(has_printer));
  default_button_->setFocus();
  constexpr QSize panel_size(480, 640);
  resize(panel_size);
}

QLayout* PrintPanel::makePaperRow(QPrintPreviewWidget* preview) {
  auto* const popup = new QComboBox;
  popup->setObjectName(QStringLiteral("paper_popup"));
  auto* const label = new QLabel(tr("Pa&per:"));
  label->setBuddy(popup);
  for (const QPageSize::PageSizeId size : {QPageSize::A4, QPageSize::Letter}) {
    popup->addItem(QPageSize::name(size), size);
  }
  const int usual = popup->findData(printer_.pageLayout().pageSize().id());
  popup->setCurrentIndex(std::max(usual, 0));
  const auto take_choice = [this, popup, preview] {
    printer_.setPageSize(QPageSize(popup->currentData().value<QPageSize::PageSizeId>()));
    set_margins(printer_);
    preview->updatePreview();
  };
  take_choice();
  connect(popup, &QComboBox::currentIndexChanged, this, take_choice);
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(popup);
  row->addStretch();
  return row;
}

QWidget* PrintPanel::makeButtons(bool has_printer) {
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  auto* const pdf_button = buttons->addButton(tr("Save as P&DF…"), QDialogButtonBox::ActionRole);
  auto* const print_button = buttons->addButton(tr("P&rint…"), QDialogButtonBox::ActionRole);
  pdf_button->setObjectName(QStringLiteral("pdf_button"));
  print_button->setObjectName(QStringLiteral("print_button"));
  print_button->setEnabled(has_printer);
  default_button_ = has_printer ? print_button : pdf_button;
  default_button_->setDefault(true);
  connect(pdf_button, &QPushButton::clicked, this, &PrintPanel::saveAsPdf);
  connect(print_button, &QPushButton::clicked, this, &PrintPanel::sendToPrinter);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void PrintPanel::sendToPrinter() {
  QPrintDialog dialog(&printer_, this);
  if (dialog.exec() != QDialog::Accepted) {
    return;
  }
  if (view_.print(printer_)) {
    accept();
  } else {
    dialogs_.alert(tr("Not printed"),
                   tr("The printer %1 did not take the page.").arg(printer_.printerName()));
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
  writer.setPageSize(printer_.pageLayout().pageSize());
  set_margins(writer);
  const auto reason = view_.print(writer) ? write_whole_file(path, document)
                                          : std::optional(tr("the page cannot be drawn"));
  if (reason) {
    dialogs_.alert(tr("Not saved"), tr("Velquon can't write the file %1: %2.").arg(path, *reason));
  } else {
    accept();
  }
}

}  // namespace velquon
