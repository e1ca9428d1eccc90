// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the program keeps after long use: as much as after a little.

#include <malloc.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "app/event_documents.h"
#include "events/event_types.h"
#include "files/event_file.h"
#include "tests/support/windows/track_window_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// What the program holds of the system.
struct Held {
  long kilobytes = 0;  ///< memory in use
  qsizetype files = 0;
};

Held held_now() {
  // What is free goes back to the system.
  malloc_trim(0);
  QFile status(QStringLiteral("/proc/self/status"));
  EXPECT_TRUE(status.open(QIODevice::ReadOnly));
  const QByteArray text = status.readAll();
  constexpr const char* entry = "VmRSS:";
  const QByteArray line = text.mid(text.indexOf(entry) + 6, 30).trimmed();
  const QDir files(QStringLiteral("/proc/self/fd"));
  return {line.left(line.indexOf(' ')).toLong(),
          files.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size()};
}

/// A kind of event, each in its turn.
int type_of(int number) {
  return number % static_cast<int>(event_types().size());
}

class FlatMemoryTest : public TrackWindowFixture {
 protected:
  /// Does something a tenth of a number of times, then the rest of it, and compares what is held.
  void expectFlat(const char* what, int times, const std::function<void(int)>& act) {
    const auto act_from = [&](int first, int end) {
      for (int i = first; i < end; ++i) {
        act(i);
        if (i % 50 == 0) {
          handle_waiting_events();
        }
      }
    };
    act_from(0, times / 10);
    const Held before = held_now();
    act_from(times / 10, times);
    const Held after = held_now();
    std::printf("%s, %d times: %ld kB, %ld kB after the first tenth; %lld files\n", what, times,
                after.kilobytes, before.kilobytes, static_cast<long long>(after.files));
    constexpr long grown_by_chance = 2048;  // kB; the heap's own ways
    EXPECT_LT(after.kilobytes, before.kilobytes + grown_by_chance) << what;
    constexpr qsizetype in_use = 5;  // files that are open for a moment
    EXPECT_LT(after.files, before.files + in_use) << what;
  }
};

}  // namespace

TEST_F(FlatMemoryTest, TwoThousandNewEventsOnTheScreenLeaveNothing) {
  expectFlat("New events", 2'000, [&](int i) {
    controller().set_event_type(type_of(i));
    controller().makeNewEvent();
  });
}

TEST_F(FlatMemoryTest, TwentyThousandNewEventsOfTheModelLeaveNothing) {
  // To bring an event to the screen takes many times as long as to make it.
  ChamberModel& model = application().model();
  expectFlat("New events of the model", 20'000, [&](int i) {
    model.setEventType(type_of(i));
    model.makeNewEvent();
  });
}

TEST_F(FlatMemoryTest, FiveHundredOpeningsLeaveNothing) {
  const QTemporaryDir folder;
  std::vector<PlotPoint> points;
  points.reserve(300);
  for (int i = 0; i < 300; ++i) {
    points.push_back(point_at(i, 2.0 * i, -i, static_cast<std::int16_t>(i % 5)));
  }
  const auto bytes = encode_event(points, ChamberValues{});
  QFile file(folder.filePath(QStringLiteral("event.cwd")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  file.close();
  expectFlat("Openings", 500, [&](int) {
    ASSERT_TRUE(application().documents().readAndDisplayFile(file.fileName()));
  });
}

TEST_F(FlatMemoryTest, TwoHundredInjectionsLeaveNothing) {
  activateTrack();
  expectFlat("Injections", 200, [&](int) {
    choose("inject_item");
    ASSERT_TRUE(wait_until([&] { return points() > 20; }));
    endRun();
    waitForEndOfRun();
  });
}

}  // namespace velquon::test
