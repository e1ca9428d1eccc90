// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRectF>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/event_record.h"
#include "model/key_cross.h"
#include "model/projector.h"

namespace velquon {

/// What is drawn beside an event's points and what a tool has laid over them.
struct ProjectionOptions {
  /// Points that are drawn larger: their indices, rising.
  std::span<const std::size_t> marked{};
  bool colored = false;             ///< points in the colours of their codes; or white
  const KeyCross* cross = nullptr;  ///< drawn while it is seen; or null for none
};

/// The picture of the projector: the chamber's outline, an event's points as squares, and what the
/// chosen tool has laid over them.
class ProjectionScene {
 public:
  /// Takes the points of an event, projected onto a plane.
  void setPoints(std::span<const PlotPoint> points, ProjectionPlane plane);

  /// Draws into the current framebuffer, from its lower left corner.
  /// \param seen      part of the picture that is drawn, view units with y upwards
  /// \param ratio     pixels of the framebuffer per view unit
  /// \param projector place and zoom of the picture, and the tools; its plane must be the points'
  void draw(const QRectF& seen, double ratio, const Projector& projector,
            const ProjectionOptions& options) const;

 private:
  void drawTracks(double ratio, const ProjectionMapping& mapping,
                  const ProjectionOptions& options) const;
  void drawSquare(std::size_t point, double half_side, const ProjectionMapping& mapping,
                  bool colored) const;

  std::vector<Place> display_points_;
  std::vector<std::int16_t> codes_;
};

}  // namespace velquon
