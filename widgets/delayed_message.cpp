// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/delayed_message.h"

#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace velquon {

void perform_after(double seconds, QObject* receiver, const std::function<void()>& message) {
  const auto delay = std::chrono::milliseconds(std::lround(std::max(seconds, 0.0) * 1000.0));
  QTimer::singleShot(delay, Qt::PreciseTimer, receiver, message);
}

}  // namespace velquon
