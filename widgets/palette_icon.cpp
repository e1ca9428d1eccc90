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
      : dark_{.path = QStringLiteral(":/icons/") + name, .icon = {}},
        light_{.path = QStringLiteral(":/icons/light/") + name, .icon = {}} {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    lines().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    constexpr qreal size_is_in_pixels = 1.0;
    return lines().pixmap(size, size_is_in_pixels, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return lines().actualSize(size, mode, state);
  }
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
    return lines().availableSizes(mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

 private:
  /// An icon that is read when it is first drawn.
  struct Lines {
    QString path;
    QIcon icon;
  };

  PaletteIconEngine(const PaletteIconEngine&) = default;

  /// The icon whose lines can be seen on the buttons of now.
  [[nodiscard]] const QIcon& lines() {
    const QColor button = QGuiApplication::palette().color(QPalette::Button);
    Lines& seen = contrast(Qt::black, button) >= contrast(Qt::white, button) ? dark_ : light_;
    if (seen.icon.isNull()) {
      seen.icon = icon_of(seen.path);
    }
    return seen.icon;
  }

  Lines dark_;
  Lines light_;
};

}  // namespace

QIcon palette_icon(const QString& name) {
  return QIcon(new PaletteIconEngine(name));
}

}  // namespace velquon
