// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/presentation_panel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace velquon {

/// A legend in the letters and the colour of the panel.
class PresentedLegend : public QWidget {
 public:
  PresentedLegend() {
    setObjectName(QStringLiteral("presentation_legend"));
    QSizePolicy as_high_as_needed(QSizePolicy::Expanding, QSizePolicy::Preferred);
    as_high_as_needed.setHeightForWidth(true);
    setSizePolicy(as_high_as_needed);
  }

  void tell(const std::vector<LegendLine>& lines) {
    lines_ = lines;
    QStringList words;
    for (const LegendLine& line : lines) {
      words << QStringLiteral("%1 %2").arg(line.symbol, line.name);
    }
    setAccessibleName(words.join(QStringLiteral(", ")));
    updateGeometry();
    update();
  }

  [[nodiscard]] int heightForWidth(int width) const override {
    return static_cast<int>(std::ceil(legend_size(lines_, style(), width).height()));
  }
  [[nodiscard]] QSize sizeHint() const override {
    return legend_size(lines_, style(), parentWidget()->width()).toSize();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    paint_legend(painter, rect(), lines_, style());
  }

 private:
  [[nodiscard]] LegendStyle style() const {
    return {.font = font(), .text = palette().color(QPalette::WindowText)};
  }

  std::vector<LegendLine> lines_;
};

namespace {

QLabel* make_label(const QString& name) {
  auto* const label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

/// Whether a panel of a size is beside the picture; else it is below.
bool is_beside(QSize panel) {
  return panel.width() < panel.height();
}

/// Height of the letters that go into a panel, pixels: some words a line beside a picture, a few
/// lines below one.
int letter_height(QSize panel) {
  constexpr int letters_across = 14;
  constexpr int lines_below = 5;
  return std::max(is_beside(panel) ? panel.width() / letters_across : panel.height() / lines_below,
                  1);
}

}  // namespace

PresentationPanel::PresentationPanel(QWidget* parent)
    : QWidget(parent),
      title_(make_label(QStringLiteral("presentation_title"))),
      legend_(new PresentedLegend),
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
  layout->addWidget(legend_);
  layout->addStretch(1);
  layout->addWidget(readings_);
}

void PresentationPanel::tell(const PresentedTexts& texts) {
  title_->setText(texts.title);
  legend_->tell(texts.legend);
  readings_->setText(texts.readings);
}

void PresentationPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int height = letter_height(event->size());
  QFont letters = font();
  letters.setPixelSize(height);
  for (QWidget* const text : std::initializer_list<QWidget*>{title_, legend_, readings_}) {
    text->setFont(letters);
  }
  auto& parts = static_cast<QBoxLayout&>(*layout());
  parts.setContentsMargins(height / 2, height / 2, height / 2, height / 2);
  parts.setSpacing(height);
  const bool beside = is_beside(event->size());
  parts.setDirection(beside ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  // Beside, title and legend are at the top and the readings at the foot; below, all share the width.
  constexpr std::array<int, 4> one_below_the_other{0, 0, 1, 0};
  constexpr std::array<int, 4> side_by_side{3, 4, 0, 3};
  int part = 0;
  for (const int stretch : beside ? one_below_the_other : side_by_side) {
    parts.setStretch(part++, stretch);
  }
}

}  // namespace velquon
