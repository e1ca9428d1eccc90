// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/presentation_panel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QResizeEvent>
#include <algorithm>

namespace velquon {

namespace {

QLabel* make_label(const QString& name) {
  auto* const label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

/// Height of the letters that go into a panel, pixels: some lines of words beside a picture, two
/// lines below one.
int letter_height(QSize panel) {
  constexpr int letters_across = 16;
  constexpr int lines_below = 4;
  return std::max(panel.width() < panel.height() ? panel.width() / letters_across
                                                 : panel.height() / lines_below,
                  1);
}

}  // namespace

PresentationPanel::PresentationPanel(QWidget* parent)
    : QWidget(parent),
      title_(make_label(QStringLiteral("presentation_title"))),
      readings_(make_label(QStringLiteral("presentation_readings"))) {
  setObjectName(QStringLiteral("presentation_panel"));
  QPalette white_on_black = palette();
  white_on_black.setColor(QPalette::Window, Qt::black);
  white_on_black.setColor(QPalette::WindowText, Qt::white);
  setPalette(white_on_black);
  setBackgroundRole(QPalette::Window);
  setAutoFillBackground(true);
  auto* const layout = new QBoxLayout(QBoxLayout::TopToBottom, this);
  layout->addWidget(title_);
  layout->addStretch(1);
  layout->addWidget(readings_);
}

void PresentationPanel::tell(const QString& title, const QString& readings) {
  title_->setText(title);
  readings_->setText(readings);
}

void PresentationPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int height = letter_height(event->size());
  QFont letters = font();
  letters.setPixelSize(height);
  title_->setFont(letters);
  readings_->setFont(letters);
  auto& rows = static_cast<QBoxLayout&>(*layout());
  rows.setDirection(width() < this->height() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  rows.setContentsMargins(height, height / 2, height, height / 2);
  rows.setSpacing(height);
}

}  // namespace velquon
