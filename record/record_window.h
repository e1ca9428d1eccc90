// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "model/chamber_model.h"
#include "model/listeners.h"
#include "widgets/gl_panel.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace velquon {

class RecordTree;

/// The window that tells what happened in the shown event: its particles with their momenta, radii
/// and lengths. It can hide that until the user asks, so that he measures first. Choosing rows marks
/// their points in the model; closing the window takes the marks away.
class RecordWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param model what it shows
  explicit RecordWindow(ChamberModel& model);

  [[nodiscard]] RecordTree& tree() { return *tree_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void layOut();
  void connectControls();
  /// Shows the present state of the model.
  void refresh();
  void showTracks();
  /// What stands above the rows.
  [[nodiscard]] QString message() const;
  [[nodiscard]] bool hasRecord() const;

  ChamberModel& model_;
  QLabel* message_;
  RecordTree* tree_;
  QCheckBox* hide_box_;
  QPushButton* reveal_button_;
  std::shared_ptr<const EventTracks> tracks_;  ///< what is shown
  bool answers_shown_ = false;                 ///< of these
  Subscription changes_;
};

}  // namespace velquon
