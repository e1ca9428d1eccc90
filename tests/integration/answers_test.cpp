// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A key is answered soon whatever the program is at: nothing keeps it long from its event loop.

#include <QApplication>
#include <QByteArray>
#include <QDialog>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>
#include <random>
#include <utility>
#include <vector>

#include "model/measurements.h"
#include "printing/page_preview.h"
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

/// The shortest of a few times that Qt takes to compress some bytes, milliseconds.
double compressing_time() {
  QByteArray bytes(200'000, '\0');
  std::minstd_rand random(1);
  std::ranges::generate(bytes, [&random] { return static_cast<char>(random() % 16); });
  double shortest = std::numeric_limits<double>::max();
  for (int i = 0; i < 3; ++i) {
    const double start = thread_milliseconds();
    EXPECT_FALSE(qCompress(bytes).isEmpty());
    shortest = std::min(shortest, thread_milliseconds() - start);
  }
  return shortest;
}

/// How many times slower than an ordinary computer one is that takes such a time; 1 for one that is
/// quicker. Shared machines change their speed from minute to minute, but not without limit.
double slowness(double compressing_time) {
  constexpr double ordinary = 12.0;  // milliseconds
  constexpr double most = 3.0;
  return std::clamp(compressing_time / ordinary, 1.0, most);
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
  void showLargeEvent() { showEvent(spread_points(5000)); }
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
  /// Chooses an item that opens a dialog, and gives that up when it is there with its preview.
  void openDialog(const char* name) {
    QTimer look;
    look.callOnTimeout([] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      const auto* const preview = dialog != nullptr ? dialog->findChild<PagePreview*>() : nullptr;
      if (dialog != nullptr && (preview == nullptr || !preview->picture().isNull())) {
        dialog->reject();
      }
    });
    look.start(300);
    choose(name);
  }
};

}  // namespace

TEST_F(AnswersTest, AreGivenWithinAFifthOfASecond) {
  constexpr double longest = 200.0;  // milliseconds on an ordinary computer
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
    const double before = compressing_time();
    heart.takeLongest();
    QTimer::singleShot(0, qApp, work.run);
    constexpr int long_enough = 350;  // milliseconds
    run_loop_for(long_enough);
    const double time = heart.takeLongest();
    const double slow = slowness(std::max(before, compressing_time()));
    std::printf("%s: %.0f ms, on a machine %.2f times slower\n", work.what, time, slow);
    EXPECT_LT(time, longest * slow) << work.what;
  }
}

}  // namespace velquon::test
