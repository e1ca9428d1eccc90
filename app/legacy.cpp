// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Operations from before there were a model and a table of commands, which nothing of the program calls
// any more; kept because others may know and call them. Those of a kind of decay take the field as it
// is, and the particle for the positive one.

#include <QAction>
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

void ChamberController::setChamberData(std::span<const PlotPoint> points) {
  model_.showTracks(points);
}

bool ChamberController::validateMenuItem(const QAction& item) const {
  return item.objectName() != QStringLiteral("print_item") || print_view_ != nullptr;
}

}  // namespace velquon
