// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QKeySequence>
#include <QPointer>
#include <cstddef>
#include <functional>
#include <vector>

#include "model/chamber_model.h"
#include "model/listeners.h"
#include "model/measurements.h"
#include "record/make_events_dialog.h"
#include "widgets/commands.h"
#include "widgets/gl_panel.h"

class QLabel;
class QMenu;
class QTableView;
class QToolBar;

namespace velquon {

class HistogramPanel;
class MeasurementColumns;
class MeasurementFiles;
class UserDialogs;

/// The window of the measurements: their table and a histogram of them. It has a menu of its own.
class MeasurementsWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param model gives the kind and values that are offered for many events
  MeasurementsWindow(Measurements& measurements, MeasurementFiles& files, const ChamberModel& model,
                     UserDialogs& dialogs);

  /// Puts the window's own menu into its menu bar.
  /// \param before the menu that it stands in front of
  void insertMenu(QAction* before);

  /// Takes over what is typed in a cell that is being edited.
  void finishEdit();

  /// Tells something below the table until the rows change.
  void tell(const QString& message);

  [[nodiscard]] QTableView& table() { return *table_; }
  [[nodiscard]] HistogramPanel& histogram() { return *histogram_; }
  /// The dialog that is open; null without one.
  [[nodiscard]] MakeEventsDialog* makeEventsDialog() { return make_events_dialog_; }

 Q_SIGNALS:
  /// What the projector's tool reads is to be recorded.
  void recordAsked();

 private:
  /// What an item of the menu does.
  struct Item {
    QKeySequence keys;
    std::function<void()> run;
    std::function<bool()> is_enabled{};  ///< null for one that always is
  };

  void layOut();
  /// Makes the items of the menu and the tool bar.
  void addItems();
  void addRowItems();
  void addFileItems();
  void addEventItems();
  QAction* addItem(const char* name, const QString& text, const Item& item);
  void refresh();
  /// Makes columns as wide as their texts, but for long ones.
  /// \param may_shrink whether a column that is wider becomes narrower
  void fitColumns(bool may_shrink);
  /// \return the places of the rows that are chosen in the table, ascending
  [[nodiscard]] std::vector<std::size_t> chosenRows() const;
  void copyRows();
  void deleteRows();
  void makeEvents();
  void savePlot();

  Measurements& measurements_;
  MeasurementFiles& files_;
  const ChamberModel& model_;
  UserDialogs& dialogs_;
  Commands commands_;
  QMenu* menu_;
  QToolBar* tool_bar_;
  MeasurementColumns* columns_;
  QTableView* table_;
  HistogramPanel* histogram_;
  QLabel* message_;
  QPointer<MakeEventsDialog> make_events_dialog_;
  Subscription changes_;
};

}  // namespace velquon
