// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/presented_places.h"

#include <algorithm>
#include <cmath>

namespace velquon {

namespace {

// Shares of the room that a panel has at least, and at most where the picture leaves it more.
constexpr double least_beside = 0.21;
constexpr double most_beside = 0.28;
constexpr double least_below = 0.12;
constexpr double most_below = 0.14;

double largest_magnification(QSizeF room, QSize picture) {
  return std::min(room.width() / picture.width(), room.height() / picture.height());
}

QSize magnified(QSize picture, double magnification) {
  // Rounded down: what is beyond the room would be cut.
  return {static_cast<int>(std::floor(picture.width() * magnification)),
          static_cast<int>(std::floor(picture.height() * magnification))};
}

PresentedPlaces with_panel_beside(QSize room, QSize picture, double magnification) {
  const QSize shown = magnified(picture, magnification);
  const int panel = std::min(room.width() - shown.width(), qRound(most_beside * room.width()));
  const int left = (room.width() - shown.width() - panel) / 2;
  return {.picture = {QPoint(left, (room.height() - shown.height()) / 2), shown},
          .magnification = magnification,
          .panel = {left + shown.width(), 0, panel, room.height()}};
}

PresentedPlaces with_panel_below(QSize room, QSize picture, double magnification) {
  const QSize shown = magnified(picture, magnification);
  const int panel = std::min(room.height() - shown.height(), qRound(most_below * room.height()));
  const int top = (room.height() - shown.height() - panel) / 2;
  return {.picture = {QPoint((room.width() - shown.width()) / 2, top), shown},
          .magnification = magnification,
          .panel = {0, top + shown.height(), room.width(), panel}};
}

}  // namespace

PresentedPlaces presented_places(QSize room, QSize picture) {
  const double width = room.width();
  const double height = room.height();
  const double beside = largest_magnification({width * (1.0 - least_beside), height}, picture);
  const double below = largest_magnification({width, height * (1.0 - least_below)}, picture);
  return beside >= below ? with_panel_beside(room, picture, beside)
                         : with_panel_below(room, picture, below);
}

}  // namespace velquon
