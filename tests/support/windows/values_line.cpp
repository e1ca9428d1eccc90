// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/values_line.h"

#include <GL/gl.h>

#include <QOpenGLFramebufferObject>

#include "render/overlay_text.h"

namespace velquon::test {

QImage values_line_unscaled(ChamberView& chamber) {
  chamber.makeCurrent();
  QOpenGLFramebufferObject target(chamber_width, chamber_height);
  target.bind();
  glViewport(0, 0, chamber_width, chamber_height);
  glClear(GL_COLOR_BUFFER_BIT);
  OverlayText().draw(chamber.values_text(), 1.0, Camera());
  QImage picture = target.toImage().convertToFormat(QImage::Format_RGB32);
  target.release();
  chamber.doneCurrent();
  return picture;
}

}  // namespace velquon::test
