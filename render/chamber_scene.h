// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/event_record.h"
#include "render/camera.h"
#include "render/cube_array.h"
#include "render/feedback.h"
#include "render/overlay_text.h"

namespace velquon {

/// Side of a point's cube on the screen and on paper, drawing units.
inline constexpr float screen_cube_side = 4.5F;
inline constexpr float paper_cube_side = 2.25F;
/// Side of a marked point's cube on the screen.
inline constexpr float marked_cube_side = 11.0F;

/// What is drawn beside the points.
struct SceneOptions {
  bool axes = true;
  /// Line of the overlay, which stands still while the chamber turns; or empty.
  std::string values;
  /// Points that are drawn larger and over the others: their indices, rising.
  std::span<const std::size_t> marked{};
  bool axis_letters = false;         ///< at the tips of the axes, where these are drawn
  std::optional<double> field_kG{};  ///< along z, shown by an arrow unless it is 0; or no arrow
};

/// The picture of the chamber: its edges, axes and middle plane, and an event's points as cubes. On
/// a page no point is marked.
class ChamberScene {
 public:
  /// Takes the points of an event.
  void setPoints(std::span<const PlotPoint> points);

  /// Draws into the current framebuffer.
  /// \param camera where the chamber is seen from
  /// \param scale  pixels of the framebuffer per view unit; the picture has the chamber's size
  ///               times this, its lower left corner that of the framebuffer
  /// \param points how many of the event's points to draw, from the first
  void draw(const Camera& camera, double scale, std::size_t points, const SceneOptions& options);

  /// The picture as lines and rectangles for a page, in view units with y upwards, every point in
  /// it. Needs a current context, not a framebuffer.
  /// \return nothing when the driver does not hand the picture over
  [[nodiscard]] std::optional<FeedbackPicture> drawForPrinting(const Camera& camera,
                                                               bool axes) const;

 private:
  void drawMarked(std::span<const std::size_t> marked, std::size_t points, const Vector& eye);

  std::vector<PlotPoint> points_;
  CubeArray cubes_;
  OverlayText overlay_text_;
};

/// Draws each point as a solid cube of its code's colour, one GLUT call a point, with the matrices
/// as they stand. A current context is needed.
/// \param mark_cubes puts a pass-through mark ahead of each cube, for reading the feedback
void draw_solid_cubes(std::span<const PlotPoint> points, float side, bool mark_cubes);

/// Value of the pass-through mark ahead of a cube.
inline constexpr float cube_mark = 1.0F;

}  // namespace velquon
