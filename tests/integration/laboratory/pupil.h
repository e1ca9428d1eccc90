// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QString>
#include <cstdint>
#include <vector>

#include "tests/support/windows/application_fixture.h"

namespace velquon::test {

/// A measurement of an exercise's worked answer and how it is made: what is set, the event, the plane
/// and the tool of the projector, what the tool reads (cm or degrees), and the places that the mouse
/// goes to, from the view's upper left corner.
struct Gesture {
  std::uint32_t seed = 0;
  QString type;
  double field_kG = 0.0;
  double side_cm = 0.0;
  double energy_MeV = 0.0;
  int event = 0;
  QString plane;
  QString tool;
  QString reading;
  std::vector<QPoint> places;
};

/// The measurements of an exercise that are made with a seed, in order.
std::vector<Gesture> gestures_of(const QString& exercise, std::uint32_t seed);

/// The program in the hands of one who does an exercise: the values are set and events made by keys,
/// places are measured with the mouse.
class Pupil : public ApplicationFixture {
 protected:
  /// Sets type and values, each by the keys of its control.
  void set(const Gesture& gesture);
  /// Makes events until the one with a number is shown; the first since the start has the number 1.
  void goTo(int event);
  /// Chooses plane and tool and puts the mouse to the places. What is measured stays in the picture.
  void measure(const Gesture& gesture);

 private:
  int shown_ = 0;
};

}  // namespace velquon::test
