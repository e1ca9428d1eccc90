// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chamber/chamber_picture.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QSize>
#include <string>

#include "render/off_screen.h"
#include "render/overlay_text.h"

namespace velquon {

namespace {

/// Writes the line of values where the screen has it, as long as there.
void write_values(QImage& picture, const std::string& values, const Camera& camera, double scale) {
  constexpr int pixels_on_screen = 12;
  QFont font(QStringLiteral("Helvetica"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(pixels_on_screen);
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  font.setHintingPreference(QFont::PreferNoHinting);
  const QString text = QString::fromStdString(values);
  const auto [x, y] = overlay_text_start(camera);
  QPainter painter(&picture);
  painter.setPen(Qt::white);
  painter.setFont(font);
  painter.scale(scale, scale);
  painter.translate(x, chamber_height - y);
  // Another font of the kind may be in its place.
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  painter.scale(overlay_text_width(values) / width, 1.0);
  painter.drawText(QPointF(0.0, 0.0), text);
}

}  // namespace

std::optional<QImage> chamber_picture(std::span<const PlotPoint> points, const Camera& camera,
                                      double scale, const SceneOptions& options) {
  const bool is_of_screen_size = scale == 1.0;
  SceneOptions drawn = options;
  if (!is_of_screen_size) {
    drawn.values.clear();
  }
  ChamberScene scene;
  scene.setPoints(points);
  auto picture = draw_off_screen((QSizeF(chamber_width, chamber_height) * scale).toSize(),
                                 [&] { scene.draw(camera, scale, points.size(), drawn); });
  if (picture) {
    picture->convertTo(QImage::Format_RGB32);
  }
  if (picture && !options.values.empty() && !is_of_screen_size) {
    write_values(*picture, options.values, camera, scale);
  }
  return picture;
}

}  // namespace velquon
