// How the chamber view took an event in pieces before it was handed one whole. The program does so no
// more; kept for those who put a view of their own together.

#include "chamber/chamber_view.h"

namespace velquon {

template <typename Change>
void ChamberView::changeEvent(Change change) {
  auto event = std::make_shared<ShownEvent>(*event_);
  change(*event);
  show(std::move(event));
}

void ChamberView::setData(std::span<const PlotPoint> points) {
  auto tracks = std::make_shared<EventTracks>();
  tracks->points.assign(points.begin(), points.end());
  changeEvent([&tracks](ShownEvent& event) { event.tracks = std::move(tracks); });
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

}  // namespace velquon
