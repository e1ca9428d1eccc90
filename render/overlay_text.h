// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "render/camera.h"

namespace velquon {

/// A line of bitmap text that is as large in the picture on a screen of many pixels as on any
/// other: its pixels are magnified by the screen's ratio of device pixels to view units.
class OverlayText {
 public:
  /// Draws in white below the chamber at rest. The context must be current; its matrices change.
  /// \param ratio  device pixels of a view unit
  /// \param camera where the chamber is seen from
  void draw(const std::string& text, double ratio, const Camera& camera);

 private:
  void magnify(const std::string& text, double ratio);

  std::string text_;  ///< what the bits show
  double ratio_ = 0.0;
  int width_ = 0;  ///< device pixels
  int height_ = 0;
  std::vector<std::uint8_t> bits_;  ///< rows of whole bytes from the bottom, a bit a pixel
};

/// Where the text's baseline starts in a picture of the chamber's size, from its lower left corner.
[[nodiscard]] std::array<double, 2> overlay_text_start(const Camera& camera);

/// How long the text is in a picture of the chamber's size, view units.
[[nodiscard]] int overlay_text_width(const std::string& text);

}  // namespace velquon
