// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/menu_keys.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// The letter that picks an item; none without one.
Qt::Key letter_of(const QAction& item) {
  const QKeySequence mnemonic = QKeySequence::mnemonic(item.text());
  return mnemonic.isEmpty() ? Qt::Key_unknown : mnemonic[0].key();
}

}  // namespace

QStringList menu_path(const char* titles) {
  return QString::fromUtf8(titles).split(QLatin1Char('/'));
}

bool choose_by_keys(QMainWindow& window, const char* titles) {
  QStringList path;
  QWidget* open = &window;
  for (const QString& title : menu_path(titles)) {
    path << title;
    const QAction* const item = item_titled(window, path);
    if (item == nullptr || letter_of(*item) == Qt::Key_unknown) {
      return false;
    }
    QTest::keyClick(open, letter_of(*item), open == &window ? Qt::AltModifier : Qt::NoModifier);
    QMenu* const menu = item->menu();
    if (menu != nullptr && !wait_until([menu] { return menu->isVisible(); })) {
      return false;
    }
    open = menu;
  }
  return wait_until([] { return QApplication::activePopupWidget() == nullptr; });
}

QStringList letters_of(const QMenu& menu) {
  QStringList letters;
  for (const QAction* const item : menu.actions()) {
    if (letter_of(*item) != Qt::Key_unknown) {
      letters << QKeySequence(letter_of(*item)).toString();
    }
  }
  return letters;
}

void expect_own_letters(const QList<QAction*>& titles_of_menu) {
  QList<Qt::Key> taken;
  for (const QAction* const title : titles_of_menu) {
    if (title->isSeparator()) {
      continue;
    }
    const Qt::Key letter = letter_of(*title);
    EXPECT_NE(letter, Qt::Key_unknown) << title->text().toStdString();
    EXPECT_FALSE(taken.contains(letter)) << title->text().toStdString();
    taken << letter;
    if (title->menu() != nullptr) {
      expect_own_letters(title->menu()->actions());
    }
  }
}

}  // namespace velquon::test
