// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include "model/place.h"
#include "model/projector.h"

namespace velquon {

/// The part of a picture that keys can reach, view units.
struct KeyField {
  Place lower_left;
  Place upper_right;
};

/// A cross in the projection that keys move, and from which they do with the chosen tool what a
/// mouse does. It comes with the first key and goes when the mouse is used.
class KeyCross {
 public:
  /// \param projector whose tools the cross works
  explicit KeyCross(Projector& projector) : projector_(projector) {}

  [[nodiscard]] bool visible() const { return visible_; }
  [[nodiscard]] Place place() const { return place_.value_or(Place()); }

  /// Shows the cross where it was last, at first in the middle.
  void appear(const KeyField& field);
  void hide() { visible_ = false; }

  /// Moves the cross, and with it what it holds.
  void move(Place distance, const KeyField& field);
  /// Sets a point where the cross is, takes hold of what is there, or lets go. A cross that is not
  /// seen only appears.
  void act(const KeyField& field);
  /// Gives up what is half done; without such a thing clears the points that are set, and without
  /// any hides the cross.
  /// \return whether there was anything to give up
  bool giveUp();

  /// Moves the cross alone, for a picture that has moved.
  void moveBy(Place distance);

 private:
  void keepWithin(const KeyField& field);

  Projector& projector_;
  std::optional<Place> place_;
  bool visible_ = false;
};

}  // namespace velquon
