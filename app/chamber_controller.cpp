// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/chamber_controller.h"

#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "app/command_line.h"
#include "chamber/chamber_settings.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "printing/print_panel.h"
#include "printing/print_view.h"
#include "projection/projection_view.h"
#include "projection/projector_window.h"
#include "widgets/model_text.h"
#include "widgets/view_scroll_area.h"

namespace velquon {

namespace {

// A title with its closing zero byte has that much room.
constexpr qsizetype title_size = 256;

/// Gives a window its title.
/// \param title with %1 for the event's name, in the user's language
/// \param prefix what stands before the name in English: the room is that of the English title,
///               so that a name fits in every language or in none
void set_title(GLPanel& window, const QString& title, QLatin1String prefix, const QString& name) {
  if (prefix.size() + name.toUtf8().size() + 1 > title_size) {
    std::fprintf(stderr, "velquon: the name '%s' does not fit into a window's title\n",
                 qPrintable(as_one_line(name)));
    std::abort();
  }
  window.setTitle(title.arg(event_name_text(name.toStdString())));
}

}  // namespace

ChamberController::ChamberController(ChamberModel& model, Projector& projector,
                                     ChamberWindow& chamber_window,
                                     ProjectorWindow& projector_window, UserDialogs& dialogs)
    : model_(model),
      projector_(projector),
      chamber_window_(chamber_window),
      projector_window_(projector_window),
      chamber_view_(*chamber_window.view()),
      projection_view_(*projector_window.view()),
      dialogs_(dialogs),
      print_choices_(std::make_unique<PrintChoices>()) {
  connectWindows();
  changes_ = model_.changed.add([this] { handOver(); });
  changed_marks_ = model_.marks_changed.add([this] { displayViews(); });
}

ChamberController::~ChamberController() = default;

void ChamberController::awakeFromNib() {
  model_.setNext(as_controls_hold(ChamberValues{}));
  settings().showValues(model_.next());
  setCurrentChamberValues();
  renameWindows(QStringLiteral("Empty"));
  constexpr QPointF start_corner(10.0, 30.0);
  projector_window_.area()->scrollPoint(start_corner);
  chamber_window_.area()->scrollPoint(start_corner);
  setPrintView(&chamber_view_);
}

void ChamberController::makeNewEvent() {
  chamber_view_.stopRotating();
  if (chamber_view_.reset_each()) {
    chamber_view_.resetOrientation();
  }
  settings().setNextChamberValues();
  model_.makeNewEvent();
  projection_view_.restore();
  if (chamber_view_.reset_each()) {
    chamber_view_.resetOrientation();
  }
  reorderWindows();
  if (chamber_view_.slomo()) {
    chamber_view_.replay();
  } else {
    chamber_view_.display();
  }
  projection_view_.display();
}

void ChamberController::showPreviousEvent() {
  if (model_.hasPreviousEvent()) {
    showAgain(&ChamberModel::showPreviousEvent);
  }
}

void ChamberController::showNextEvent() {
  if (model_.hasNextEvent()) {
    showAgain(&ChamberModel::showNextEvent);
  }
}

void ChamberController::showAgain(void (ChamberModel::*show)()) {
  chamber_view_.stopRotating();
  (model_.*show)();
  projection_view_.restore();
  displayViews();
}

void ChamberController::setCurrentChamberValues() {
  model_.showNextValues();
}

ChamberSettings& ChamberController::settings() {
  return chamber_window_.settings();
}

QString ChamberController::shownName() const {
  return QString::fromStdString(model_.shown()->name);
}

void ChamberController::titleWindows() {
  const QString name = shownName();
  if (name == titled_) {
    return;
  }
  titled_ = name;
  set_title(chamber_window_, tr("Particle Chamber: %1"), QLatin1String("Particle Chamber: "), name);
  set_title(projector_window_, tr("Projector: %1"), QLatin1String("Projector: "), name);
}

void ChamberController::renameWindows(const QString& name) {
  model_.showName(name.toStdString());
}

void ChamberController::reorderWindows() {
  if (monitor() == Monitor::chamber) {
    chamber_window_.makeKeyAndOrderFront();
  } else {
    projector_window_.makeKeyAndOrderFront();
  }
}

void ChamberController::displayViews() {
  chamber_view_.display();
  projection_view_.display();
}

void ChamberController::print() {
  // The panel becomes the active window in place of the view's, and with that the choice of what is printed.
  Printable* const view = print_view_;
  if (view == nullptr) {
    return;
  }
  GLPanel* window = &projector_window_;
  if (view == &chamber_view_) {
    window = &chamber_window_;
  }
  // The page shows the picture at rest, as the panel's preview does.
  chamber_view_.stopRotating();
  PrintView page(*view, window->title(),
                 QString::fromStdString(chamber_view_.valuesOnPageOf(*view)));
  PrintPanel(page, QFileInfo(event_name_text(model_.shown()->name)).completeBaseName(),
             *print_choices_, dialogs_, window)
      .exec();
}

void ChamberController::set_event_type(int type) {
  chamber_view_.setEventType(type);
}

void ChamberController::set_monitor(Monitor monitor) {
  ChamberPreferences preferences = model_.preferences();
  preferences.chamber_on_top = monitor == Monitor::chamber;
  model_.setPreferences(preferences);
}

Monitor ChamberController::monitor() const {
  return model_.preferences().chamber_on_top ? Monitor::chamber : Monitor::projector;
}

void ChamberController::set_axis(int axis) {
  chamber_view_.setRotationAxis(axis == 1 || axis == 2 ? axis : 3);
}

void ChamberController::set_slomo() {
  chamber_view_.set_slomo(!chamber_view_.slomo());
}

void ChamberController::set_chamber_prefs(ChamberPreference preference) {
  switch (preference) {
    case ChamberPreference::axes:
      chamber_view_.set_show_axes(!chamber_view_.show_axes());
      break;
    case ChamberPreference::values:
      chamber_view_.set_show_values(!chamber_view_.show_values());
      break;
    case ChamberPreference::reset_each:
      chamber_view_.set_reset_each(!chamber_view_.reset_each());
      break;
  }
}

void ChamberController::togglePreference(bool ChamberPreferences::*preference) {
  ChamberPreferences preferences = model_.preferences();
  preferences.*preference = !(preferences.*preference);
  model_.setPreferences(preferences);
  displayViews();
}

void ChamberController::setPrintView(Printable* view) {
  print_view_ = view;
  Q_EMIT printViewChanged();
}

void ChamberController::keyWindowChanged() {
  // A window hears that it is active before the other one hears that it no longer is, so both look
  // which one is. The turntable runs only while the chamber's window is active.
  if (chamber_window_.isActiveWindow()) {
    setPrintView(&chamber_view_);
    return;
  }
  if (chamber_view_.is_rotating()) {
    chamber_view_.stopRotating();
  }
  setPrintView(projector_window_.isActiveWindow() ? &projection_view_ : nullptr);
}

void ChamberController::connectWindows() {
  for (GLPanel* const window :
       std::initializer_list<GLPanel*>{&chamber_window_, &projector_window_}) {
    connect(window, &GLPanel::becameKey, this, &ChamberController::keyWindowChanged);
    connect(window, &GLPanel::resignedKey, this, &ChamberController::keyWindowChanged);
  }
  connect(&chamber_view_, &ChamberView::windowWanted, &chamber_window_,
          &GLPanel::makeKeyAndOrderFront);
}

void ChamberController::handOver() {
  titleWindows();
  chamber_view_.show(model_.shown());
  projection_view_.show(model_.shown());
  projector_.show(model_.shown());
  projection_view_.mark(model_.marked());
  projection_view_.setColored(model_.preferences().colored_projector);
}

}  // namespace velquon
