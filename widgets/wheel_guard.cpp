// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/wheel_guard.h"

#include <QEvent>
#include <QWidget>

namespace velquon {

namespace {

class WheelGuard : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const control = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Wheel || control == nullptr || control->hasFocus()) {
      return false;
    }
    event->ignore();
    return true;
  }
};

}  // namespace

void take_wheel_only_with_focus(QWidget& control) {
  control.setFocusPolicy(Qt::StrongFocus);
  control.installEventFilter(new WheelGuard(&control));
}

}  // namespace velquon
