// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QTimer>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "chamber/late_input.h"
#include "model/chamber_model.h"
#include "model/clock.h"
#include "printing/page.h"
#include "render/camera.h"
#include "render/chamber_scene.h"
#include "widgets/gl_view.h"

namespace velquon {

class InputWatch;

/// The three-dimensional view of the chamber. It draws the event that it is handed, turns it like a
/// turntable and replays it point by point.
class ChamberView : public GLView, public Printable {
  Q_OBJECT

 public:
  /// \param model what the view is to show and how
  explicit ChamberView(ChamberModel& model, QWidget* parent = nullptr);
  ~ChamberView() override;
  ChamberView(const ChamberView&) = delete;
  ChamberView& operator=(const ChamberView&) = delete;
  ChamberView(ChamberView&&) = delete;
  ChamberView& operator=(ChamberView&&) = delete;

  /// Another clock for the turntable's steps and the replay's pauses.
  void setClock(const Clock& clock) { clock_ = clock; }

  /// Takes the event to draw. Does not draw.
  void show(std::shared_ptr<const ShownEvent> event);
  /// The points of the event, all of them even during a replay.
  [[nodiscard]] std::span<const PlotPoint> data_ptr() const { return event_->points(); }
  /// Number of points that are shown; fewer than the event's during a replay.
  [[nodiscard]] std::int16_t point_number() const { return point_number_; }
  /// Whether there is an event, be it one without points.
  [[nodiscard]] bool has_event() const { return event_->has_event; }
  /// The chamber values of the event.
  [[nodiscard]] const ChamberValues& current_values() const { return event_->values; }
  [[nodiscard]] double B_field() const { return static_cast<double>(current_values().B_field); }
  [[nodiscard]] double sides_cm() const { return static_cast<double>(current_values().sides_cm); }
  [[nodiscard]] double kinetic_Mev() const {
    return static_cast<double>(current_values().kinetic_Mev);
  }

  /// The text of the values line.
  [[nodiscard]] std::string values_text() const;
  /// The values line of a printed page: on this view's own page as on the screen, on another's
  /// whenever there is an event; empty for none.
  [[nodiscard]] std::string valuesOnPageOf(const Printable& printed) const;

  /// Change the event that this view shows, and nothing else of the program.
  void setData(std::span<const PlotPoint> points);
  void setHasEvent(bool has_event);
  void setCurrentBField(float field_kG);
  void setCurrentSidesCm(float side_cm);
  void setCurrentMev(float energy_MeV);

  /// Chooses the kind of the next event, 0 to 5, and stops the turntable.
  void setEventType(int type);
  [[nodiscard]] int event_type() const { return model_.event_type(); }

  [[nodiscard]] bool show_axes() const { return model_.preferences().show_axes; }
  [[nodiscard]] bool show_values() const { return model_.preferences().show_values; }
  [[nodiscard]] bool reset_each() const { return model_.preferences().reset_each; }
  [[nodiscard]] bool slomo() const { return model_.preferences().slomo; }
  void set_show_axes(bool show);
  void set_show_values(bool show);
  void set_reset_each(bool reset);
  void set_slomo(bool slow);

  /// A running turntable takes the rate at its next step.
  void setRotationRate(RotationRate rate);
  /// Brings the window to the front and starts the turntable, or gives a running one its direction.
  void doRotation(RotationDirection direction);
  /// Stops the turntable and draws the view: at once if it was turning, otherwise with the next frame.
  void stopRotating();
  [[nodiscard]] bool is_rotating() const { return model_.turntable().is_rotating(); }
  /// \param axis 1 for x, 2 for y, 3 for z
  void setRotationAxis(int axis);
  [[nodiscard]] int rotation_axis() const { return model_.turntable().axis(); }
  /// Seconds between two steps of the turntable.
  [[nodiscard]] double rot_delay() const { return model_.turntable().delay(); }
  /// Degrees of a step.
  [[nodiscard]] float rot_angle() const { return model_.turntable().angle(); }
  /// Steps turned since the program's start.
  [[nodiscard]] std::int64_t rotation_steps() const { return model_.turntable().steps(); }
  /// The steps of the turntable that are due; schedules itself anew. Nothing while it stands.
  void rotate();
  /// Stops the turntable and goes back to the resting viewpoint.
  void resetOrientation();
  /// Stops the turntable; the replay begins after the turntable's delay, or when a window that is
  /// on its way to the screen has come up. Nothing more while a replay is due or for a key or a
  /// click from the time of a replay.
  void replay();

  /// Whether the key or button that is being handled was pressed while a replay ran.
  [[nodiscard]] bool handlesLateInput() const { return late_input_.is_handled(); }

  void paint(QPainter& page) override;

  /// The whole picture with as many points as are shown, drawn for a size of its own; opaque.
  /// \param scale  pixels per view unit
  /// \param values whether it has the line of values, if there is an event
  /// \return nothing when the graphics driver makes no picture of that size
  [[nodiscard]] std::optional<QImage> picture(double scale, bool values) const;

  /// Where the chamber is seen from, without regard to the part of the picture that is scrolled to.
  [[nodiscard]] const Camera& camera() const { return camera_; }

 Q_SIGNALS:
  /// The view's window has to come to the front and get the focus.
  void windowWanted();

 protected:
  void initializeGL() override;
  void drawRect() override;
  void reshape() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] SceneOptions sceneOptions() const;
  template <typename Change>
  void changePreferences(Change change);
  template <typename Change>
  void changeEvent(Change change);
  void stopAndDisplay();
  void replayOnceSeen(int looks_left);
  void really_replay();
  void pauseForMicrosecs(std::int32_t microseconds) const;

  ChamberModel& model_;
  std::shared_ptr<const ShownEvent> event_;
  ChamberScene scene_;
  Camera camera_;
  std::int16_t point_number_ = 0;

  Clock clock_ = Microseconds;
  QTimer step_timer_;  ///< runs until the next step of the turntable

  std::optional<QPointF> pressed_at_;  ///< while the mouse's button is down
  std::optional<QPointF> dragged_to_;  ///< while it turns the chamber

  std::unique_ptr<InputWatch> input_watch_;  ///< there while a replay is due or runs
  LateInput late_input_;
};

}  // namespace velquon
