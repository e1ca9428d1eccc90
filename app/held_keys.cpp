// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/held_keys.h"

#include <xcb/xcb.h>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>

namespace velquon {

HeldKeys::HeldKeys() {
  // Taken away again by its destructor.
  QCoreApplication::instance()->installNativeEventFilter(this);
}

void HeldKeys::guard(QAction& action) {
  action.setAutoRepeat(false);
  action.installEventFilter(this);
}

bool HeldKeys::nativeEventFilter(const QByteArray& kind, void* message, qintptr* /*result*/) {
  if (kind != "xcb_generic_event_t") {
    return false;
  }
  constexpr unsigned sent_by_program = 0x80;
  const auto type =
      static_cast<const xcb_generic_event_t*>(message)->response_type & ~sent_by_program;
  const auto* const key = static_cast<const xcb_key_press_event_t*>(message);
  if (type == XCB_KEY_RELEASE) {
    released_key_ = key->detail;
    released_at_ = key->time;
    repeats_ = false;
  } else if (type == XCB_KEY_PRESS) {
    // The server reads its clock for the release and again for the press.
    constexpr std::uint32_t one_moment = 25;  // milliseconds
    repeats_ = key->detail == released_key_ && key->time - released_at_ <= one_moment;
  }
  return false;
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  return (event->type() == QEvent::Shortcut && repeats_) || QObject::eventFilter(watched, event);
}

}  // namespace velquon
