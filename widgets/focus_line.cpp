// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/focus_line.h"

#include <QEvent>
#include <QPainter>

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
  const QColor ground = palette().color(QPalette::Window);
  const QColor highlight = palette().color(QPalette::Active, QPalette::Highlight);
  // Told from the window and from the picture, which is black.
  const bool stands_out = contrast(highlight, ground) >= least_contrast &&
                          contrast(highlight, Qt::black) >= least_contrast;
  QPainter(this).fillRect(rect(), stands_out ? highlight : palette().color(QPalette::WindowText));
}

}  // namespace velquon
