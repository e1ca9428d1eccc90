#pragma once

#include <QTimer>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "render/cube_array.h"
#include "render/overlay_text.h"
#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "model/clock.h"
#include "widgets/gl_view.h"
#include "chamber/late_input.h"
#include "printing/page.h"
#include "model/step_pace.h"

class QAction;
class QPainter;

namespace velquon {

class InputWatch;

/// The items of the rotation menus, with which a sender is compared.
struct RotationItems {
  QAction* rotate_item = nullptr;
  QAction* reverse_rotate_item = nullptr;
  QAction* rotate_faster_item = nullptr;
  QAction* default_rotate_item = nullptr;
  QAction* rotate_slower_item = nullptr;
};

/// The three-dimensional view of the chamber. It owns the shown event and the chamber values under
/// which the event was made; it can turn like a turntable, replay the event point by point, and
/// draw itself on a page.
class ChamberView : public GLView, public Printable {
  Q_OBJECT

 public:
  /// Seeds the process-wide random generator, once for the program's run.
  /// \param seed the seed; without one the low 32 bits of the microsecond clock
  explicit ChamberView(std::optional<std::uint32_t> seed, QWidget* parent = nullptr);
  ~ChamberView() override;
  ChamberView(const ChamberView&) = delete;
  ChamberView& operator=(const ChamberView&) = delete;
  ChamberView(ChamberView&&) = delete;
  ChamberView& operator=(ChamberView&&) = delete;

  /// Another clock for the turntable's steps and the replay's pauses.
  void setClock(const Clock& clock) { clock_ = clock; }

  void setRotationItems(const RotationItems& items) { rotation_items_ = items; }

  /// Takes a copy of an event, which must not be this view's own. Does not draw.
  void setData(std::span<const PlotPoint> points);
  /// This view's own copy of the event, whole even during a replay.
  [[nodiscard]] std::span<const PlotPoint> data_ptr() const { return event_data_; }
  /// Number of points that are shown; fewer than the event's during a replay.
  [[nodiscard]] std::int16_t point_number() const { return point_number_; }

  /// Stores the event type, 0 to 5, and stops the turntable.
  void setEventType(int type);
  [[nodiscard]] int event_type() const { return event_type_; }

  void setHasEvent(bool has_event) { has_event_ = has_event; }
  [[nodiscard]] bool has_event() const { return has_event_; }

  [[nodiscard]] bool show_axes() const { return show_axes_; }
  [[nodiscard]] bool show_values() const { return show_values_; }
  [[nodiscard]] bool reset_each() const { return reset_each_; }
  [[nodiscard]] bool slomo() const { return slomo_; }
  void set_show_axes(bool show);
  void set_show_values(bool show);
  void set_reset_each(bool reset) { reset_each_ = reset; }
  void set_slomo(bool slow) { slomo_ = slow; }

  /// The chamber values of the shown event.
  void setCurrentBField(float field_kG) { current_.B_field = field_kG; }
  void setCurrentSidesCm(float side_cm) { current_.sides_cm = side_cm; }
  void setCurrentMev(float energy_MeV) { current_.kinetic_Mev = energy_MeV; }
  [[nodiscard]] double B_field() const { return static_cast<double>(current_.B_field); }
  [[nodiscard]] double sides_cm() const { return static_cast<double>(current_.sides_cm); }
  [[nodiscard]] double kinetic_Mev() const { return static_cast<double>(current_.kinetic_Mev); }
  [[nodiscard]] const ChamberValues& current_values() const { return current_; }

  /// Rate of the turntable by the item chosen; a running one takes it at its next step.
  void setRotationRate(QAction* sender);
  /// Brings the window to the front and starts the turntable, or gives a running one its direction.
  void doRotation(QAction* sender);
  void stopRotating();
  [[nodiscard]] bool is_rotating() const { return is_rotating_; }
  /// \param axis 1 for x, 2 for y, 3 for z
  void setRotationAxis(int axis);
  [[nodiscard]] int rotation_axis() const { return rotation_axis_; }
  /// Seconds between two steps of the turntable.
  [[nodiscard]] double rot_delay() const { return rot_delay_; }
  /// Degrees of a step.
  [[nodiscard]] float rot_angle() const { return rot_angle_; }
  /// Steps turned since the program's start.
  [[nodiscard]] std::int64_t rotation_steps() const { return rotation_steps_; }
  /// The steps of the turntable that are due; schedules itself anew. Nothing while it stands.
  void rotate();
  /// Stops the turntable and goes back to the resting viewpoint.
  void resetOrientation();
  /// Stops the turntable; the replay begins after the turntable's delay, or when a window that is
  /// on its way to the screen has come up. Nothing more while a replay is due or for a key or a
  /// click from the time of a replay.
  void replay();

  void setPrinting(QPainter* page) override { page_ = page; }
  void printRect() override;
  /// The values line, on the screen or on the page; nothing without an event.
  void drawValues();
  /// The text of the values line.
  [[nodiscard]] std::string values_text() const;

 Q_SIGNALS:
  /// The view's window has to come to the front and get the keys.
  void windowWanted();

 protected:
  void initializeGL() override;
  void drawRect() override;
  void reshape() override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void setUpView();
  void adjustForOffset();
  void popProjectionMatrix();
  void drawChamber();
  void drawEvent();
  void drawForPrinting();
  void replayOnceSeen(int looks_left);
  void really_replay();
  void pauseForMicrosecs(std::int32_t microseconds) const;
  [[nodiscard]] std::span<const PlotPoint> shownPoints() const;

  RotationItems rotation_items_;
  int event_type_ = 0;
  int rotation_axis_ = 1;
  bool show_axes_ = true;
  bool show_values_ = true;
  bool reset_each_ = false;
  bool slomo_ = false;
  bool is_rotating_ = false;
  bool ready_to_show_ = false;
  bool has_event_ = false;
  bool needs_pop_ = false;
  QPainter* page_ = nullptr;  ///< the page while printing

  std::vector<PlotPoint> event_data_;
  CubeArray cubes_;
  OverlayText overlay_text_;
  std::int16_t point_number_ = 0;
  ChamberValues current_;

  float rot_angle_ = 0.5F;
  double rot_delay_ = 0.01;
  Clock clock_ = Microseconds;
  StepPace pace_;
  QTimer step_timer_;  ///< runs until the next step of the turntable
  std::int64_t rotation_steps_ = 0;

  std::unique_ptr<InputWatch> input_watch_;  ///< there while a replay is due or runs
  LateInput late_input_;
};

}  // namespace velquon
