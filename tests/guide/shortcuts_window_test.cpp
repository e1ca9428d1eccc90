// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/shortcuts_window.h"

#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <map>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class ShortcutsWindowTest : public ApplicationFixture {
 protected:
  /// What is listed, and its keys.
  std::map<QString, QString> listedKeys() {
    choose("shortcuts_item");
    EXPECT_TRUE(wait_until([] {
      const QWidget* const window = QApplication::activeWindow();
      return window != nullptr && window->windowTitle() == QStringLiteral("Keyboard Shortcuts");
    }));
    std::map<QString, QString> keys;
    QTreeWidgetItemIterator item(QApplication::activeWindow()->findChild<QTreeWidget*>());
    for (; *item != nullptr; ++item) {
      keys.emplace((*item)->text(0), (*item)->text(1));
    }
    return keys;
  }
};

}  // namespace

TEST_F(ShortcutsWindowTest, ListsEachItemThatHasAKey) {
  const auto listed = listedKeys();
  int with_keys = 0;
  for (const QAction* const item : items_of(chamberWindow().menuBar()->actions())) {
    if (item->shortcut().isEmpty()) {
      continue;
    }
    ++with_keys;
    const auto row = listed.find(item->text().remove(QLatin1Char('&')));
    ASSERT_NE(row, listed.end()) << item->text().toStdString();
    EXPECT_EQ(row->second, item->shortcut().toString(QKeySequence::NativeText));
  }
  EXPECT_GT(with_keys, 15);
}

TEST_F(ShortcutsWindowTest, ListsTheKeysOfTheMeasurementsMenu) {
  const auto listed = listedKeys();
  EXPECT_EQ(listed.at(QStringLiteral("Copy Rows")), QStringLiteral("Ctrl+C"));
  EXPECT_EQ(listed.at(QStringLiteral("Make Events…")), QStringLiteral("Ctrl+Alt+M"));
}

TEST_F(ShortcutsWindowTest, ListsTheKeysOfTheViews) {
  const auto listed = listedKeys();
  EXPECT_EQ(listed.at(QStringLiteral("Stop the turntable")), QStringLiteral("Escape, Space"));
  EXPECT_EQ(listed.at(QStringLiteral("The planes xy, xz, yz")), QStringLiteral("Z, Y, X"));
}

}  // namespace velquon::test
