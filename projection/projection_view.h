// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCursor>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "model/projector.h"
#include "model/shown_event.h"
#include "printing/page.h"
#include "widgets/gl_view.h"

namespace velquon {

/// The event that it is handed, projected onto one of the coordinate planes, with a tape measure and a
/// grab tool. What is chosen and measured is the projector's.
class ProjectionView : public GLView, public Printable {
  Q_OBJECT

 public:
  /// \param projector plane, zoom, tools and tape; must outlive the view
  explicit ProjectionView(Projector& projector, QWidget* parent = nullptr);

  /// Takes the event to draw. A tape on the screen is read anew. Does not draw.
  void show(std::shared_ptr<const ShownEvent> event);

  /// Emphasises points of the event on the screen, not on a page. Does not draw.
  /// \param points their indices, rising
  void mark(std::vector<std::size_t> points) { marked_ = std::move(points); }

  /// Chooses the plane; hides the tape and puts the picture back to its place.
  void setProjection(ProjectionPlane plane);
  /// Chooses the zoom; hides the tape and keeps the offsets.
  void setZoom(float zoom);
  /// Chooses the tool; hides the tape.
  void setTool(ProjectorTool tool);

  void resetOffsets() { projector_.resetOffsets(); }
  /// Puts the picture back to its place and hides the tape, for a new event.
  void restore() { projector_.restore(); }

  /// cm of the chamber per view unit at zoom 1.
  void setScaler(double scaler) { projector_.setScaler(scaler); }
  [[nodiscard]] double scaler() const { return projector_.scaler(); }
  /// Distance between the tape's ends, cm of the chamber.
  [[nodiscard]] double tapeLength() const { return projector_.tapeLength(); }
  [[nodiscard]] ProjectionMapping mapping() const { return projector_.mapping(); }
  [[nodiscard]] ProjectionPlane projection_plane() const { return projector_.plane(); }
  [[nodiscard]] bool tape_visible() const { return projector_.tape().visible; }

  void paint(QPainter& page) override;

 protected:
  void drawRect() override;
  void reshape() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  /// Height of the picture, which hangs from its top.
  [[nodiscard]] double pictureHeight() const;
  void makeDisplayPoints();
  void drawTracks();
  void drawSquare(std::size_t point, double half_side) const;
  void drawTape() const;
  void resetCursorRects();
  void makeCursors();

  Projector& projector_;
  std::shared_ptr<const ShownEvent> event_ = std::make_shared<const ShownEvent>();
  std::vector<Place> display_points_;
  std::vector<std::size_t> marked_;
  QCursor cross_hair_cursor_;
  QCursor grabber_cursor_;
  double cursor_ratio_ = 0.0;  ///< device pixels to a pixel that the cursors are made for
};

}  // namespace velquon
