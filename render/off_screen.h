// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSize>
#include <functional>
#include <optional>

namespace velquon {

/// An OpenGL context of its own, without a window, current while the object lives. The context that
/// was current before is so again afterwards.
class OffScreenContext {
 public:
  OffScreenContext();
  ~OffScreenContext();
  OffScreenContext(const OffScreenContext&) = delete;
  OffScreenContext& operator=(const OffScreenContext&) = delete;
  OffScreenContext(OffScreenContext&&) = delete;
  OffScreenContext& operator=(OffScreenContext&&) = delete;

  /// Whether the driver gave a context.
  [[nodiscard]] bool isValid() const { return is_current_; }

 private:
  QOpenGLContext* before_;
  QSurface* surface_before_;
  QOffscreenSurface surface_;
  QOpenGLContext context_;
  bool is_current_ = false;
};

/// Draws a picture without a window.
/// \param size pixels
/// \param draw draws into the current framebuffer, which is as large as the picture
/// \return nothing when the driver has no context or no framebuffer of that size
[[nodiscard]] std::optional<QImage> draw_off_screen(QSize size, const std::function<void()>& draw);

}  // namespace velquon
