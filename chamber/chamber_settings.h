// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "engine/chamber_values.h"

class QComboBox;

namespace Ui {
class ChamberWindow;
}

namespace velquon {

class ChamberModel;
class ValueSlider;

/// The controls of the chamber values for the next event and the labels that show them. What they are
/// put to are the model's chosen values.
class ChamberSettings {
 public:
  /// Connects the controls.
  ChamberSettings(const Ui::ChamberWindow& controls, ChamberModel& model);

  /// Puts all controls to the values. A value that is being typed is lost.
  void showValues(const ChamberValues& values);

  /// Put a control to a value, in kG, cm and MeV. The energy's range follows the value.
  void setFieldControl(float field_kG);
  void setSidesControl(float side_cm);
  void setEnergyControl(float energy_MeV);

  /// Chooses the energy range that holds a value; a value on a boundary goes to the higher range.
  void setEnergyRange(float energy_MeV);

  // Set one value for the next event, past its control.
  void setNextBField(float field_kG);
  void setNextSidesCm(float side_cm);
  void setNextMev(float energy_MeV);
  /// Takes the values of the sliders as they are, not as the labels round them to a tick. A value that
  /// is being typed is taken first.
  void setNextChamberValues();

  /// Takes a value that is being typed.
  void finishTyping();

 private:
  void letValuesBeTyped();
  void reset_energy_range(const QComboBox* sender);
  void reset_energy(const ValueSlider* sender);
  void reset_field(const ValueSlider* sender);
  void reset_sides(const ValueSlider* sender);
  void reportValues();

  const Ui::ChamberWindow& controls_;
  ChamberModel& model_;
};

}  // namespace velquon
