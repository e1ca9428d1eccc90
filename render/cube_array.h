// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "engine/event_record.h"
#include "render/camera.h"

namespace velquon {

/// The cubes of an event's points as one array of corners, built once when the event changes and
/// drawn by one call. A cube a call of GLUT costs some five times as much.
///
/// A cube has one colour on all its faces, so all that is seen of it is its outline: a hexagon of
/// six of its corners, or a square of four, which takes a third of a cube's triangles.
class CubeArray {
 public:
  /// \param side side of a cube, drawing units
  void build(std::span<const PlotPoint> points, float side);

  /// Draws the cubes of the first points with the matrices as they stand, which must be those of a
  /// perspective, in the order of the points. The context must be current.
  /// \param eye viewpoint of the matrices, drawing units, outside the cubes
  void draw(std::size_t points, const Vector& eye);

 private:
  struct Corner {
    float x, y, z;
    float red, green, blue;
  };

  void outline(std::size_t points, const Vector& eye);

  std::vector<Corner> corners_;
  std::vector<std::uint32_t> indices_;  ///< of the outlines' triangles as drawn last
};

}  // namespace velquon
