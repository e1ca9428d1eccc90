#pragma once

namespace Ui {
class Menus;
}

namespace velquon {

class Commands;
class NewTrackView;
class TrackController;
class TrackWindow;

/// Adds to the table what the items of the Track menu do, and when they can be chosen. The items of
/// the other menus that make, show, open and save events are disabled while the track window is
/// active and no run goes on.
void add_track_commands(Commands& commands, const Ui::Menus& menus, TrackController& controller,
                        NewTrackView& view);

/// The same for a whole window, with the item of the Window menu that brings it back. The window's
/// buttons stand for their items from then on.
void add_track_commands(Commands& commands, const Ui::Menus& menus, TrackWindow& window);

}  // namespace velquon
