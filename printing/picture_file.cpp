// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/picture_file.h"

#include <QBuffer>
#include <QHash>
#include <QPainter>

namespace velquon {

namespace {

constexpr double dots_per_inch = 96.0;
constexpr double metres_per_inch = 0.0254;
constexpr qsizetype palette_size = 256;

/// The shade that stands for a shade of gray where there are too many: one of 129, black and white
/// among them. Only the edges of letters have so many.
QRgb coarse_gray(QRgb color) {
  constexpr int levels = 2;
  const int gray = qRed(color);
  const bool is_gray = gray == qGreen(color) && gray == qBlue(color);
  const int coarse = gray == 255 ? gray : gray / levels * levels;
  return is_gray ? qRgb(coarse, coarse, coarse) : color;
}

/// A picture as numbers of the colours of a palette, which are written several times as fast.
/// \param shade gives the colour that stands for one of the picture
/// \return nothing when it has more colours than a palette
template <typename Shade>
std::optional<QImage> with_palette(const QImage& picture, Shade shade) {
  QImage numbers(picture.size(), QImage::Format_Indexed8);
  QList<QRgb> palette;
  QHash<QRgb, uchar> known;
  std::optional<QRgb> last;
  uchar number = 0;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* const colors = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    uchar* const row = numbers.scanLine(y);
    for (int x = 0; x < picture.width(); ++x) {
      if (colors[x] != last) {
        last = colors[x];
        const QRgb color = shade(colors[x]);
        const auto found = known.constFind(color);
        if (found == known.constEnd() && palette.size() == palette_size) {
          return std::nullopt;
        }
        number = found != known.constEnd() ? *found : static_cast<uchar>(palette.size());
        if (found == known.constEnd()) {
          known.insert(color, number);
          palette.append(color);
        }
      }
      row[x] = number;
    }
  }
  numbers.setColorTable(palette);
  return numbers;
}

/// The picture in the form that is written fastest.
QImage as_written(const QImage& picture) {
  if (auto exact = with_palette(picture, [](QRgb color) { return color; })) {
    return *exact;
  }
  return with_palette(picture, coarse_gray).value_or(picture);
}

}  // namespace

QSize captioned_size(QSize picture, double scale, const PictureCaption& caption) {
  const QSize size = picture + QSize(0, caption_height(caption, picture.width()));
  return (QSizeF(size) * scale).toSize();
}

std::optional<QImage> with_caption(const QImage& picture, double scale,
                                   const PictureCaption& caption) {
  const QSize units = (QSizeF(picture.size()) / scale).toSize();
  if (caption_height(caption, units.width()) == 0) {
    return picture;
  }
  QImage whole(captioned_size(units, scale, caption), QImage::Format_RGB32);
  if (whole.isNull()) {
    return std::nullopt;
  }
  QPainter page(&whole);
  page.drawImage(0, 0, picture);
  page.scale(scale, scale);
  paint_caption(page, QPointF(0.0, units.height()), units.width(), caption);
  return whole;
}

std::optional<QByteArray> png_file(const QImage& picture, double scale, const PictureTexts& texts) {
  QImage written = as_written(picture);
  const int dots_per_metre = qRound(dots_per_inch * scale / metres_per_inch);
  written.setDotsPerMeterX(dots_per_metre);
  written.setDotsPerMeterY(dots_per_metre);
  for (const auto& [key, text] : texts) {
    written.setText(key, text);
  }
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  return written.save(&bytes, "PNG") ? std::optional(bytes.data()) : std::nullopt;
}

}  // namespace velquon
