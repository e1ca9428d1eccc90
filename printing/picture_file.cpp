// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/picture_file.h"

#include <QBuffer>
#include <QPainter>

namespace velquon {

namespace {

constexpr double dots_per_inch = 96.0;
constexpr double metres_per_inch = 0.0254;

}  // namespace

QSize captioned_size(QSize picture, double scale, const PictureCaption& caption) {
  const QSize size = picture + QSize(0, caption_height(caption, picture.width()));
  return (QSizeF(size) * scale).toSize();
}

std::optional<QImage> with_caption(const QImage& picture, double scale,
                                   const PictureCaption& caption) {
  const QSize units = (QSizeF(picture.size()) / scale).toSize();
  if (caption_height(caption, units.width()) == 0) {
    return picture.convertToFormat(QImage::Format_RGB32);
  }
  QImage whole(captioned_size(units, scale, caption), QImage::Format_RGB32);
  if (whole.isNull()) {
    return std::nullopt;
  }
  QPainter page(&whole);
  page.setCompositionMode(QPainter::CompositionMode_Source);
  page.drawImage(0, 0, picture);
  page.setCompositionMode(QPainter::CompositionMode_SourceOver);
  page.scale(scale, scale);
  paint_caption(page, QPointF(0.0, units.height()), units.width(), caption);
  return whole;
}

std::optional<QByteArray> png_file(QImage picture, double scale, const PictureTexts& texts) {
  const int dots_per_metre = qRound(dots_per_inch * scale / metres_per_inch);
  picture.setDotsPerMeterX(dots_per_metre);
  picture.setDotsPerMeterY(dots_per_metre);
  for (const auto& [key, text] : texts) {
    picture.setText(key, text);
  }
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  return picture.save(&bytes, "PNG") ? std::optional(bytes.data()) : std::nullopt;
}

}  // namespace velquon
