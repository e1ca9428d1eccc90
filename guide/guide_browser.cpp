// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_browser.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QWheelEvent>
#include <algorithm>

namespace velquon {

namespace {

constexpr int most_steps = 16;
constexpr int fewest_steps = -3;

void mark_head(QTextTable& table, const QPalette& palette) {
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell cell = table.cellAt(0, column);
    QTextCharFormat format = cell.format();
    format.setBackground(palette.alternateBase());
    cell.setFormat(format);
  }
}

/// Width of a picture of the page, pixels; 0 when it has none.
int width_of_picture(const QTextDocument& page, const QString& name) {
  // The browser has the bytes of a picture, and the picture once it has been drawn.
  const QVariant found = page.resource(QTextDocument::ImageResource, QUrl(name));
  return found.typeId() == QMetaType::QByteArray ? QImage::fromData(found.toByteArray()).width()
                                                 : found.value<QImage>().width();
}

}  // namespace

GuideBrowser::GuideBrowser(QWidget* parent) : QTextBrowser(parent) {
  constexpr int text_margin = 18;
  setFrameShape(QFrame::NoFrame);
  document()->setDocumentMargin(text_margin);
}

void GuideBrowser::enlarge(int steps) {
  const int wanted = std::clamp(steps_ + steps, fewest_steps, most_steps);
  zoomIn(wanted - steps_);
  steps_ = wanted;
  fitPictures();
  Q_EMIT sizeChanged();
}

bool GuideBrowser::canEnlarge() const {
  return steps_ < most_steps;
}

bool GuideBrowser::canReduce() const {
  return steps_ > fewest_steps;
}

void GuideBrowser::goToBlock(int number) {
  const QTextBlock block = document()->findBlockByNumber(number);
  QTextCursor cursor(block);
  setTextCursor(cursor);
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
}

void GuideBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  QTextBrowser::doSetSource(url, type);
  dressTables();
  fitPictures();
}

void GuideBrowser::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  fitPictures();
}

void GuideBrowser::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(event);
    return;
  }
  // Qt's own would leave the steps unknown.
  event->accept();
  // A touchpad turns by parts of a notch.
  turned_ += event->angleDelta().y();
  const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) {
    enlarge(steps);
  }
}

void GuideBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    dressTables();
  }
}

void GuideBrowser::dressTables() {
  constexpr double padding = 5.0;
  const QList<QTextFrame*> frames = document()->rootFrame()->childFrames();
  for (QTextFrame* const frame : frames) {
    if (auto* const table = qobject_cast<QTextTable*>(frame)) {
      QTextTableFormat format = table->format();
      format.setBorder(1.0);
      format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      format.setBorderBrush(palette().mid());
      format.setBorderCollapse(true);
      format.setCellPadding(padding);
      format.setCellSpacing(0.0);
      table->setFormat(format);
      mark_head(*table, palette());
    }
  }
}

void GuideBrowser::fitPictures() {
  const double room = viewport()->width() - 2.0 * document()->documentMargin();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      QTextImageFormat format = part.fragment().charFormat().toImageFormat();
      if (!format.isValid()) {
        continue;
      }
      const double width = std::min<double>(width_of_picture(*document(), format.name()), room);
      if (width <= 0.0 || format.width() == width) {
        continue;
      }
      format.setWidth(width);
      QTextCursor cursor(document());
      cursor.setPosition(part.fragment().position());
      cursor.setPosition(part.fragment().position() + part.fragment().length(),
                         QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      // The block's parts are other ones now.
      part = block.begin();
    }
  }
}

}  // namespace velquon
