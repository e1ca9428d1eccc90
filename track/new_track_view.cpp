// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/new_track_view.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <QTimer>

#include "model/track_model.h"
#include "widgets/cursors.h"
#include "widgets/value_slider.h"

namespace velquon {

namespace {

constexpr QPoint hot_spot{7, 7};

}  // namespace

NewTrackView::NewTrackView(QWidget* parent) : GLView(parent), clock_(Microseconds) {
  // A new framebuffer is empty, also one of the same size in view units on another screen.
  connect(this, &QOpenGLWidget::resized, this, [this] {
    drawing_.losePicture();
    makeCursors();
    resetCursorRects();
  });
}

NewTrackView::~NewTrackView() = default;

void NewTrackView::awakeFromNib() {
  makeCursors();
}

void NewTrackView::makeCursors() {
  const double ratio = devicePixelRatioF();
  cross_hair_cursor_ = cursor_named(QStringLiteral("crosshairs"), hot_spot, ratio);
  black_hair_cursor_ = cursor_named(QStringLiteral("black_crosshairs"), hot_spot, ratio);
}

void NewTrackView::setCharge(float charge) {
  LiveTrackSettings settings = model_->simulation().settings;
  settings.charge = static_cast<double>(charge);
  model_->setSettings(settings);
}

void NewTrackView::setSpeed(float speed) {
  LiveTrackSettings settings = model_->simulation().settings;
  settings.speed = static_cast<double>(speed);
  model_->setSettings(settings);
}

void NewTrackView::setDirection(std::int32_t direction) {
  LiveTrackSettings settings = model_->simulation().settings;
  settings.direction = direction;
  model_->setSettings(settings);
}

void NewTrackView::setMagField(const ValueSlider* sender) {
  const double value = sender->doubleValue();
  model_->takeField(value, sender->closestTickMarkValueToValue(value));
}

void NewTrackView::injectParticle() {
  clearColorBuffer();
  model_->inject();
  resetCursorRects();
  QMetaObject::invokeMethod(this, &NewTrackView::trackOnScreen, Qt::QueuedConnection);
}

void NewTrackView::trackOnScreen() {
  startTracking();
}

void NewTrackView::startTracking() {
  if (trackTimer_ != nullptr) {
    trackTimer_->stop();
  }
  prepareForTracking();
  auto timer = std::make_unique<QTimer>();
  timer->setTimerType(Qt::PreciseTimer);
  timer->setInterval(model_->stepPeriod());
  connect(timer.get(), &QTimer::timeout, this, [this] { makeStepsDue(); });
  setTrackTimer(std::move(timer));
  model_->startPace(clock_());
  trackTimer_->start();
}

void NewTrackView::prepareForTracking() {
  model_->enter(timed_start);
  // A step of an earlier run may have drawn since the injection.
  drawing_.losePicture();
  model_->setTracking(true);
}

void NewTrackView::setTrackTimer(std::unique_ptr<QTimer> timer) {
  trackTimer_ = std::move(timer);
}

void NewTrackView::makeStepsDue() {
  // What it costs to bring a picture to the screen does not slow the particle down: the firings
  // that were lost meanwhile are made up for.
  std::uint64_t steps = model_->takeStepsDue(clock_());
  do {
    TrackWithTimer(trackTimer_.get());
    --steps;
  } while (steps > 0 && trackTimer_->isActive());
}

void NewTrackView::TrackWithTimer(QTimer* timer) {
  if (model_->simulation().canStep()) {
    step();
    return;
  }
  if (timer != nullptr) {
    timer->stop();
  }
  endRun();
}

void NewTrackView::step() {
  model_->advance();
  redrawForStep();
  if (model_->takeClearSignal()) {
    clearColorBuffer();
  }
  const bool was_resetting = model_->simulation().resetting;
  model_->goOn();
  drawing_.wentOn(model_->simulation(), was_resetting);
}

void NewTrackView::endRun() {
  model_->endRun();
  resetCursorRects();
}

void NewTrackView::stopTracking() {
  model_->setTracking(false);
}

bool NewTrackView::is_tracking() const {
  return model_->is_tracking();
}

void NewTrackView::clearScreen() {
  if (is_tracking()) {
    model_->setClearSignal();
    return;
  }
  clearColorBuffer();
}

void NewTrackView::resetCursorRects() {
  if (is_tracking()) {
    setCursor(cross_hair_cursor_);
  } else {
    unsetCursor();
  }
}

void NewTrackView::redraw() {
  notePictureLost();
  display();
}

void NewTrackView::redrawForStep() {
  // Each step draws its points at once; a step may be shorter than what a screen can show, or than
  // bringing a window to it takes.
  notePictureLost();
  drawAndPresentSoon();
}

void NewTrackView::notePictureLost() {
  // Out of sight nothing is drawn, so that the newest points alone would not do later.
  if (!isValid() || !isVisible()) {
    drawing_.losePicture();
  }
}

void NewTrackView::clearColorBuffer() {
  if (makeContextCurrent()) {
    glClear(GL_COLOR_BUFFER_BIT);
    glFlush();
    update();
  }
}

void NewTrackView::reshape() {
  glClear(GL_COLOR_BUFFER_BIT);
  drawing_.showAll();
}

void NewTrackView::drawRect() {
  const QRectF seen = visibleRect();
  const double ratio = pixelRatio();
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  glViewport(0, 0, qRound(seen.width() * ratio), qRound(seen.height() * ratio));
  gluOrtho2D(0.0, seen.width(), 0.0, seen.height());
  const TrackSimulation& track = model_->simulation();
  if (drawing_.needsClearing(track)) {
    glClear(GL_COLOR_BUFFER_BIT);
  }
  glTranslated(-seen.x(), -seen.y(), 0.0);
  glLineWidth(static_cast<float>(ratio));
  drawTrack();
  if (model_->tape().visible) {
    drawTape();
  }
  glFlush();
  drawing_.drawn(track);
}

void NewTrackView::drawTrack() const {
  const TrackSimulation& track = model_->simulation();
  const std::span<const float> x = track.x_points();
  const std::span<const float> y = track.y_points();
  glColor3f(1.0F, 1.0F, 1.0F);
  glBegin(GL_LINE_STRIP);
  for (auto point = static_cast<std::size_t>(drawing_.firstPoint(track)); point < x.size();
       ++point) {
    glVertex3f(x[point], y[point], 0.0F);
  }
  glEnd();
}

}  // namespace velquon
