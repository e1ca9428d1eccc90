// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/png_image.h"

#include <QImageReader>

namespace velquon {

QImage png_image(const QString& path) {
  QImageReader reader(path, "png");
  reader.setAutoDetectImageFormat(false);
  return reader.read();
}

}  // namespace velquon
