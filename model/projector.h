// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/angle.h"
#include "model/curve.h"
#include "model/listeners.h"
#include "model/placed_points.h"
#include "model/projection_mapping.h"
#include "model/reading.h"
#include "model/shown_event.h"
#include "model/tape.h"

namespace velquon {

/// What the mouse does in the projection.
enum class ProjectorTool : std::uint8_t { tape, grab, curve, angle };

/// Size of the projection for which its defaults are made, view units. A page shows it at this size.
inline constexpr int projection_width = 470;
inline constexpr int projection_height = 420;

/// What the projector shows an event with: plane, zoom, place of the picture, and the tools with what
/// they measure. Places are view units with y upwards.
class Projector {
 public:
  /// Told after each change of the picture or of what a tool has laid over it.
  Listeners changed;

  Projector() { resetOffsets(); }

  [[nodiscard]] ProjectionPlane plane() const { return plane_; }
  [[nodiscard]] float zoom() const { return zoom_; }
  [[nodiscard]] ProjectorTool tool() const { return tool_; }
  /// Centimetres of the chamber per view unit at zoom 1.
  [[nodiscard]] double scaler() const { return scaler_; }
  [[nodiscard]] const Tape& tape() const { return tape_; }
  [[nodiscard]] const Curve& curve() const { return curve_; }
  [[nodiscard]] const Angle& angle() const { return angle_; }
  /// Whether the points of curve and angle are set onto a point of the event that is near.
  [[nodiscard]] bool snaps() const { return snaps_; }

  /// Takes the event that is shown, whose points the tools snap to and whose values are the scale and
  /// the field that bends its tracks. Other tracks clear curve and angle; with another scale a tape
  /// that is laid out is read anew.
  void show(std::shared_ptr<const ShownEvent> event);

  // What is laid out goes with another plane, zoom or tool: the tape is hidden, curve and angle are
  // cleared.

  /// Puts the picture back to its place.
  void setPlane(ProjectionPlane plane);
  /// The picture keeps its offsets.
  void setZoom(float zoom);
  void setTool(ProjectorTool tool);
  void setSnaps(bool snaps);

  void resetOffsets();
  /// Puts the picture back to its place and clears what is laid out, for a new event.
  void restore();

  /// The mouse button went down at a place, moved or went up: lays out the tape, moves the picture
  /// or sets points, as the tool says. Tape and picture stay where they are when what the press began
  /// has been given up or cleared since.
  void press(Place place);
  void drag(Place place);
  void release(Place place);

  /// Whether the chosen tool was pressed and not yet released.
  [[nodiscard]] bool isHolding() const;
  /// Whether a press at a place sets a new point, of curve or angle.
  [[nodiscard]] bool setsPointAt(Place place) const;
  /// Gives up what a press began; without that clears the points of curve or angle.
  /// \return whether there was anything to give up
  bool giveUp();
  /// Takes away the point of curve or angle that was set last.
  void removeLastPoint();

  /// Distance between the tape's ends, cm of the chamber.
  [[nodiscard]] double tapeLength() const;
  /// What the tape reads, cm; 0 while it is hidden.
  [[nodiscard]] double reading() const { return reading_; }

  /// What the chosen tool reads of what is laid out; empty while nothing is.
  [[nodiscard]] std::vector<Reading> readings() const;

  /// The picture hangs from the top of the view: with another height of the view the tools stay on
  /// what they are at.
  void setViewHeight(double height);
  /// Height that the tape's places are meant for.
  [[nodiscard]] double viewHeight() const { return view_height_; }

  /// The way from drawing units to view units on the screen.
  [[nodiscard]] ProjectionMapping mapping() const { return mappingAt(view_height_); }
  /// The way to a picture of another height, such as a page's.
  [[nodiscard]] ProjectionMapping mappingAt(double height) const;

  // What legacy.cpp has.

  /// Sets the centimetres of the chamber per view unit at zoom 1. A tape that is laid out is read anew.
  void setScaler(double scaler);

 private:
  void takeScaler(double scaler);
  void hideTape();
  void clearTools();
  void stretchTape(Place place);
  void grabTo(Place place);
  /// The points that the chosen tool sets; null for a tool without points.
  [[nodiscard]] const PlacedPoints* points() const;
  [[nodiscard]] PlacedPoints* points();
  /// The point of the event that is displayed near to a place; else the place.
  [[nodiscard]] Place snapped(Place place) const;
  [[nodiscard]] PlacedPoints::Snap snap() const;
  /// A length on the picture in cm of the chamber.
  [[nodiscard]] Reading inCm(Quantity quantity, Estimate length) const;
  [[nodiscard]] std::vector<Reading> curveReadings() const;

  ProjectionPlane plane_ = ProjectionPlane::xy;
  float zoom_ = 1.0F;
  ProjectorTool tool_ = ProjectorTool::tape;
  double OffV_ = 0.0;
  double OffH_ = 0.0;
  double scaler_ = 0.0;
  Tape tape_;
  double reading_ = 0.0;
  Place last_grab_;
  Curve curve_;
  Angle angle_;
  bool snaps_ = true;
  bool is_pressed_ = false;  ///< the tape or the picture
  Place pressed_at_;
  std::shared_ptr<const ShownEvent> event_ = std::make_shared<const ShownEvent>();
  double view_height_ = projection_height;
};

}  // namespace velquon
