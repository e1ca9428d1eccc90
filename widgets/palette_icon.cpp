// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/palette_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include "widgets/contrast.h"
#include "widgets/png_image.h"

namespace velquon {

namespace {

/// The icon of images for screens with one and with two pixels a unit.
QIcon icon_of(const QString& path) {
  QIcon icon;
  for (const char* const ending : {".png", "@2x.png"}) {
    icon.addPixmap(QPixmap::fromImage(png_image(path + QLatin1String(ending))));
  }
  return icon;
}

class PaletteIconEngine : public QIconEngine {
 public:
  explicit PaletteIconEngine(const QString& name)
      : dark_(icon_of(QStringLiteral(":/icons/") + name)),
        light_(icon_of(QStringLiteral(":/icons/light/") + name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    lines().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    constexpr qreal size_is_in_pixels = 1.0;
    return lines().pixmap(size, size_is_in_pixels, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return dark_.actualSize(size, mode, state);
  }
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
    return dark_.availableSizes(mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

 private:
  PaletteIconEngine(const PaletteIconEngine&) = default;

  /// The icon whose lines can be seen on the buttons of now.
  [[nodiscard]] const QIcon& lines() const {
    const QColor button = QGuiApplication::palette().color(QPalette::Button);
    return contrast(Qt::black, button) >= contrast(Qt::white, button) ? dark_ : light_;
  }

  QIcon dark_;
  QIcon light_;
};

}  // namespace

QIcon palette_icon(const QString& name) {
  return QIcon(new PaletteIconEngine(name));
}

}  // namespace velquon
