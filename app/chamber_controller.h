#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <span>

#include "chamber/chamber_settings.h"
#include "engine/event_record.h"
#include "events/event_types.h"

class QAction;

namespace Ui {
class Menus;
}

namespace velquon {

class ChamberView;
class GLPanel;
class Printable;
class ProjectionView;
class UserDialogs;
class ViewScrollArea;
struct PrintChoices;

/// What the controller works on; all of it must outlive the controller.
struct ChamberOutlets {
  GLPanel* chamber_window = nullptr;
  GLPanel* projector_window = nullptr;
  ChamberView* chamber_view = nullptr;
  ProjectionView* projection_view = nullptr;
  ViewScrollArea* chamber_area = nullptr;
  ViewScrollArea* projector_area = nullptr;
  const Ui::Menus* menus = nullptr;
  UserDialogs* dialogs = nullptr;
  ChamberSettingsOutlets settings;
};

/// The controller of the chamber and projector windows: makes events, passes the choices of the
/// menus to the views, names and orders the windows, and knows which view is printed.
class ChamberController : public QObject {
  Q_OBJECT

 public:
  explicit ChamberController(const ChamberOutlets& outlets, QObject* parent = nullptr);
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

  /// Gives an event to the chamber view, which copies it, and the copy to the projection view.
  void setChamberData(std::span<const PlotPoint> points);
  /// Makes the next chamber values those of the shown event.
  void setCurrentChamberValues();

  /// The controls of the chamber values.
  [[nodiscard]] ChamberSettings& settings() { return settings_; }

  /// The name in the titles of both windows.
  [[nodiscard]] const QString& shownName() const { return shown_name_; }
  /// Titles both windows after a name. A name too long for a title of 256 bytes ends the program.
  void renameWindows(const QString& name);
  /// Brings the window that the user wants in front there.
  void reorderWindows();
  /// Prints the view whose window has the keys: shows the print panel.
  void print();
  /// Draws both views.
  void displayViews();

  void set_event_type(QAction* sender);
  void set_monitor(QAction* sender);
  void set_axis(QAction* sender);
  void set_slomo(QAction* sender);
  void set_chamber_prefs(QAction* sender);

  /// Whether an item of this controller may be chosen now.
  [[nodiscard]] bool validateMenuItem(const QAction* item) const;
  /// The view that is printed; null while neither view's window has the keys.
  [[nodiscard]] Printable* printView() const { return print_view_; }

 private:
  void makePionDecay();
  void makeMuonDecay();
  void makePizeroDecay();
  void makeLambdaDecay();
  void runChain(DecayChain chain);
  void runGenerator(std::size_t type);
  void connectMenus();
  void connectWindows();
  void setPrintView(Printable* view);
  void keyWindowChanged();

  ChamberOutlets outlets_;
  ChamberSettings settings_;
  QString shown_name_;
  bool chamber_on_top_ = true;
  Printable* print_view_ = nullptr;
  std::unique_ptr<PrintChoices> print_choices_;
};

}  // namespace velquon
