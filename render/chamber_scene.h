#pragma once

#include <span>

#include "engine/event_record.h"

namespace velquon {

/// Size of the chamber view's picture in view units; it does not follow the widget's size.
inline constexpr int chamber_width = 682;
inline constexpr int chamber_height = 500;

/// Side of a point's cube on the screen and on paper, drawing units.
inline constexpr float screen_cube_side = 4.5F;
inline constexpr float paper_cube_side = 2.25F;

// Steps of a drawing pass. All draw in chamber drawing units with the matrices as they stand; the
// context must be current.

/// Loads the resting viewpoint: perspective, eye and the small turns that set the chamber right.
void load_resting_viewpoint();

/// The wire cube, the axes if wanted, and the outline of the middle plane.
void draw_chamber_frame(bool with_axes);

/// Each point as a solid cube of its code's colour, one GLUT call a point.
/// \param mark_cubes puts a pass-through mark ahead of each cube, for reading the feedback
void draw_solid_cubes(std::span<const PlotPoint> points, float side, bool mark_cubes);

/// Sets the raster position and its colour for the values overlay, seen from a viewpoint of its own
/// that does not turn.
void place_overlay_text();

/// Value of the pass-through mark ahead of a cube.
inline constexpr float cube_mark = 1.0F;

}  // namespace velquon
