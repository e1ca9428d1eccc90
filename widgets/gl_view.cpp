// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/gl_view.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "widgets/delayed_message.h"

namespace velquon {

GLView::GLView(QWidget* parent) : QOpenGLWidget(parent) {
  setUpdateBehavior(QOpenGLWidget::PartialUpdate);
  present_soon_.setSingleShot(true);
  present_soon_.setTimerType(Qt::PreciseTimer);
  connect(&present_soon_, &QTimer::timeout, this, &GLView::present);
  // On a screen with another ratio of pixels the view gets an empty framebuffer and no `resizeGL`.
  connect(this, &QOpenGLWidget::resized, this, [this] {
    stale_ = true;
    update();
  });
}

void GLView::display() {
  if (!isValid() || !isVisible()) {
    stale_ = true;
    update();
    return;
  }
  makeCurrent();
  runDrawingPass();
  present();
}

void GLView::displaySoon() {
  stale_ = true;
  if (display_pending_) {
    return;
  }
  display_pending_ = true;
  perform_after(secondsToNextFrame(), this, [this] {
    display_pending_ = false;
    if (stale_) {
      display();
    }
  });
}

void GLView::drawAndPresentSoon() {
  if (!isValid() || !isVisible() || secondsToNextFrame() <= 0.0) {
    display();
    return;
  }
  makeCurrent();
  runDrawingPass();
  if (!present_soon_.isActive()) {
    // The pass may have taken longer than a frame.
    present_soon_.start(static_cast<int>(std::ceil(std::max(secondsToNextFrame(), 0.0) * 1000.0)));
  }
}

void GLView::place(const QRect& rect, double magnification) {
  const bool same_pixels = rect.size() == size();
  const bool other_units = magnification != magnification_;
  magnification_ = magnification;
  setGeometry(rect);
  if (other_units && same_pixels && makeContextCurrent()) {
    resizeGL(width(), height());
    update();
  }
}

QRectF GLView::visibleRect() const {
  return {visible_origin_, QSizeF(size()) / magnification_};
}

bool GLView::makeContextCurrent() {
  if (!isValid()) {
    return false;
  }
  makeCurrent();
  return true;
}

QPointF GLView::locationOf(const QMouseEvent& event) const {
  // In a widget Qt tells the place in whole widget pixels; in its window, to the screen's own pixel.
  const QPointF rounded = event.position();
  const QPointF fine = event.scenePosition() - QPointF(mapTo(window(), QPoint(0, 0)));
  const QPointF place = (fine - rounded).manhattanLength() <= 1.0 ? fine : rounded;
  return visible_origin_ + QPointF(place.x(), height() - place.y()) / magnification_;
}

void GLView::initializeGL() {
  stale_ = true;
}

void GLView::resizeGL(int /*width*/, int /*height*/) {
  stale_ = true;
  reshape();
}

void GLView::paintGL() {
  if (stale_) {
    runDrawingPass();
  }
}

void GLView::runDrawingPass() {
  stale_ = false;
  ++passes_;
  drawRect();
}

double GLView::secondsToNextFrame() const {
  if (!since_presented_.isValid()) {
    return 0.0;
  }
  const double frame = 1.0 / std::max(screen()->refreshRate(), 1.0);
  return frame - static_cast<double>(since_presented_.nsecsElapsed()) * 1e-9;
}

void GLView::present() {
  // Qt holds a repaint to the screen's refresh rate; sending the request that it would post gets
  // the picture out now.
  present_soon_.stop();
  since_presented_.start();
  update();
  QEvent request(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(window(), &request);
}

}  // namespace velquon
