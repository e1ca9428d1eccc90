// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One operation for each kind of decay, from before the kinds of events stood in a table. Nothing of
// the program calls them any more; kept because these are operations that others may know and call. The
// field is taken as it is, and the particle for the positive one.

#include <algorithm>

#include "app/chamber_controller.h"

namespace velquon {

namespace {

const EventType& type_named(std::string_view key) {
  return *std::ranges::find(event_types(), key, &EventType::key);
}

}  // namespace

void ChamberController::makePionDecay() {
  model_.makeTracks(type_named("pi+"));
}
void ChamberController::makeMuonDecay() {
  model_.makeTracks(type_named("mu+"));
}
void ChamberController::makePizeroDecay() {
  model_.makeTracks(type_named("pi0"));
}
void ChamberController::makeLambdaDecay() {
  model_.makeTracks(type_named("lambda"));
}

}  // namespace velquon
