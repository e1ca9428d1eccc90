#pragma once

#include "engine/chamber_values.h"

class QComboBox;
class QLabel;

namespace velquon {

class ValueSlider;

/// The controls of the chamber values.
struct ChamberSettingsOutlets {
  QComboBox* efactor_popup = nullptr;
  ValueSlider* energy_slider = nullptr;
  QLabel* kinetic_energy_text = nullptr;
  ValueSlider* magfield_slider = nullptr;
  QLabel* magfield_text = nullptr;
  ValueSlider* size_slider = nullptr;
  QLabel* sides_text = nullptr;
};

/// The chamber values for the next event: their controls, the labels that show them, and the values
/// last taken from the controls.
class ChamberSettings {
 public:
  /// Connects the controls, which must outlive this object.
  explicit ChamberSettings(const ChamberSettingsOutlets& outlets);

  /// Put a control to a value, in kG, cm and MeV. The energy's range follows the value.
  void setFieldControl(float field_kG);
  void setSidesControl(float side_cm);
  void setEnergyControl(float energy_MeV);

  /// Chooses the energy range that holds a value; a value on a boundary goes to the higher range.
  void setEnergyRange(float energy_MeV);

  void setNextBField(float field_kG) { next_.B_field = field_kG; }
  void setNextSidesCm(float side_cm) { next_.sides_cm = side_cm; }
  void setNextMev(float energy_MeV) { next_.kinetic_Mev = energy_MeV; }
  /// Takes the values of the sliders as they are, not as the labels round them to a tick.
  void setNextChamberValues();
  [[nodiscard]] const ChamberValues& next() const { return next_; }

 private:
  void reset_energy_range(const QComboBox* sender);
  void reset_energy(const ValueSlider* sender);
  void reset_field(const ValueSlider* sender);
  void reset_sides(const ValueSlider* sender);

  ChamberSettingsOutlets outlets_;
  ChamberValues next_;
};

}  // namespace velquon
