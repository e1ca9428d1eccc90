// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

#include "model/listeners.h"
#include "model/projection_mapping.h"
#include "model/reading.h"
#include "model/tape.h"

namespace velquon {

/// What the mouse does in the projection.
enum class ProjectorTool : std::uint8_t { tape, grab };

/// Size of the projection for which its defaults are made, view units. A page shows it at this size.
inline constexpr int projection_width = 470;
inline constexpr int projection_height = 420;

/// What the projector shows an event with: plane, zoom, place of the picture, tool and tape measure.
/// Places are view units with y upwards.
class Projector {
 public:
  /// Told after each change of the picture, the tape or its reading.
  Listeners changed;

  Projector() { resetOffsets(); }

  [[nodiscard]] ProjectionPlane plane() const { return plane_; }
  [[nodiscard]] float zoom() const { return zoom_; }
  [[nodiscard]] ProjectorTool tool() const { return tool_; }
  /// Centimetres of the chamber per view unit at zoom 1.
  [[nodiscard]] double scaler() const { return scaler_; }
  [[nodiscard]] const Tape& tape() const { return tape_; }

  /// Hides the tape and puts the picture back to its place.
  void setPlane(ProjectionPlane plane);
  /// Hides the tape; the picture keeps its offsets.
  void setZoom(float zoom);
  /// Hides the tape.
  void setTool(ProjectorTool tool);
  /// A tape that is laid out is read anew.
  void setScaler(double scaler);

  void resetOffsets();
  /// Puts the picture back to its place and hides the tape, for a new event.
  void restore();

  /// The mouse button went down at a place, moved or went up: lays out the tape or moves the
  /// picture, as the tool says.
  void press(Place place);
  void drag(Place place);
  void release(Place place);

  /// Distance between the tape's ends, cm of the chamber.
  [[nodiscard]] double tapeLength() const;
  /// What the tape reads, cm; 0 while it is hidden.
  [[nodiscard]] double reading() const { return reading_; }

  /// What the chosen tool reads of what is laid out; empty while nothing is.
  [[nodiscard]] std::vector<Reading> readings() const;

  /// The picture hangs from the top of the view: with another height of the view tape and grab stay
  /// on what they are at.
  void setViewHeight(double height);
  /// Height that the tape's places are meant for.
  [[nodiscard]] double viewHeight() const { return view_height_; }

  /// The way from drawing units to view units on the screen.
  [[nodiscard]] ProjectionMapping mapping() const { return mappingAt(view_height_); }
  /// The way to a picture of another height, such as a page's.
  [[nodiscard]] ProjectionMapping mappingAt(double height) const;

 private:
  void hideTape();
  void stretchTape(Place place);
  void grabTo(Place place);

  ProjectionPlane plane_ = ProjectionPlane::xy;
  float zoom_ = 1.0F;
  ProjectorTool tool_ = ProjectorTool::tape;
  double OffV_ = 0.0;
  double OffH_ = 0.0;
  double scaler_ = 0.0;
  Tape tape_;
  double reading_ = 0.0;
  Place last_grab_;
  double view_height_ = projection_height;
};

}  // namespace velquon
