// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/shown_texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>
#include <QTreeWidget>

namespace velquon::test {

namespace {

std::string place_of(const QObject& object) {
  return std::string(object.metaObject()->className()) + " " + object.objectName().toStdString();
}

/// What is shown, with the width that it has and the one that it takes; the same for heights.
struct Room {
  QString text;
  int given = 0;
  int taken = 0;
};

Room room_of(const QLabel& label) {
  const QSize wanted = label.sizeHint();
  if (label.wordWrap()) {
    return {label.text(), label.height(), label.heightForWidth(label.width())};
  }
  return {label.text(), label.width(), wanted.width()};
}

std::vector<Room> rooms_of(const QTabBar& bar) {
  std::vector<Room> rooms;
  for (int i = 0; i < bar.count(); ++i) {
    const int width = bar.fontMetrics().horizontalAdvance(bar.tabText(i).remove(QLatin1Char('&')));
    rooms.push_back({bar.tabText(i), bar.rect().intersected(bar.tabRect(i)).width(), width});
  }
  return rooms;
}

std::vector<Room> rooms_of(const QHeaderView& header) {
  std::vector<Room> rooms;
  if (header.model() == nullptr) {
    return rooms;
  }
  for (int i = 0; i < header.count(); ++i) {
    const QString text = header.model()->headerData(i, header.orientation()).toString();
    const int width = header.fontMetrics().horizontalAdvance(text);
    rooms.push_back(
        {text, header.orientation() == Qt::Horizontal ? header.sectionSize(i) : header.width(),
         width});
  }
  return rooms;
}

std::vector<Room> rooms_of(const QMenuBar& bar) {
  std::vector<Room> rooms;
  for (QAction* const action : bar.actions()) {
    const QRect place = bar.actionGeometry(action);
    const int width = bar.fontMetrics().horizontalAdvance(action->text().remove(QLatin1Char('&')));
    rooms.push_back({action->text(), bar.rect().intersected(place).width(), width});
  }
  return rooms;
}

/// The rows of a tree that are unfolded.
std::vector<Room> rooms_of(const QTreeWidget& tree) {
  std::vector<Room> rooms;
  for (QTreeWidgetItem* item = tree.topLevelItem(0); item != nullptr; item = tree.itemBelow(item)) {
    const QRect place = tree.visualItemRect(item);
    constexpr int margins = 4;
    rooms.push_back({item->text(0), tree.viewport()->width() - place.left(),
                     tree.fontMetrics().horizontalAdvance(item->text(0)) + margins});
  }
  return rooms;
}

/// The texts of a control and their room.
std::vector<Room> rooms_in(const QWidget& widget) {
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    return {room_of(*label)};
  }
  if (const auto* const box = qobject_cast<const QCheckBox*>(&widget)) {
    // The style lets what a layout gives a check box begin a pixel within its frame.
    return {{box->text(), box->width() + 1, box->sizeHint().width()}};
  }
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    return {{button->text(), button->width(), button->sizeHint().width()}};
  }
  if (const auto* const popup = qobject_cast<const QComboBox*>(&widget)) {
    return {{popup->currentText(), popup->width(), popup->sizeHint().width()}};
  }
  if (const auto* const box = qobject_cast<const QAbstractSpinBox*>(&widget)) {
    return {{box->text(), box->width(), box->sizeHint().width()}};
  }
  if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
    return {{box->title(), box->width(), box->minimumSizeHint().width()}};
  }
  if (const auto* const bar = qobject_cast<const QTabBar*>(&widget)) {
    return rooms_of(*bar);
  }
  if (const auto* const header = qobject_cast<const QHeaderView*>(&widget)) {
    return rooms_of(*header);
  }
  if (widget.inherits("velquon::GuideContents")) {
    return rooms_of(static_cast<const QTreeWidget&>(widget));
  }
  if (const auto* const bar = qobject_cast<const QMenuBar*>(&widget)) {
    return rooms_of(*bar);
  }
  return {};
}

std::vector<const QWidget*> visible_in(const QWidget& window) {
  std::vector<const QWidget*> found{&window};
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == window.window()) {
      found.push_back(widget);
    }
  }
  return found;
}

void add_menu(std::vector<ShownText>& texts, const QList<QAction*>& actions) {
  for (const QAction* const action : actions) {
    texts.push_back({place_of(*action), action->text()});
    texts.push_back({place_of(*action), action->toolTip()});
    if (action->menu() != nullptr) {
      add_menu(texts, action->menu()->actions());
    }
  }
}

void add_rows(std::vector<ShownText>& texts, const QAbstractItemModel& rows,
              const QModelIndex& parent) {
  for (int row = 0; row < rows.rowCount(parent); ++row) {
    for (int column = 0; column < rows.columnCount(parent); ++column) {
      const QModelIndex cell = rows.index(row, column, parent);
      texts.push_back({"row " + std::to_string(row), cell.data().toString()});
      add_rows(texts, rows, cell);
    }
  }
}

}  // namespace

std::vector<ShownText> texts_in(const QWidget& window) {
  std::vector<ShownText> texts{{"title", window.windowTitle()}};
  for (const QWidget* const widget : visible_in(window)) {
    const std::string place = place_of(*widget);
    // Headings of the guide's pages are in the language of the pages.
    const bool are_headings = widget->inherits("velquon::GuideContents");
    for (const Room& room : are_headings ? std::vector<Room>() : rooms_in(*widget)) {
      texts.push_back({place, room.text});
    }
    for (const QString& text :
         {widget->toolTip(), widget->accessibleName(), widget->accessibleDescription()}) {
      texts.push_back({place, text});
    }
    const auto* const tree = qobject_cast<const QTreeWidget*>(widget);
    if (tree != nullptr && !are_headings) {
      add_rows(texts, *tree->model(), {});
    }
    if (const auto* const popup = qobject_cast<const QComboBox*>(widget)) {
      for (int i = 0; i < popup->count(); ++i) {
        texts.push_back({place, popup->itemText(i)});
      }
    }
  }
  if (const auto* const main_window = qobject_cast<const QMainWindow*>(&window)) {
    add_menu(texts, main_window->menuBar()->actions());
  }
  std::erase_if(texts, [](const ShownText& shown) { return shown.text.isEmpty(); });
  return texts;
}

std::vector<ShownText> cut_off_in(const QWidget& window) {
  std::vector<ShownText> texts;
  for (const QWidget* const widget : visible_in(window)) {
    for (const auto& [text, given, taken] : rooms_in(*widget)) {
      if (!text.isEmpty() && given < taken) {
        texts.push_back(
            {place_of(*widget) + ": " + std::to_string(taken) + " in " + std::to_string(given),
             text});
      }
    }
  }
  return texts;
}

}  // namespace velquon::test
