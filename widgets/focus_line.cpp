// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/focus_line.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "widgets/contrast.h"

namespace velquon {

FocusLine::FocusLine(QWidget* parent) : QWidget(parent) {
  constexpr int thickness = 3;
  setFixedHeight(thickness);
}

void FocusLine::watch(QWidget* view) {
  view_ = view;
  view->installEventFilter(this);
}

bool FocusLine::isOn() const {
  return view_ != nullptr && view_->hasFocus();
}

bool FocusLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    update();
  }
  return QWidget::eventFilter(watched, event);
}

void FocusLine::paintEvent(QPaintEvent* /*event*/) {
  if (!isOn()) {
    return;
  }
  QPainter(this).fillRect(rect(), color());
}

QColor FocusLine::color() const {
  const QColor ground = palette().color(QPalette::Window);
  const QColor text = palette().color(QPalette::WindowText);
  // As far from black as from white.
  constexpr QColor between(0x75, 0x75, 0x75);
  // Told from the window and from the picture, which is black.
  const std::array colors{palette().color(QPalette::Active, QPalette::Highlight), text, between};
  const auto* const found = std::ranges::find_if(colors, [&](const QColor& color) {
    return contrast(color, ground) >= least_contrast &&
           contrast(color, Qt::black) >= least_contrast;
  });
  return found == colors.end() ? text : *found;
}

}  // namespace velquon
