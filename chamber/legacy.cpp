// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How events and values were passed on piece by piece before there was a model. Nothing of the program
// does so any more; kept because these are operations that others may know and call.

#include "chamber/chamber_settings.h"
#include "chamber/chamber_view.h"

namespace velquon {

template <typename Change>
void ChamberView::changeEvent(Change change) {
  auto event = std::make_shared<ShownEvent>(*event_);
  change(*event);
  show(std::move(event));
}

void ChamberView::setData(std::span<const PlotPoint> points) {
  changeEvent([points](ShownEvent& event) { event.tracks = tracks_of(points); });
}

void ChamberView::setHasEvent(bool has_event) {
  changeEvent([has_event](ShownEvent& event) { event.has_event = has_event; });
}

void ChamberView::setCurrentBField(float field_kG) {
  changeEvent([field_kG](ShownEvent& event) { event.values.B_field = field_kG; });
}

void ChamberView::setCurrentSidesCm(float side_cm) {
  changeEvent([side_cm](ShownEvent& event) { event.values.sides_cm = side_cm; });
}

void ChamberView::setCurrentMev(float energy_MeV) {
  changeEvent([energy_MeV](ShownEvent& event) { event.values.kinetic_Mev = energy_MeV; });
}

void ChamberSettings::setNextBField(float field_kG) {
  ChamberValues values = model_.next();
  values.B_field = field_kG;
  model_.setNext(values);
}

void ChamberSettings::setNextSidesCm(float side_cm) {
  ChamberValues values = model_.next();
  values.sides_cm = side_cm;
  model_.setNext(values);
}

void ChamberSettings::setNextMev(float energy_MeV) {
  ChamberValues values = model_.next();
  values.kinetic_Mev = energy_MeV;
  model_.setNext(values);
}

}  // namespace velquon
