// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>
#include <optional>
#include <utility>

#include "printing/picture_caption.h"

namespace velquon {

/// What a picture's file tells of it beside the picture, as keys and texts.
using PictureTexts = QList<std::pair<QString, QString>>;

/// Size of a picture with its caption, pixels.
/// \param picture size of the picture alone, view units
/// \param scale   pixels per view unit
[[nodiscard]] QSize captioned_size(QSize picture, double scale, const PictureCaption& caption);

/// A picture above its caption, which is drawn at the picture's scale.
/// \param picture opaque, drawn with `scale` pixels per view unit
/// \return nothing when there is no memory for it
[[nodiscard]] std::optional<QImage> with_caption(const QImage& picture, double scale,
                                                 const PictureCaption& caption);

/// An opaque picture as a PNG file. Its physical size is that of the view on a screen of 96 dots an inch,
/// whatever its scale.
/// \return nothing for a null picture
[[nodiscard]] std::optional<QByteArray> png_file(const QImage& picture, double scale,
                                                 const PictureTexts& texts);

}  // namespace velquon
