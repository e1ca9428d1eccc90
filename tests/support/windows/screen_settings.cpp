// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/screen_settings.h"

#include <QFile>
#include <QWidget>
#include <csignal>

#include "tests/support/windows/waiting.h"
#include "tests/support/windows/window_manager.h"

namespace velquon::test {

bool can_change_screen_ratio() {
  return qEnvironmentVariableIsSet("VELQUON_SCREEN_SETTINGS");
}

bool change_screen_ratio(double ratio, const QWidget& widget) {
  constexpr double dots_per_inch = 96.0;
  constexpr double setting_units = 1024.0;
  QFile settings(qEnvironmentVariable("VELQUON_SCREEN_SETTINGS"));
  const QByteArray line =
      "Xft/DPI " + QByteArray::number(qRound(dots_per_inch * setting_units * ratio)) + '\n';
  if (!settings.open(QIODevice::WriteOnly) || settings.write(line) != line.size()) {
    return false;
  }
  settings.close();
  return kill(qEnvironmentVariableIntValue("VELQUON_SCREEN_SETTER"), SIGHUP) == 0 &&
         wait_until([&] { return widget.devicePixelRatioF() == ratio; }) &&
         wait_for_window_manager();
}

}  // namespace velquon::test
