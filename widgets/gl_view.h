// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QOpenGLWidget>
#include <QPointF>
#include <QRectF>
#include <QTimer>

class QMouseEvent;

namespace velquon {

/// An OpenGL view whose picture stays on the screen until it is drawn again, and which can be drawn
/// at once even while the program does not return to its event loop. View coordinates have their
/// origin at the lower left; their unit is a widget pixel unless the picture is magnified.
class GLView : public QOpenGLWidget {
  Q_OBJECT

 public:
  explicit GLView(QWidget* parent = nullptr);

  /// Runs one full drawing pass and brings it to the screen before it returns. A view that is not
  /// on the screen remembers that it has to be drawn.
  void display();

  /// Asks for a `display` soon: at once or, when the last was just now, as soon as the screen can
  /// show another picture. Any number of requests until then make one pass.
  void displaySoon();

  /// Runs one full drawing pass at once and brings it to the screen at once or, when the last was
  /// just now, as soon as the screen can show another picture.
  void drawAndPresentSoon();

  /// Gives the view its place in its parent, and the size that it draws its picture at: everything in
  /// proportion, with its lines, points and texts.
  /// \param magnification widget pixels to a view unit, above 0
  void place(const QRect& rect, double magnification);
  /// Widget pixels to a view unit; 1 at first.
  [[nodiscard]] double magnification() const { return magnification_; }

  /// The part of the view's document that can be seen, in view units; the origin is 0, 0 unless it
  /// is scrolled.
  [[nodiscard]] QRectF visibleRect() const;
  /// Set by the scrolling area.
  void setVisibleOrigin(QPointF origin) { visible_origin_ = origin; }

  /// Drawing passes run so far.
  [[nodiscard]] int passes() const { return passes_; }

 protected:
  /// One drawing pass; the context is current.
  virtual void drawRect() = 0;
  /// The view has another size, in pixels or in view units; the context is current. A drawing pass
  /// follows.
  virtual void reshape() {}

  /// Makes the context current for a change of its state outside a drawing pass.
  /// \return false while the view has no context yet
  bool makeContextCurrent();

  /// Device pixels to a view unit.
  [[nodiscard]] double pixelRatio() const { return devicePixelRatioF() * magnification_; }

  /// The place of a mouse event in view coordinates.
  [[nodiscard]] QPointF locationOf(const QMouseEvent& event) const;

  void initializeGL() override;
  void resizeGL(int width, int height) override;
  void paintGL() override;

 private:
  void runDrawingPass();
  void present();
  /// Seconds until the screen can show another picture; not above 0 when it can now.
  [[nodiscard]] double secondsToNextFrame() const;

  QPointF visible_origin_;
  double magnification_ = 1.0;
  QElapsedTimer since_presented_;
  int passes_ = 0;
  bool stale_ = true;
  bool display_pending_ = false;
  QTimer present_soon_;  ///< runs while a drawn picture waits to be brought to the screen
};

}  // namespace velquon
