// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/tool_drawing.h"

#include <GL/gl.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "model/tool_lines.h"
#include "render/line_arrays.h"

namespace velquon {

namespace {

Corner corner_at(Place place) {
  return {static_cast<float>(place.x), static_cast<float>(place.y), 0.0F};
}

void draw_line(Place from, Place to) {
  draw_line_strip(std::array{corner_at(from), corner_at(to)});
}

}  // namespace

void draw_tool(const Projector& projector) {
  for (const ToolLine& line : tool_lines(projector)) {
    glColor3f(line.is_faint ? 0.5F : 1.0F, 0.0F, 0.0F);
    std::vector<Corner> corners;
    std::ranges::transform(line.places, std::back_inserter(corners), corner_at);
    draw_line_strip(corners);
  }
}

void draw_cross(const KeyCross& cross) {
  if (!cross.visible()) {
    return;
  }
  constexpr double reach = 10.0;
  constexpr double gap = 2.0;  // so that what is aimed at is seen
  glColor3f(1.0F, 1.0F, 0.2F);
  for (const Place way : {Place{1.0, 0.0}, Place{-1.0, 0.0}, Place{0.0, 1.0}, Place{0.0, -1.0}}) {
    draw_line(cross.place() + Place{gap * way.x, gap * way.y},
              cross.place() + Place{reach * way.x, reach * way.y});
  }
}

}  // namespace velquon
