// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/worksheets.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <vector>

#include "model/seeded_events.h"
#include "model/track_answers.h"
#include "printing/answer_key.h"
#include "printing/page.h"
#include "printing/worksheet_page.h"

namespace velquon {

namespace {

/// A PDF file in memory, drawn page by page.
class PdfDocument {
 public:
  PdfDocument(const QString& title, QPageSize::PageSizeId paper)
      : buffer_(&bytes_),
        layout_(QPageSize(paper), QPageLayout::Portrait, QMarginsF(), QPageLayout::Point) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.emplace(&buffer_);
    writer_->setTitle(title);
    writer_->setCreator(QStringLiteral("Velquon"));
    writer_->setPageLayout(layout_);
    painter_.begin(&*writer_);
  }

  [[nodiscard]] QSizeF paper() const { return layout_.fullRect(QPageLayout::Point).size(); }

  /// Adds a page.
  /// \param paint draws it: a point as its unit, y upwards, the origin at the lower left corner
  void addPage(const std::function<void(QPainter&)>& paint) {
    if (has_page_) {
      writer_->newPage();
    }
    has_page_ = true;
    painter_.save();
    const double scale = writer_->logicalDpiX() / points_per_inch;
    painter_.scale(scale, scale);
    painter_.translate(0.0, paper().height());
    painter_.scale(1.0, -1.0);
    paint(painter_);
    painter_.restore();
  }

  /// Ends the document; no page can be added any more.
  [[nodiscard]] QByteArray finish() {
    painter_.end();
    writer_.reset();
    return bytes_;
  }

 private:
  QByteArray bytes_;
  QBuffer buffer_;
  QPageLayout layout_;
  std::optional<QPdfWriter> writer_;
  QPainter painter_;
  bool has_page_ = false;
};

QByteArray answer_document(const WorksheetOrder& order, const std::vector<AnswerLine>& lines) {
  PdfDocument document(
      QCoreApplication::translate("velquon::AnswerKey", "Answers to the worksheets"), order.paper);
  const int lines_on_page = lines_on_key_page(document.paper());
  const int pages = (static_cast<int>(lines.size()) - 1) / lines_on_page + 1;
  for (int index = 0; index < pages; ++index) {
    document.addPage(
        [&](QPainter& page) { paint_key_page(page, document.paper(), order, lines, index); });
  }
  return document.finish();
}

}  // namespace

std::optional<WorksheetDocuments> make_worksheets(const WorksheetOrder& order,
                                                  const std::function<bool(int)>& goes_on) {
  const std::vector<EventTracks> events =
      seeded_events(*order.type, order.values, order.seed, static_cast<std::size_t>(order.events));
  PdfDocument sheets(QCoreApplication::translate("velquon::Worksheet", "Worksheets"), order.paper);
  std::vector<AnswerLine> lines;
  int number = 0;
  for (const EventTracks& event : events) {
    ++number;
    sheets.addPage([&](QPainter& page) {
      paint_worksheet(page, sheets.paper(), order, number, event.points);
    });
    for (AnswerLine& line : answer_lines(number, answers_of(*event.record, order.values))) {
      lines.push_back(std::move(line));
    }
    if (!goes_on(number)) {
      return std::nullopt;
    }
  }
  return WorksheetDocuments{sheets.finish(), answer_document(order, lines)};
}

}  // namespace velquon
