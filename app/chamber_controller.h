// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <span>

#include "engine/event_record.h"
#include "model/chamber_model.h"
#include "model/listeners.h"

class QAction;

namespace velquon {

class ChamberSettings;
class ChamberView;
class ChamberWindow;
class GLPanel;
class Printable;
class ProjectionView;
class Projector;
class ProjectorWindow;
class UserDialogs;
struct PrintChoices;

/// What a check mark of the settings menu says.
enum class ChamberPreference : std::uint8_t { axes, values, reset_each };

/// Which window comes to the front with a new event.
enum class Monitor : std::uint8_t { chamber, projector };

/// The controller of the chamber and projector windows: has the model make events, hands them to the
/// views, names and orders the windows, and knows which view is printed.
class ChamberController : public QObject {
  Q_OBJECT

 public:
  /// \param projector what the projector's window shows an event with
  ChamberController(ChamberModel& model, Projector& projector, ChamberWindow& chamber_window,
                    ProjectorWindow& projector_window, UserDialogs& dialogs);
  ~ChamberController() override;
  ChamberController(const ChamberController&) = delete;
  ChamberController& operator=(const ChamberController&) = delete;
  ChamberController(ChamberController&&) = delete;
  ChamberController& operator=(ChamberController&&) = delete;

  /// Sets the start-up values and shows no event yet. To be called once, before the windows are
  /// shown.
  void awakeFromNib();

  /// Makes an event of the chosen type with the values of the controls and shows it.
  void makeNewEvent();

  /// Show again, in both views, the event that was made or opened before or after the one that is
  /// shown. Nothing where there is none.
  void showPreviousEvent();
  void showNextEvent();

  /// Makes the next chamber values those of the shown event.
  void setCurrentChamberValues();

  [[nodiscard]] ChamberModel& model() { return model_; }
  /// The controls of the chamber values.
  [[nodiscard]] ChamberSettings& settings();

  /// The name in the titles of both windows.
  [[nodiscard]] QString shownName() const;
  /// Gives the shown event another name; the windows have their titles after it. A name too long for a
  /// title of 256 bytes ends the program.
  void renameWindows(const QString& name);
  /// Brings the window that the user wants in front there.
  void reorderWindows();
  /// Prints the view whose window is active: shows the print panel.
  void print();
  /// Draws both views.
  void displayViews();

  /// \param type an index of `event_types`
  void set_event_type(int type);
  void set_monitor(Monitor monitor);
  [[nodiscard]] Monitor monitor() const;
  /// \param axis 1 for x, 2 for y; any other is z
  void set_axis(int axis);
  /// Switches slow motion on or off.
  void set_slomo();
  /// Switches a preference on or off.
  void set_chamber_prefs(ChamberPreference preference);
  /// Switches one of the model's preferences on or off, and draws both views.
  void togglePreference(bool ChamberPreferences::*preference);

  /// The view that is printed; null while neither view's window is active.
  [[nodiscard]] Printable* printView() const { return print_view_; }

  // What legacy.cpp has.

  // Run the generator of a kind of event under the next values as they stand.
  void makePionDecay();
  void makeMuonDecay();
  void makePizeroDecay();
  void makeLambdaDecay();
  /// Shows tracks in both views. Does not draw.
  void setChamberData(std::span<const PlotPoint> points);
  /// Whether an item of this controller may be chosen now.
  [[nodiscard]] bool validateMenuItem(const QAction& item) const;

 Q_SIGNALS:
  /// Another view is printed than before, or none.
  void printViewChanged();

 private:
  void connectWindows();
  void showAgain(void (ChamberModel::*show)());
  void handOver();
  void titleWindows();
  void setPrintView(Printable* view);
  void keyWindowChanged();

  ChamberModel& model_;
  Projector& projector_;
  ChamberWindow& chamber_window_;
  ProjectorWindow& projector_window_;
  ChamberView& chamber_view_;
  ProjectionView& projection_view_;
  UserDialogs& dialogs_;
  Printable* print_view_ = nullptr;
  std::unique_ptr<PrintChoices> print_choices_;
  QString titled_;  ///< the name that the titles have
  Subscription changes_;
  Subscription changed_marks_;
};

}  // namespace velquon
