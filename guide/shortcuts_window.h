// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QWidget>

class QAction;

namespace velquon {

/// Every key of the program: those of the menus' items, and those that a view or a control takes
/// while it has the focus.
class ShortcutsWindow : public QWidget {
  Q_OBJECT

 public:
  /// \param menus the menus' own actions, whose items' keys are listed
  explicit ShortcutsWindow(const QList<QAction*>& menus, QWidget* parent = nullptr);
};

}  // namespace velquon
