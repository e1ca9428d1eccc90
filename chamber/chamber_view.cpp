// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chamber/chamber_view.h"

#include <GL/gl.h>

#include <utility>

#include "chamber/chamber_picture.h"
#include "chamber/input_watch.h"
#include "printing/chamber_page.h"

namespace velquon {

ChamberView::ChamberView(ChamberModel& model, QWidget* parent)
    : GLView(parent), model_(model), event_(model.shown()) {
  setFocusPolicy(Qt::StrongFocus);
  step_timer_.setSingleShot(true);
  step_timer_.setTimerType(Qt::PreciseTimer);
  connect(&step_timer_, &QTimer::timeout, this, &ChamberView::rotate);
}

ChamberView::~ChamberView() = default;

void ChamberView::show(std::shared_ptr<const ShownEvent> event) {
  const bool has_other_tracks = event->tracks != event_->tracks;
  event_ = std::move(event);
  if (has_other_tracks) {
    point_number_ = static_cast<std::int16_t>(event_->points().size());
    scene_.setPoints(event_->points());
  }
}

void ChamberView::setEventType(int type) {
  model_.setEventType(type);
  stopRotating();
}

void ChamberView::set_show_axes(bool show) {
  changePreferences([show](ChamberPreferences& preferences) { preferences.show_axes = show; });
  if (!is_rotating()) {
    display();
  }
}

void ChamberView::set_show_values(bool show) {
  changePreferences([show](ChamberPreferences& preferences) { preferences.show_values = show; });
  if (!is_rotating()) {
    display();
  }
}

void ChamberView::set_reset_each(bool reset) {
  changePreferences([reset](ChamberPreferences& preferences) { preferences.reset_each = reset; });
}

void ChamberView::set_slomo(bool slow) {
  changePreferences([slow](ChamberPreferences& preferences) { preferences.slomo = slow; });
}

void ChamberView::paint(QPainter& page) {
  paint_chamber(page, data_ptr(), camera_, show_axes());
}

std::optional<QImage> ChamberView::picture(double scale, bool values) const {
  SceneOptions options = sceneOptions();
  options.values = values && has_event() ? values_text() : std::string();
  const auto shown = data_ptr().first(static_cast<std::size_t>(point_number_));
  return chamber_picture(shown, camera_, scale, options);
}

void ChamberView::drawRect() {
  const QPointF origin = visibleRect().topLeft();
  scene_.draw(camera_.scrolled(origin.x(), origin.y()), pixelRatio(),
              static_cast<std::size_t>(point_number_), sceneOptions());
}

void ChamberView::initializeGL() {
  GLView::initializeGL();
  // A context of its own begins at the resting viewpoint.
  camera_ = Camera();
}

void ChamberView::reshape() {
  glClear(GL_COLOR_BUFFER_BIT);
}

std::string ChamberView::values_text() const {
  return velquon::values_text(current_values());
}

std::string ChamberView::valuesOnPageOf(const Printable& printed) const {
  const bool is_wanted = &printed != this || (show_values() && !is_rotating());
  return is_wanted && has_event() ? values_text() : std::string();
}

SceneOptions ChamberView::sceneOptions() const {
  const ChamberPreferences& preferences = model_.preferences();
  return {.axes = show_axes(),
          .values = valuesOnPageOf(*this),
          .marked = model_.marked(),
          .axis_letters = preferences.axis_letters,
          .field_kG = preferences.field_arrow ? std::optional(B_field()) : std::nullopt};
}

template <typename Change>
void ChamberView::changePreferences(Change change) {
  ChamberPreferences preferences = model_.preferences();
  change(preferences);
  model_.setPreferences(preferences);
}

}  // namespace velquon
