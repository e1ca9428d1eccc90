// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chamber/late_input.h"

#include <QCoreApplication>
#include <QInputEvent>

namespace velquon {

void LateInput::setLatest(std::uint32_t time) {
  latest_ = time;
  QCoreApplication::instance()->installEventFilter(this);
}

bool LateInput::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      is_handled_ = isLate(*static_cast<QInputEvent*>(event));
      if (!is_handled_) {
        // Presses come in order.
        QCoreApplication::instance()->removeEventFilter(this);
      }
      break;
    case QEvent::KeyRelease:
    case QEvent::MouseButtonRelease:
      // A button acts on the release, which is still to be handled.
      QMetaObject::invokeMethod(
          this, [this] { is_handled_ = false; }, Qt::QueuedConnection);
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

bool LateInput::isLate(const QInputEvent& press) const {
  // The server's clock comes round every 50 days.
  const auto time = static_cast<std::uint32_t>(press.timestamp());
  return static_cast<std::int32_t>(latest_ - time) >= 0;
}

}  // namespace velquon
