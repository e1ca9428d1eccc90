// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/presentation.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QShortcut>
#include <algorithm>

#include "widgets/gl_view.h"
#include "widgets/view_scroll_area.h"

namespace velquon {

namespace {

bool is_tab(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) {
    return false;
  }
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

}  // namespace

Presentation::Presentation(QMainWindow& window, ViewScrollArea& area,
                           std::unique_ptr<QWidget> panel)
    : window_(window),
      area_(area),
      panel_(std::move(panel)),
      had_keys_(window.focusWidget()),
      escape_(std::make_unique<QShortcut>(Qt::Key_Escape, &window)) {
  if (!window.isMaximized() && !window.isFullScreen()) {
    usual_place_ = window.geometry();
  }
  for (QWidget* widget = &area; widget != &window; widget = widget->parentWidget()) {
    covering_.push_back(widget);
    widget->installEventFilter(this);
    widget->raise();
  }
  window.installEventFilter(this);
  area.view()->installEventFilter(this);
  connect(escape_.get(), &QShortcut::activated, this, &Presentation::endAsked);
  // Before its size changes, which would move what was scrolled to.
  area.present(panel_.get());
  window.setWindowState(window.windowState() | Qt::WindowFullScreen);
  coverAll();
  area.view()->setFocus();
}

Presentation::~Presentation() {
  window_.removeEventFilter(this);
  area_.view()->removeEventFilter(this);
  area_.present(nullptr);
  window_.setWindowState(window_.windowState() & ~Qt::WindowFullScreen);
  if (usual_place_) {
    // The window manager would give it back later, and to a window on the screen only.
    window_.setGeometry(*usual_place_);
  }
  uncover();
  if (had_keys_ != nullptr) {
    had_keys_->setFocus();
  } else {
    area_.view()->clearFocus();
  }
}

bool Presentation::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
      coverAll();
      break;
    case QEvent::Hide:
      if (watched == &window_ && !event->spontaneous()) {
        Q_EMIT endAsked();
      }
      break;
    default:
      break;
  }
  // The next control in the order would be one that is covered.
  return (watched == area_.view() && is_tab(*event)) || QObject::eventFilter(watched, event);
}

void Presentation::coverAll() {
  if (placing_) {
    // A scrolling area keeps its content larger than itself until the window fills the screen.
    return;
  }
  const QScopedValueRollback placing(placing_, true);
  // From the outside; layouts give them other places time and again.
  std::for_each(covering_.rbegin(), covering_.rend(),
                [](QWidget* widget) { widget->setGeometry(widget->parentWidget()->rect()); });
}

void Presentation::uncover() {
  for (QWidget* const widget : covering_) {
    widget->removeEventFilter(this);
  }
  std::for_each(covering_.rbegin(), covering_.rend(), [](const QWidget* widget) {
    if (QLayout* const layout = widget->parentWidget()->layout()) {
      layout->invalidate();
      layout->activate();
    }
  });
}

}  // namespace velquon
