// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/desktop.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <clocale>

#include "app/readable_style.h"
#include "widgets/accessible_controls.h"
#include "widgets/png_image.h"
#include "widgets/surface_format.h"

namespace velquon {

void prepare_desktop() {
  // GLUT needs X, so on a Wayland desktop the windows go through its X server.
  qputenv("QT_QPA_PLATFORM", "xcb");
  use_compatibility_contexts();
}

void finish_desktop() {
  // A desktop's locale would put a comma into the values, in every language, and end the reading of "2.5" at the point.
  std::setlocale(LC_NUMERIC, "C");
  QLocale::setDefault(QLocale::c());
  install_accessible_controls();
  make_style_readable();
  QIcon icon;
  for (const int size : {16, 32, 48}) {
    icon.addPixmap(
        QPixmap::fromImage(png_image(QStringLiteral(":/icons/velquon-%1.png").arg(size))));
  }
  QApplication::setWindowIcon(icon);
  QGuiApplication::setDesktopFileName(QStringLiteral("velquon"));
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace velquon
