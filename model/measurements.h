// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

#include "model/listeners.h"
#include "model/measurement.h"

namespace velquon {

/// The table of measurements with its history: each operation that changes it is one step, which can
/// be undone and done again.
class Measurements {
 public:
  /// Told after each change of the rows, of the history or of what is saved.
  Listeners changed;

  [[nodiscard]] const MeasurementTable& rows() const { return rows_; }

  /// Appends rows. No rows are no step.
  void add(MeasurementTable rows);
  /// Takes rows out.
  /// \param places indices below the number of rows, rising
  void remove(const std::vector<std::size_t>& places);
  /// Puts another measurement in the place of one. An equal one is no step.
  void change(std::size_t place, Measurement measurement);
  /// Puts the rows of an opened file in the place of all, which are saved then. It begins a new
  /// history.
  void open(MeasurementTable rows);

  [[nodiscard]] bool canUndo() const { return done_ > 0; }
  [[nodiscard]] bool canRedo() const { return done_ < steps_.size(); }
  void undo();
  void redo();

  /// Notes that the rows are in a file as they are now.
  void setSaved();
  /// Whether there are rows that no file holds.
  [[nodiscard]] bool hasUnsaved() const;

 private:
  struct Placed {
    std::size_t place = 0;
    Measurement row;
  };
  /// What a step takes out of the rows, by places before it, and puts in, by places after it. Both
  /// rise.
  struct Step {
    std::vector<Placed> taken;
    std::vector<Placed> put;
  };

  void perform(Step step);
  void exchange(const std::vector<Placed>& taken, const std::vector<Placed>& put);

  MeasurementTable rows_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;   ///< steps that are not undone
  std::size_t saved_ = 0;  ///< steps done when the rows were saved; `never` when none leads there
};

}  // namespace velquon
