#pragma once

#include <QAction>
#include <QList>

namespace velquon {

/// Checks one item of a group and unchecks the others.
inline void check_only(const QList<QAction*>& group, const QAction* chosen) {
  for (QAction* const item : group) {
    item->setChecked(item == chosen);
  }
}

/// Calls `handler` with the item that the user chose, whichever of the items it is.
template <typename Handler>
void on_triggered(const QList<QAction*>& items, const QObject* receiver, Handler handler) {
  for (QAction* const item : items) {
    QObject::connect(item, &QAction::triggered, receiver, [item, handler] { handler(item); });
  }
}

}  // namespace velquon
