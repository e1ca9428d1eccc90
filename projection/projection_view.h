// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCursor>
#include <QImage>
#include <QPointF>
#include <QSize>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "model/key_cross.h"
#include "model/projector.h"
#include "model/shown_event.h"
#include "printing/page.h"
#include "projection/projection_scene.h"
#include "widgets/gl_view.h"

namespace velquon {

/// Which way a wheel asks to zoom.
enum class ZoomTurn : bool { out, in };

/// The event that it is handed, projected onto one of the coordinate planes, with tools that measure
/// it by mouse and by keys. What is chosen and measured is the projector's.
class ProjectionView : public GLView, public Printable {
  Q_OBJECT

 public:
  /// \param projector plane, zoom, tools and tape
  explicit ProjectionView(Projector& projector, QWidget* parent = nullptr);

  /// Takes the event to draw. Does not draw.
  void show(std::shared_ptr<const ShownEvent> event);

  /// Emphasises points of the event on the screen, not on a page. Does not draw.
  /// \param points their indices, rising
  void mark(std::vector<std::size_t> points) { marked_ = std::move(points); }

  /// Whether the points are drawn in the colours of their track codes, on the screen and in pictures of
  /// it, not on a page. Does not draw.
  void setColored(bool colored) { colored_ = colored; }

  // A choice hides the tape and clears curve and angle.

  /// Chooses the plane; puts the picture back to its place.
  void setProjection(ProjectionPlane plane);
  /// Chooses the zoom; keeps the offsets.
  void setZoom(float zoom);
  void setTool(ProjectorTool tool);

  /// Puts the picture back to its place and hides the tape, for a new event.
  void restore() { projector_.restore(); }

  /// cm of the chamber per view unit at zoom 1.
  [[nodiscard]] double scaler() const { return projector_.scaler(); }
  /// Distance between the tape's ends, cm of the chamber.
  [[nodiscard]] double tapeLength() const { return projector_.tapeLength(); }
  [[nodiscard]] const Projector& projector() const { return projector_; }
  [[nodiscard]] ProjectionMapping mapping() const { return projector_.mapping(); }
  [[nodiscard]] ProjectionPlane projection_plane() const { return projector_.plane(); }
  [[nodiscard]] bool tape_visible() const { return projector_.tape().visible; }
  /// The cross that keys move.
  [[nodiscard]] const KeyCross& cross() const { return cross_; }

  /// Size of the whole picture, of which a small window shows a part, view units.
  [[nodiscard]] QSize pictureSize() const;
  /// The whole picture as it is on the screen, without the cross, drawn for a size of its own;
  /// opaque.
  /// \param scale pixels per view unit
  /// \return nothing when the graphics driver makes no picture of that size
  [[nodiscard]] std::optional<QImage> picture(double scale) const;

  void paint(QPainter& page) override;

  // What legacy.cpp has.

  /// \param scaler cm of the chamber per view unit at zoom 1
  void setScaler(double scaler);
  /// Puts the picture back to its place.
  void resetOffsets();

 Q_SIGNALS:
  /// The mouse wheel was turned by a notch over the picture.
  void zoomTurned(ZoomTurn turn);

 protected:
  void drawRect() override;
  void reshape() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Height of the picture, which hangs from its top.
  [[nodiscard]] double pictureHeight() const;
  void makeDisplayPoints();
  /// What keys can reach: the part of the view that is seen.
  [[nodiscard]] KeyField keyField() const;
  /// \return whether the key is one that moves the cross
  bool moveCross(const QKeyEvent& event);
  /// \return whether the key is one of the view's others and there was anything to do
  bool runKey(const QKeyEvent& event);
  void hideCross();
  void resetCursorRects();
  void makeCursors();

  Projector& projector_;
  KeyCross cross_;
  QPointF mouse_;      ///< where on the screen it was seen last
  int wheel_way_ = 0;  ///< that the wheel was turned since the last notch, eighths of a degree
  std::shared_ptr<const ShownEvent> event_ = std::make_shared<const ShownEvent>();
  ProjectionScene scene_;
  std::vector<std::size_t> marked_;
  bool colored_ = false;
  QCursor cross_hair_cursor_;
  QCursor grabber_cursor_;
  double cursor_ratio_ = 0.0;  ///< device pixels to a pixel that the cursors are made for
};

}  // namespace velquon
