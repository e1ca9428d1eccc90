// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace Ui {
class Menus;
}

namespace velquon {

class Commands;
class NewTrackView;
class TrackController;
class TrackModel;

/// Adds to the table what the items of the Track menu do, and when they can be chosen. The items of
/// the other menus that make, show, open and save events, but for the import of PC events, are disabled
/// while the track window is active and no run goes on.
/// \param controller gives that of the track window, which is made when it is first asked for
/// \param view       gives that window's view, or null while there is no window
void add_track_commands(Commands& commands, const Ui::Menus& menus, TrackModel& model,
                        const std::function<TrackController&()>& controller,
                        const std::function<NewTrackView*()>& view);

}  // namespace velquon
