// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <cstdint>

class QAction;

namespace velquon {

/// Keeps actions from being chosen again and again while their keys are held down. An X server
/// repeats a held key by releases and presses; Qt knows them for repetitions only while both are in
/// its queue and next to each other, which they often are not when an action takes its time.
class HeldKeys : public QObject, public QAbstractNativeEventFilter {
 public:
  HeldKeys();

  /// From now on the action's keys choose it once, however long they are held.
  void guard(QAction& action);

  bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::uint8_t released_key_ = 0;
  std::uint32_t released_at_ = 0;  ///< the server's time
  bool repeats_ = false;           ///< the latest press repeats the one before
};

}  // namespace velquon
