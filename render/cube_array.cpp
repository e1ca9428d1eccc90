// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/cube_array.h"

#include <GL/gl.h>

#include <algorithm>
#include <array>

#include "render/track_colors.h"

namespace velquon {

namespace {

// Corner i lies on the positive side of axis a where bit a of i is set.
constexpr std::size_t corners_per_cube = 8;
constexpr unsigned first_corner = 0;
constexpr unsigned last_corner = corners_per_cube - 1;

// On which side of a cube, along one axis, the eye is.
constexpr unsigned below = 0;
constexpr unsigned between = 1;
constexpr unsigned above = 2;

/// The outline of a cube from one of the 27 regions around it, as triangles.
struct Outline {
  std::array<std::uint32_t, 12> corners{};
  std::size_t size = 0;
};

constexpr Outline as_triangles(std::span<const unsigned> ring) {
  Outline outline;
  for (std::size_t i = 2; i < ring.size(); ++i) {
    for (const std::size_t corner : {std::size_t{0}, i - 1, i}) {
      outline.corners[outline.size++] = ring[corner];
    }
  }
  return outline;
}

/// \param sides the eye's side along x, y and z
constexpr Outline outline_from(const std::array<unsigned, 3>& sides) {
  unsigned nearest = 0;    // a corner nearest to the eye
  unsigned towards = 0;    // axes along which the eye looks at a face
  unsigned undecided = 0;  // axes along which it is between the faces
  int faces = 0;
  for (unsigned axis = 0; axis < 3; ++axis) {
    const unsigned bit = 1U << axis;
    nearest |= sides[axis] == above ? bit : 0U;
    (sides[axis] == between ? undecided : towards) |= bit;
    faces += sides[axis] == between ? 0 : 1;
  }
  if (faces == 3) {
    // All corners but the nearest and the one opposite to it.
    return as_triangles(std::array{nearest ^ 1U, nearest ^ 3U, nearest ^ 2U, nearest ^ 6U,
                                   nearest ^ 4U, nearest ^ 5U});
  }
  if (faces == 2) {
    // Two faces with a common edge along the undecided axis: down one side of them, up the other.
    const unsigned one = towards & (~towards + 1U);
    const unsigned other = towards ^ one;
    return as_triangles(std::array{nearest ^ one, nearest, nearest ^ other,
                                   nearest ^ other ^ undecided, nearest ^ undecided,
                                   nearest ^ one ^ undecided});
  }
  if (faces == 1) {
    const unsigned one = undecided & (~undecided + 1U);
    return as_triangles(
        std::array{nearest, nearest ^ one, nearest ^ undecided, nearest ^ undecided ^ one});
  }
  return {};
}

constexpr std::array<Outline, 27> outlines = [] {
  std::array<Outline, 27> all{};
  for (unsigned region = 0; region < all.size(); ++region) {
    all[region] = outline_from({region / 9, region / 3 % 3, region % 3});
  }
  return all;
}();

unsigned side_of(float eye, float low, float high) {
  return (eye >= low ? between : below) + (eye > high ? above - between : 0U);
}

}  // namespace

void CubeArray::build(std::span<const PlotPoint> points, float side) {
  corners_.clear();
  corners_.reserve(points.size() * corners_per_cube);
  const float half = side / 2.0F;
  for (const PlotPoint& point : points) {
    const auto& [red, green, blue] = track_color(point.code);
    for (unsigned corner = 0; corner < corners_per_cube; ++corner) {
      const auto offset = [=](unsigned axis) {
        return ((corner >> axis) & 1U) != 0U ? half : -half;
      };
      corners_.push_back({static_cast<float>(point.coords[0]) + offset(0),
                          static_cast<float>(point.coords[1]) + offset(1),
                          static_cast<float>(point.coords[2]) + offset(2), red, green, blue});
    }
  }
}

void CubeArray::outline(std::size_t points, const Vector& eye) {
  const std::array<float, 3> at{static_cast<float>(eye[0]), static_cast<float>(eye[1]),
                                static_cast<float>(eye[2])};
  const auto& [x, y, z] = at;
  indices_.resize(points * outlines.front().corners.size());
  auto out = indices_.begin();
  for (std::size_t base = 0; base < points * corners_per_cube; base += corners_per_cube) {
    const Corner& low = corners_[base + first_corner];
    const Corner& high = corners_[base + last_corner];
    const Outline& seen = outlines[9 * side_of(x, low.x, high.x) + 3 * side_of(y, low.y, high.y) +
                                   side_of(z, low.z, high.z)];
    for (std::size_t i = 0; i < seen.size; ++i) {
      *out++ = static_cast<std::uint32_t>(base) + seen.corners[i];
    }
  }
  indices_.erase(out, indices_.end());
}

void CubeArray::draw(std::size_t points, const Vector& eye) {
  outline(std::min(points, corners_.size() / corners_per_cube), eye);
  if (indices_.empty()) {
    return;
  }
  glPushAttrib(GL_LIGHTING_BIT);
  glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
  glShadeModel(GL_FLAT);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glVertexPointer(3, GL_FLOAT, sizeof(Corner), &corners_.front().x);
  glColorPointer(3, GL_FLOAT, sizeof(Corner), &corners_.front().red);
  glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(indices_.size()), GL_UNSIGNED_INT,
                 indices_.data());
  glPopClientAttrib();
  glPopAttrib();
}

}  // namespace velquon
