// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_status.h"

#include <QAccessible>
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
}

void TrackStatus::setActive(bool active) {
  if (active != isHidden()) {
    return;
  }
  // Window and line change before the layout looks at them: else the view would be made smaller and
  // larger again.
  QLayout& layout = *window_.layout();
  layout.setEnabled(false);
  if (!window_.isMaximized() && !window_.isFullScreen()) {
    const int room = sizeHint().height();
    window_.resize(window_.width(), window_.height() + (active ? room : -room));
  }
  setVisible(active);
  layout.setEnabled(true);
  layout.activate();
  if (active) {
    tellScreenReaders();
  }
}

void TrackStatus::tellScreenReaders() {
  QAccessibleEvent alert(text_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace velquon
