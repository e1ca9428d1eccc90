// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTreeWidgetItem>
#include <vector>

#include "record/record_tree.h"
#include "record/record_window.h"
#include "tests/support/documents/documents_fixture.h"
#include "tests/support/type_places.h"

namespace velquon::test {

/// The whole program, for tests of the window that tells what happened.
class RecordWindowFixture : public DocumentsFixture {
 protected:
  [[nodiscard]] RecordWindow& recordWindow() { return application().recordWindow(); }
  [[nodiscard]] RecordTree& tree() { return recordWindow().tree(); }
  [[nodiscard]] ChamberModel& model() { return application().model(); }

  /// Brings the window up by its menu item and waits until it is active.
  void openRecord();
  /// Makes one event of a type under values.
  void newEvent(int type, const ChamberValues& values);
  /// Makes events of a type until one is as wanted.
  void newEventUntil(int type, const ChamberValues& values,
                     const std::function<bool(const ShownEvent&)>& is_wanted);

  /// All rows from the top.
  [[nodiscard]] std::vector<QTreeWidgetItem*> rows();
  /// A row's place on the screen, clicked with the mouse as a person does.
  void clickRow(std::size_t row, Qt::KeyboardModifiers keys = Qt::NoModifier);
  template <typename Widget>
  [[nodiscard]] Widget& recordControl(const char* name) {
    auto* const widget = recordWindow().findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *widget;
  }
};

/// Values at which particles decay within the chamber.
inline constexpr ChamberValues lively{.B_field = 2.0F, .sides_cm = 500.0F, .kinetic_Mev = 40.0F};

/// Values at which a pion and its muon leave long tracks.
inline constexpr ChamberValues slow{.B_field = 0.6F, .sides_cm = 500.0F, .kinetic_Mev = 0.4F};

}  // namespace velquon::test
