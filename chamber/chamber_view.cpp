#include "chamber/chamber_view.h"

#include <GL/gl.h>

#include <QMouseEvent>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "render/chamber_scene.h"
#include "model/clock.h"
#include "chamber/input_watch.h"
#include "printing/page.h"

namespace velquon {

ChamberView::ChamberView(std::optional<std::uint32_t> seed, QWidget* parent) : GLView(parent) {
  std::srand(seed.value_or(static_cast<std::uint32_t>(Microseconds())));
  step_timer_.setSingleShot(true);
  step_timer_.setTimerType(Qt::PreciseTimer);
  connect(&step_timer_, &QTimer::timeout, this, &ChamberView::rotate);
}

ChamberView::~ChamberView() = default;

void ChamberView::setData(std::span<const PlotPoint> points) {
  event_data_.assign(points.begin(), points.end());
  point_number_ = static_cast<std::int16_t>(points.size());
  cubes_.build(event_data_, screen_cube_side);
}

void ChamberView::setEventType(int type) {
  event_type_ = type;
  stopRotating();
}

void ChamberView::set_show_axes(bool show) {
  show_axes_ = show;
  if (!is_rotating_) {
    display();
  }
}

void ChamberView::set_show_values(bool show) {
  show_values_ = show;
  if (!is_rotating_) {
    display();
  }
}

void ChamberView::drawRect() {
  if (!ready_to_show_) {
    setUpView();
    ready_to_show_ = true;
  }
  const double ratio = devicePixelRatioF();
  glViewport(0, 0, qRound(chamber_width * ratio), qRound(chamber_height * ratio));
  if (needs_pop_) {
    popProjectionMatrix();
  }
  adjustForOffset();
  glClear(GL_COLOR_BUFFER_BIT);
  glLineWidth(static_cast<float>(ratio));
  drawChamber();
  drawEvent();
  if (!is_rotating_ && show_values_) {
    drawValues();
  }
  popProjectionMatrix();
  glFlush();
}

void ChamberView::initializeGL() {
  GLView::initializeGL();
  // A context of its own begins with neither a viewpoint nor a pushed matrix.
  ready_to_show_ = false;
  needs_pop_ = false;
}

void ChamberView::reshape() {
  glClear(GL_COLOR_BUFFER_BIT);
}

void ChamberView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) {
    stopRotating();
  }
}

void ChamberView::setUpView() {
  if (!makeContextCurrent()) {
    return;
  }
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  load_resting_viewpoint();
}

void ChamberView::adjustForOffset() {
  // The projection shows the whole picture; twice the scrolled distance is what the view is made
  // for.
  const QPointF origin = visibleRect().topLeft();
  glMatrixMode(GL_PROJECTION);
  glPushMatrix();
  needs_pop_ = true;
  glTranslatef(static_cast<float>(-2.0 * origin.x()), static_cast<float>(-2.0 * origin.y()), 0.0F);
}

void ChamberView::popProjectionMatrix() {
  glMatrixMode(GL_PROJECTION);
  glPopMatrix();
  needs_pop_ = false;
}

void ChamberView::drawChamber() {
  draw_chamber_frame(show_axes_);
}

void ChamberView::drawEvent() {
  glMatrixMode(GL_MODELVIEW);
  cubes_.draw(shownPoints().size());
}

void ChamberView::drawValues() {
  if (!has_event_) {
    return;
  }
  if (page_ != nullptr) {
    print_text(*page_, {120.0, 645.0}, QString::fromStdString(values_text()));
  } else {
    place_overlay_text();
    overlay_text_.draw(values_text(), devicePixelRatioF());
  }
}

std::string ChamberView::values_text() const {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "B = %.4G kG, T = %.5G MeV, L = %.4G m", B_field(),
                kinetic_Mev(), sides_cm() / 100.0);
  return text.data();
}

std::span<const PlotPoint> ChamberView::shownPoints() const {
  return std::span(event_data_).first(static_cast<std::size_t>(point_number_));
}

}  // namespace velquon
