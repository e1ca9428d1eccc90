// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_status.h"

#include <QAccessible>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMainWindow>

namespace velquon {

TrackStatus::TrackStatus(QMainWindow& window)
    : window_(window),
      text_(
          new QLabel(tr("The Track window is active: Track > Deactivate gives the menus back."))) {
  setObjectName(QStringLiteral("track_status"));
  setSizeGripEnabled(false);
  text_->setObjectName(QStringLiteral("track_status_text"));
  // A line too long for a narrow window is cut rather than that it widens the window.
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  text_->setToolTip(text_->text());
  constexpr int beside = 6;
  text_->setContentsMargins(beside, 0, beside, 0);
  addWidget(text_, 1);
  hide();
  window.setStatusBar(this);
  window.installEventFilter(this);
}

void TrackStatus::setActive(bool active) {
  if (active != isHidden()) {
    return;
  }
  // Window and line change before the layout looks at them: else the view would be made smaller and
  // larger again.
  QLayout& layout = *window_.layout();
  layout.setEnabled(false);
  setVisible(active);
  settleHeight();
  layout.setEnabled(true);
  layout.activate();
  if (active) {
    tellScreenReaders();
  }
}

bool TrackStatus::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && needsOtherHeight()) {
    // When the window has the size that it comes back to from the whole screen.
    QMetaObject::invokeMethod(this, &TrackStatus::settleHeight, Qt::QueuedConnection);
  }
  return QStatusBar::eventFilter(watched, event);
}

bool TrackStatus::needsOtherHeight() const {
  return has_room_ == isHidden() && !window_.isMaximized() && !window_.isFullScreen();
}

void TrackStatus::settleHeight() {
  if (needsOtherHeight()) {
    has_room_ = !isHidden();
    const int room = sizeHint().height();
    window_.resize(window_.width(), window_.height() + (has_room_ ? room : -room));
  }
}

void TrackStatus::tellScreenReaders() {
  QAccessibleEvent alert(text_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace velquon
