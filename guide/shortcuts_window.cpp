// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/shortcuts_window.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

namespace velquon {

namespace {

/// Keys that are no menu item's, by where they work.
struct KeyRow {
  const char* where;
  const char* keys;
  const char* what;
};

constexpr std::array key_rows{
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Everywhere"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Tab, Shift+Tab"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "To the next control, to the one before")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Everywhere"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Alt with an underlined letter"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Open the menu, press the button")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Chamber"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Escape, Space"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Stop the turntable")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Chamber"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Escape"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "End a replay")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Sliders"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Arrow keys"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "By a tenth of a tick")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Sliders"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Page Up, Page Down"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "To the next tick")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Sliders"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Return on the label"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Type a value")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "T, G, C, A"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "The tools Tape, Grab, Curve, Angle")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Z, Y, X"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "The planes xy, xz, yz")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "1, 2, 3"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "The zooms")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "S"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Snap on and off")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector's picture"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Arrow keys, with Shift"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Move the cross by one pixel, by ten")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector's picture"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Return, Space"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Set a point, take hold, let go")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector's picture"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Delete, Backspace"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Take the last point away")},
    KeyRow{
        QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector's picture"),
        QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Escape"),
        QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Give up, clear the points, hide the cross")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Projector's picture"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Ctrl+Return"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Record what is measured")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Guide"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Ctrl+F, F3, Shift+F3"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Find, the next place, the place before")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Guide"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Ctrl++, Ctrl+-, Ctrl+0"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Larger, smaller, usual text")},
    KeyRow{QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Guide"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "Alt+Left, Alt+Right"),
           QT_TRANSLATE_NOOP("velquon::ShortcutsWindow", "A page back, a page forward")},
};

QString plain(const QString& text) {
  return QString(text).remove(QLatin1Char('&'));
}

/// The keys of a menu's items and of those of the menus in it.
void add_keys(QTreeWidgetItem& group, const QList<QAction*>& actions) {
  for (const QAction* const action : actions) {
    if (action->menu() != nullptr) {
      add_keys(group, action->menu()->actions());
    } else if (!action->shortcut().isEmpty()) {
      new QTreeWidgetItem(
          &group, {plain(action->text()), action->shortcut().toString(QKeySequence::NativeText)});
    }
  }
}

void add_menu(QTreeWidget& list, const QAction& menu) {
  auto* const group = new QTreeWidgetItem({ShortcutsWindow::tr("Menu %1").arg(plain(menu.text()))});
  add_keys(*group, menu.menu()->actions());
  if (group->childCount() > 0) {
    list.addTopLevelItem(group);
  } else {
    delete group;
  }
}

void add_other_keys(QTreeWidget& list) {
  QTreeWidgetItem* group = nullptr;
  for (const KeyRow& row : key_rows) {
    const QString where = ShortcutsWindow::tr(row.where);
    if (group == nullptr || group->text(0) != where) {
      group = new QTreeWidgetItem(&list, {where});
    }
    new QTreeWidgetItem(group, {ShortcutsWindow::tr(row.what), ShortcutsWindow::tr(row.keys)});
  }
}

}  // namespace

ShortcutsWindow::ShortcutsWindow(const QList<QAction*>& menus, QWidget* parent)
    : QWidget(parent, Qt::Window) {
  setWindowTitle(tr("Keyboard Shortcuts"));
  auto* const list = new QTreeWidget(this);
  list->setAccessibleName(tr("Keyboard Shortcuts"));
  list->setFrameShape(QFrame::NoFrame);
  list->setColumnCount(2);
  list->setHeaderLabels({tr("What it does"), tr("Keys")});
  list->setRootIsDecorated(false);
  list->setItemsExpandable(false);
  for (const QAction* const menu : menus) {
    add_menu(*list, *menu);
  }
  add_other_keys(*list);
  list->expandAll();
  list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list);
  new QShortcut(QKeySequence(Qt::Key_Escape), this, this, &QWidget::close);
  constexpr QSize window_size(560, 640);
  resize(window_size);
}

}  // namespace velquon
