// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/extension_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <array>

namespace velquon {

namespace {

class ExtensionIconEngine : public QIconEngine {
 public:
  explicit ExtensionIconEngine(Qt::ArrowType towards) : towards_(towards) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    constexpr double line_width = 0.12;  // of the icon's side, like the places below
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor color = QGuiApplication::palette().color(group, QPalette::ButtonText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF(rect).center());
    painter->rotate(degrees());
    const double side = std::min(rect.width(), rect.height());
    painter->scale(side, side);
    painter->setPen(QPen(color, line_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const double tip : {0.0, 0.3}) {
      painter->drawPolyline(
          std::array{QPointF(tip - 0.2, -0.25), QPointF(tip, 0.0), QPointF(tip - 0.2, 0.25)}.data(),
          3);
    }
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawing(size);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return drawing;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new ExtensionIconEngine(*this); }

 private:
  /// From the arrow to the right, clockwise.
  [[nodiscard]] double degrees() const {
    switch (towards_) {
      case Qt::DownArrow:
        return 90.0;
      case Qt::LeftArrow:
        return 180.0;
      default:
        return 0.0;
    }
  }

  Qt::ArrowType towards_;
};

}  // namespace

QIcon extension_icon(Qt::ArrowType towards) {
  return QIcon(new ExtensionIconEngine(towards));
}

}  // namespace velquon
