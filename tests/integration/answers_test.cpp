// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A key is answered soon whatever the program is at: nothing keeps it long from its event loop.

#include <QDialog>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>

#include "model/measurements.h"
#include "record/measurements_window.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// Processor time of the thread so far, milliseconds. It does not count what else the machine does.
double thread_milliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1.0e3 + static_cast<double>(time.tv_nsec) * 1.0e-6;
}

/// Notes the longest time between two rounds of the event loop.
class Heart {
 public:
  Heart() {
    beat_.callOnTimeout([this] { beat(); });
    beat_.start(1);
  }
  /// The longest time from one beat to the next since the last call, milliseconds.
  double takeLongest() {
    beat();
    return std::exchange(longest_, 0.0);
  }

 private:
  void beat() {
    const double now = thread_milliseconds();
    longest_ = std::max(longest_, now - last_);
    last_ = now;
  }

  QTimer beat_;
  double last_ = thread_milliseconds();
  double longest_ = 0.0;
};

class AnswersTest : public ApplicationFixture {
 protected:
  void showLargeEvent() {
    std::vector<PlotPoint> points;
    for (int i = 0; i < 5000; ++i) {
      points.push_back(point_at(0.0, i % 701 - 350, i % 613 - 306, 3));
    }
    showEvent(points);
  }
  void addMeasurements(int rows) {
    MeasurementTable added;
    for (int i = 0; i < rows; ++i) {
      Measurement row;
      row.event = "event";
      row.quantity = Quantity::length;
      row.value = 1.0 + 0.01 * i;
      added.push_back(row);
    }
    application().measurements().add(std::move(added));
  }
  /// Chooses an item that opens a dialog, and gives that up.
  void openDialog(const char* name) {
    QTimer::singleShot(300, qApp, [] {
      if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        dialog->reject();
      }
    });
    choose(name);
  }
};

}  // namespace

TEST_F(AnswersTest, AreGivenWithinAFifthOfASecond) {
  constexpr double longest = 200.0;  // milliseconds
  struct Work {
    const char* what;
    std::function<void()> run;
  };
  const std::vector<Work> all{
      {"a new event", [&] { choose("new_event_item"); }},
      {"the print panel", [&] { openDialog("print_item"); }},
      {"a large event", [&] { showLargeEvent(); }},
      {"the print panel of it", [&] { openDialog("print_item"); }},
      {"the turntable", [&] { choose("rotate_item"); }},
      {"the record", [&] { choose("event_record_item"); }},
      {"a thousand measurements", [&] { addMeasurements(1000); }},
      {"their histogram", [&] { choose("measurements_item"); }},
      {"the guide", [&] { choose("guide_item"); }},
      {"the list of keys", [&] { choose("shortcuts_item"); }},
      {"the panel of worksheets", [&] { openDialog("worksheets_item"); }},
      {"a presentation", [&] { choose("presentation_item"); }},
      {"its end", [&] { choose("presentation_item"); }},
      {"a copy of the picture", [&] { choose("copy_picture_item"); }},
      {"the track window", [&] { choose("activate_item"); }},
  };
  Heart heart;
  for (const Work& work : all) {
    activate(chamberWindow());
    run_loop_for(50);
    heart.takeLongest();
    QTimer::singleShot(0, qApp, work.run);
    constexpr int long_enough = 500;  // milliseconds
    run_loop_for(long_enough);
    const double time = heart.takeLongest();
    std::printf("%s: %.0f ms\n", work.what, time);
    EXPECT_LT(time, longest) << work.what;
  }
}

}  // namespace velquon::test
