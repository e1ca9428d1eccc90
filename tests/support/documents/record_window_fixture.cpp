// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/record_window_fixture.h"

#include <QTest>
#include <QTreeWidgetItemIterator>
#include <array>

#include "tests/support/windows/waiting.h"

namespace velquon::test {

void RecordWindowFixture::openRecord() {
  choose("event_record_item");
  ASSERT_TRUE(wait_until_exposed(&recordWindow()));
  ASSERT_TRUE(wait_until([this] { return recordWindow().isActiveWindow(); }));
  // Beside the other windows, so that these are seen.
  recordWindow().move(20, 760);
  recordWindow().resize(recordWindow().width(), 300);
  handle_waiting_events();
}

void RecordWindowFixture::newEvent(int type, const ChamberValues& values) {
  constexpr std::array<const char*, 6> items{"piminus_item", "piplus_item", "pizero_item",
                                             "muminus_item", "muplus_item", "lambda_item"};
  controller().settings().showValues(values);
  choose(items.at(static_cast<std::size_t>(type)));
  choose("new_event_item");
}

void RecordWindowFixture::newEventUntil(int type, const ChamberValues& values,
                                        const std::function<bool(const ShownEvent&)>& is_wanted) {
  constexpr int most_events = 300;
  int events = 0;
  do {
    newEvent(type, values);
    ++events;
  } while (!is_wanted(*model().shown()) && events < most_events);
  ASSERT_TRUE(is_wanted(*model().shown()));
}

std::vector<QTreeWidgetItem*> RecordWindowFixture::rows() {
  std::vector<QTreeWidgetItem*> found;
  for (QTreeWidgetItemIterator row(&tree()); *row != nullptr; ++row) {
    found.push_back(*row);
  }
  return found;
}

void RecordWindowFixture::clickRow(std::size_t row, Qt::KeyboardModifiers keys) {
  const QPoint place = tree().visualItemRect(rows().at(row)).center();
  QTest::mouseClick(tree().viewport(), Qt::LeftButton, keys, QPoint(60, place.y()));
}

}  // namespace velquon::test
