// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCursor>
#include <cstdint>
#include <memory>

#include "model/clock.h"
#include "model/track_drawing.h"
#include "widgets/gl_view.h"

class QTimer;

namespace velquon {

class TrackModel;
class ValueSlider;

/// The picture of the live track: an electron or a positron that crosses a plane in a magnetic
/// field, drawn while it moves, and a tape measure to lay on its track. It makes the steps of a run,
/// by a timer. Everything runs on the main thread.
class NewTrackView : public GLView {
  Q_OBJECT

 public:
  explicit NewTrackView(QWidget* parent = nullptr);
  /// A run that goes on, or is about to start, ends with the view, without a trace.
  ~NewTrackView() override;

  /// Gives the view what it shows. To be called once, before anything else.
  void setModel(TrackModel& model) { model_ = &model; }
  /// Makes the cursors, when the window has been built.
  void awakeFromNib();

  /// \param charge -1 for the electron, +1 for the positron
  void setCharge(float charge);
  /// \param speed view units per step
  void setSpeed(float speed);
  /// \param direction 1 from left to right, 2 from right to left
  void setDirection(std::int32_t direction);
  /// Takes the slider's field, or that of the tick mark when one is next to it. Counts from the
  /// next step on.
  void setMagField(const ValueSlider* sender);

  /// Starts a run, from the event loop; one that goes on is given up.
  void injectParticle();
  /// What an injection has the event loop do: starts the run.
  void trackOnScreen();
  void startTracking();
  void prepareForTracking();
  /// One step.
  void TrackWithTimer(QTimer* timer);
  /// Says that no run goes on. The timer moves the particle on until it leaves the area.
  void stopTracking();
  [[nodiscard]] bool is_tracking() const;

  /// Clears the picture, during a run the track up to the present point with it.
  void clearScreen();

  /// Length of the tape, a tenth of its view units.
  [[nodiscard]] double tapeLength() const;

  [[nodiscard]] const QCursor& black_cursor() const { return black_hair_cursor_; }
  [[nodiscard]] const QCursor& cross_hair_cursor() const { return cross_hair_cursor_; }

  /// The step timer; it is there from the first start on, and runs during a run.
  [[nodiscard]] QTimer* trackTimer() const { return trackTimer_.get(); }
  void setTrackTimer(std::unique_ptr<QTimer> timer);

  /// Has the pace of the steps read another clock than the computer's, from the next start on.
  /// \param clock microseconds, never stepping back
  void setClock(Clock clock) { clock_ = std::move(clock); }

  // What legacy.cpp has.

  /// \param microseconds the delay of a step, which nothing heeds any more
  void setScreenSpeed(double microseconds);
  [[nodiscard]] std::int32_t musecs() const;
  /// Sets the field to that of the old slider, 0, and makes a step at once when a run goes on.
  void sliderSet();
  void goAhead();
  [[nodiscard]] bool pause() const;
  /// Notes that a timer fired and stops it.
  static void TestTimer(QTimer* timer);
  /// Runs to the end without returning to the event loop.
  void OldtrackOnScreen();

 protected:
  void drawRect() override;
  void reshape() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void makeStepsDue();
  void step();
  void endRun();
  void redraw();
  void redrawForStep();
  void notePictureLost();
  void clearColorBuffer();
  void makeCursors();
  void resetCursorRects();
  void drawTrack() const;
  void drawTape() const;

  TrackModel* model_ = nullptr;
  QCursor cross_hair_cursor_;
  QCursor black_hair_cursor_;
  std::int32_t musecs_ = 4000;
  bool pause_ = false;
  TrackDrawing drawing_;
  std::unique_ptr<QTimer> trackTimer_;
  Clock clock_;
};

}  // namespace velquon
