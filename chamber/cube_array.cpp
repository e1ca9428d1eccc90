#include "chamber/cube_array.h"

#include <GL/gl.h>

#include <algorithm>
#include <array>

#include "chamber/track_colors.h"

namespace velquon {

namespace {

constexpr std::size_t corners_per_cube = 8;

// Corner i lies on the positive side of axis a where bit a of i is set. Two triangles a face,
// counter clockwise seen from outside.
constexpr std::array<std::uint32_t, 36> cube_triangles{
    1, 3, 7, 1, 7, 5,  // +x
    0, 4, 6, 0, 6, 2,  // -x
    2, 6, 7, 2, 7, 3,  // +y
    0, 1, 5, 0, 5, 4,  // -y
    4, 5, 7, 4, 7, 6,  // +z
    0, 2, 3, 0, 3, 1,  // -z
};

}  // namespace

void CubeArray::build(std::span<const PlotPoint> points, float side) {
  corners_.clear();
  indices_.clear();
  corners_.reserve(points.size() * corners_per_cube);
  indices_.reserve(points.size() * cube_triangles.size());
  const float half = side / 2.0F;
  for (const PlotPoint& point : points) {
    const auto base = static_cast<std::uint32_t>(corners_.size());
    const auto& [red, green, blue] = track_color(point.code);
    for (unsigned corner = 0; corner < corners_per_cube; ++corner) {
      const auto offset = [=](unsigned axis) {
        return ((corner >> axis) & 1U) != 0U ? half : -half;
      };
      corners_.push_back({static_cast<float>(point.coords[0]) + offset(0),
                          static_cast<float>(point.coords[1]) + offset(1),
                          static_cast<float>(point.coords[2]) + offset(2), red, green, blue});
    }
    std::ranges::transform(cube_triangles, std::back_inserter(indices_),
                           [=](std::uint32_t corner) { return base + corner; });
  }
}

void CubeArray::draw(std::size_t points) const {
  if (points == 0) {
    return;
  }
  glPushAttrib(GL_ENABLE_BIT);
  glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
  glEnable(GL_CULL_FACE);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glVertexPointer(3, GL_FLOAT, sizeof(Corner), &corners_.front().x);
  glColorPointer(3, GL_FLOAT, sizeof(Corner), &corners_.front().red);
  const auto count = std::min(points * cube_triangles.size(), indices_.size());
  glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(count), GL_UNSIGNED_INT, indices_.data());
  glPopClientAttrib();
  glPopAttrib();
}

}  // namespace velquon
