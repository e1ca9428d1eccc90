// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chamber/chamber_window.h"

#include <QKeyEvent>
#include <QLabel>

#include "chamber/chamber_settings.h"
#include "chamber/chamber_view.h"
#include "ui_chamber_window.h"
#include "widgets/designed_form.h"
#include "widgets/wheel_guard.h"
#include "wording/told_event.h"

namespace velquon {

namespace {

/// Gives a label room for a text; a value of many digits in a file does not widen the window.
void give_room_for(QLabel& label, const QString& text) {
  label.setMinimumWidth(label.fontMetrics().horizontalAdvance(text));
  label.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

}  // namespace

ChamberWindow::ChamberWindow(ChamberModel& model)
    : ui_(set_up_form<Ui::ChamberWindow>(*this)),
      view_(new ChamberView(model, ui_->chamber_area->viewport())),
      settings_(std::make_unique<ChamberSettings>(*ui_, model)) {
  view_->setObjectName(QStringLiteral("chamber_view"));
  view_->setAccessibleName(tr("Particle chamber"));
  ui_->chamber_area->setAccessibleName(tr("Part of the chamber that is seen"));
  ui_->chamber_area->setView(view_, {chamber_width, chamber_height});
  ui_->chamber_focus_line->watch(view_);
  ui_->chamber_legend->setRoomFor(usual_legend(TrackColoring::by_code), chamber_width);
  makeRoomForStatus(long_status());
  give_room_for(*ui_->magfield_text, QStringLiteral("B = 10.000 kG"));
  give_room_for(*ui_->sides_text, QStringLiteral("L = 10.000 m"));
  give_room_for(*ui_->kinetic_energy_text, QStringLiteral("T = 10000.0 MeV"));
  take_wheel_only_with_focus(*ui_->efactor_popup);
  setContent(takeCentralWidget());
}

ChamberWindow::~ChamberWindow() = default;

ViewScrollArea* ChamberWindow::area() const {
  return ui_->chamber_area;
}

QToolBar* ChamberWindow::toolBar() const {
  return ui_->chamber_tool_bar;
}

void ChamberWindow::tell(const ToldEvent& event) {
  ui_->chamber_legend->setLegend(event.legend, event.spoken_legend);
  ui_->chamber_status->tell(event.status);
  if (event.spoken != view_->accessibleDescription()) {
    view_->setAccessibleDescription(event.spoken);
  }
}

void ChamberWindow::showLegend(bool show) {
  ui_->chamber_legend->setVisible(show);
}

void ChamberWindow::makeRoomForStatus(const QString& longest) {
  ui_->chamber_status->setRoomFor(longest, chamber_width);
}

QString ChamberWindow::shownStatus() const {
  return ui_->chamber_status->text();
}

void ChamberWindow::keyPressEvent(QKeyEvent* event) {
  if (view_->is_rotating() && (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Space)) {
    view_->stopRotating();
    return;
  }
  GLPanel::keyPressEvent(event);
}

}  // namespace velquon
