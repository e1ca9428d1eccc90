#include "track/new_track_view.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <QLabel>
#include <QTimer>
#include <chrono>
#include <cmath>

#include "model/clock.h"
#include "widgets/cursors.h"
#include "widgets/value_slider.h"
#include "track/track_controller.h"

namespace velquon {

namespace {

// A field that near to a tick mark is the tick mark's.
constexpr double snapping_distance = 0.005;

constexpr QPoint hot_spot{7, 7};

std::uint64_t microseconds_of(const QTimer& timer) {
  return static_cast<std::uint64_t>(timer.interval()) * 1000;
}

std::chrono::milliseconds milliseconds_of(double seconds) {
  return std::chrono::milliseconds(std::lround(seconds * 1000.0));
}

}  // namespace

NewTrackView::NewTrackView(QWidget* parent) : GLView(parent), clock_(Microseconds) {
  // A new framebuffer is empty, also one of the same size in view units on another screen.
  connect(this, &QOpenGLWidget::resized, this, [this] {
    picture_lost_ = true;
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
  simulation_.settings.charge = static_cast<double>(charge);
}

void NewTrackView::setSpeed(float speed) {
  simulation_.settings.speed = static_cast<double>(speed);
}

void NewTrackView::setDirection(std::int32_t direction) {
  simulation_.settings.direction = direction;
}

void NewTrackView::setMagField(const ValueSlider* sender) {
  const double value = sender->doubleValue();
  const double tick = sender->closestTickMarkValueToValue(value);
  takeField(std::fabs(tick - value) < snapping_distance ? tick : value);
}

void NewTrackView::takeField(double field) {
  simulation_.settings.B_field = field;
  Q_EMIT fieldTaken(field);
}

void NewTrackView::injectParticle(QAction* /*sender*/) {
  simulation_.launch();
  clearColorBuffer();
  tape_box_->clear();
  setTracking(true);
  track_controller_->doMenus(false);
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
  timer->setInterval(milliseconds_of(timerSecs_));
  connect(timer.get(), &QTimer::timeout, this, [this] { makeStepsDue(); });
  setTrackTimer(std::move(timer));
  pace_.start(clock_() + microseconds_of(*trackTimer_));
  trackTimer_->start();
}

void NewTrackView::prepareForTracking() {
  simulation_.enter(timed_start);
  // A step of an earlier run may have drawn since the injection.
  picture_lost_ = true;
  setTracking(true);
}

void NewTrackView::setTrackTimer(std::unique_ptr<QTimer> timer) {
  trackTimer_ = std::move(timer);
}

void NewTrackView::makeStepsDue() {
  // What it costs to bring a picture to the screen does not slow the particle down: the firings
  // that were lost meanwhile are made up for.
  std::uint64_t steps = pace_.takeStepsDue(clock_(), microseconds_of(*trackTimer_));
  do {
    TrackWithTimer(trackTimer_.get());
    --steps;
  } while (steps > 0 && trackTimer_->isActive());
}

void NewTrackView::TrackWithTimer(QTimer* timer) {
  if (simulation_.canStep()) {
    step();
    return;
  }
  if (timer != nullptr) {
    timer->stop();
  }
  endRun();
}

void NewTrackView::step() {
  simulation_.advance();
  redrawForStep();
  if (simulation_.takeClearSignal()) {
    clearColorBuffer();
  }
  simulation_.goOn();
}

void NewTrackView::endRun() {
  setTracking(false);
  if (track_controller_->activated()) {
    track_controller_->doMenus(true);
  }
  resetCursorRects();
}

void NewTrackView::stopTracking() {
  setTracking(false);
}

void NewTrackView::setTracking(bool tracking) {
  simulation_.setTracking(tracking);
  Q_EMIT trackingChanged();
}

void NewTrackView::clearScreen(QAction* /*sender*/) {
  if (is_tracking()) {
    simulation_.setClearSignal();
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
  picture_lost_ = picture_lost_ || !isValid() || !isVisible();
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
  simulation_.do_all = true;
}

void NewTrackView::drawRect() {
  const QRectF seen = visibleRect();
  const double ratio = devicePixelRatioF();
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  glViewport(0, 0, qRound(seen.width() * ratio), qRound(seen.height() * ratio));
  gluOrtho2D(0.0, seen.width(), 0.0, seen.height());
  if (simulation_.needsClearing() || picture_lost_) {
    glClear(GL_COLOR_BUFFER_BIT);
  }
  simulation_.do_all = simulation_.do_all || picture_lost_;
  picture_lost_ = false;
  glTranslated(-seen.x(), -seen.y(), 0.0);
  glLineWidth(static_cast<float>(ratio));
  drawTrack();
  if (simulation_.stretching) {
    drawTape();
  }
  glFlush();
  if (!simulation_.stretching) {
    simulation_.do_all = false;
  }
}

void NewTrackView::drawTrack() const {
  const std::span<const float> x = simulation_.x_points();
  const std::span<const float> y = simulation_.y_points();
  glColor3f(1.0F, 1.0F, 1.0F);
  glBegin(GL_LINE_STRIP);
  for (auto point = static_cast<std::size_t>(simulation_.firstPoint()); point < x.size(); ++point) {
    glVertex3f(x[point], y[point], 0.0F);
  }
  glEnd();
}

}  // namespace velquon
