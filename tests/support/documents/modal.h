// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace velquon::test {

/// What a user does with one modal dialog. Two turns in a row are for dialogs of different classes.
struct Turn {
  const char* dialog_class;
  std::function<void(QWidget&)> act;
};

/// Runs something that shows modal dialogs and takes the user's turns with them, in their order,
/// each as soon as its dialog is up and active. Dialogs that nobody ends are closed after
/// some seconds.
/// \return whether every turn was taken and no dialog had to be closed
bool with_dialogs(const std::function<void()>& run, std::vector<Turn> turns);

}  // namespace velquon::test
