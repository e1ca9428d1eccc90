// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/off_screen.h"

#include <QOpenGLFramebufferObject>
#include <QSurfaceFormat>

namespace velquon {

OffScreenContext::OffScreenContext()
    : before_(QOpenGLContext::currentContext()),
      surface_before_(before_ != nullptr ? before_->surface() : nullptr) {
  surface_.setFormat(QSurfaceFormat::defaultFormat());
  surface_.create();
  context_.setFormat(QSurfaceFormat::defaultFormat());
  // Once the format is set.
  // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer)
  is_current_ = context_.create() && context_.makeCurrent(&surface_);
}

OffScreenContext::~OffScreenContext() {
  if (is_current_) {
    context_.doneCurrent();
  }
  if (before_ != nullptr) {
    before_->makeCurrent(surface_before_);
  }
}

std::optional<QImage> draw_off_screen(QSize size, const std::function<void()>& draw) {
  const OffScreenContext context;
  if (!context.isValid()) {
    return std::nullopt;
  }
  QOpenGLFramebufferObject target(size, QOpenGLFramebufferObject::CombinedDepthStencil);
  if (!target.bind()) {
    return std::nullopt;
  }
  draw();
  return target.toImage();
}

}  // namespace velquon
