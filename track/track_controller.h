// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include "model/track_model.h"

class QWidget;

namespace velquon {

class NewTrackView;
class ValueSlider;

/// The controller of the track window: activates, shows and hides it, and passes on what the user
/// chooses.
class TrackController : public QObject {
  Q_OBJECT

 public:
  TrackController(TrackModel& model, NewTrackView& view, ValueSlider& slider, QWidget& window);

  /// Puts choices, view and slider into their start-up state, when all windows have been built.
  void awakeFromNib();

  /// Activates the track window, or deactivates and hides it.
  void setActivate();
  [[nodiscard]] bool activated() const { return model_.activated(); }
  /// Title of the menu item for `setActivate`, with the mark of its key.
  [[nodiscard]] static QString activateTitle(const TrackModel& model);
  void windowDidBecomeKey();
  void windowDidResignKey();

  void setParticle(TrackParticle particle);
  /// \param speed 1 to 3; with another the present choice is passed on again
  void setSpeed(int speed);
  void setDirection(TrackDirection direction);
  /// Period of the steps from the next injection on.
  void setScreenSpeed(ScreenSpeed speed);

  /// \param on allows what the track window offers and forbids the rest of the program, or the
  ///           reverse
  void doMenus(bool on);

  [[nodiscard]] ValueSlider* vSlider() const { return slider_; }
  void setVSlider(ValueSlider* slider) { slider_ = slider; }

  // What legacy.cpp has.

  /// Whether the user may do something in the present state.
  [[nodiscard]] bool validateMenuItem(TrackItem item) const;

 Q_SIGNALS:
  /// The track window has become active, or no longer is.
  void activatedChanged(bool active);

 private:
  TrackModel& model_;
  NewTrackView& view_;
  ValueSlider* slider_;
  QWidget& window_;
};

}  // namespace velquon
