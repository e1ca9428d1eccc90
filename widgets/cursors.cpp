// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/cursors.h"

#include <QGuiApplication>
#include <QPixmap>
#include <algorithm>
#include <cmath>

#include "widgets/png_image.h"

namespace velquon {

namespace {

constexpr int cursor_size = 16;
constexpr int largest_image = 3;  // times the cursor's size

/// The image of a cursor made for a ratio, or for the next larger one there is.
QImage image_for(const QString& name, double ratio) {
  const int times = std::clamp(static_cast<int>(std::ceil(ratio)), 1, largest_image);
  const QString size = times == 1 ? QString() : QStringLiteral("@%1x").arg(times);
  QImage image = png_image(QStringLiteral(":/cursors/%1%2.png").arg(name, size));
  // In pixels, whatever ratio Qt takes from the name.
  image.setDevicePixelRatio(1.0);
  return image;
}

}  // namespace

QCursor cursor_named(const QString& name, QPoint hot_spot, double ratio) {
  QImage image = image_for(name, ratio);
  const int side = qRound(cursor_size * ratio);
  if (image.width() != side) {
    image = image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  QPixmap pixmap = QPixmap::fromImage(image);
  pixmap.setDevicePixelRatio(ratio);
  // X takes image and hot spot in device pixels, and both as they are given here.
  return QCursor(pixmap, qRound(hot_spot.x() * ratio), qRound(hot_spot.y() * ratio));
}

QCursor cursor_named(const QString& name, QPoint hot_spot) {
  return cursor_named(name, hot_spot, qGuiApp->devicePixelRatio());
}

}  // namespace velquon
