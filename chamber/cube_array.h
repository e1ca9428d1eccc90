#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "engine/event_record.h"

namespace velquon {

/// The cubes of an event's points as one array of corners, built once when the event changes. A
/// cube a call of GLUT costs some ten times as much.
class CubeArray {
 public:
  /// \param side side of a cube, drawing units
  void build(std::span<const PlotPoint> points, float side);

  /// Draws the cubes of the first points with the matrices as they stand, in the order of the
  /// points and without their back faces. The context must be current.
  void draw(std::size_t points) const;

 private:
  struct Corner {
    float x, y, z;
    float red, green, blue;
  };

  std::vector<Corner> corners_;
  std::vector<std::uint32_t> indices_;
};

}  // namespace velquon
