// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/surface_format.h"

#include <QSurfaceFormat>

namespace velquon {

void use_compatibility_contexts() {
  QSurfaceFormat format;
  format.setRenderableType(QSurfaceFormat::OpenGL);
  format.setVersion(2, 1);
  format.setProfile(QSurfaceFormat::NoProfile);
  QSurfaceFormat::setDefaultFormat(format);
}

}  // namespace velquon
