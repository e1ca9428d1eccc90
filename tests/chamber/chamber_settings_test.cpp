// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The controls of the chamber values, their labels, and the way of the values into an event.

#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <bit>
#include <cmath>
#include <limits>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_label.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

class ChamberSettingsTest : public ApplicationFixture {
 protected:
  [[nodiscard]] ChamberSettings& settings() { return controller().settings(); }
  [[nodiscard]] std::string label(const char* name) {
    return control<QLabel>(name).text().toStdString();
  }
  [[nodiscard]] int energy_item() { return control<QComboBox>("efactor_popup").currentIndex(); }
  [[nodiscard]] ValueSlider& slider(const char* name) { return control<ValueSlider>(name); }
};

bool same_bits(float left, float right) {
  return std::bit_cast<std::uint32_t>(left) == std::bit_cast<std::uint32_t>(right);
}

}  // namespace

TEST_F(ChamberSettingsTest, StartUpValuesAreInControlsLabelsAndViews) {
  EXPECT_EQ(label("magfield_text"), "B = 0.600 kG");
  EXPECT_EQ(label("sides_text"), "L = 5.000 m");
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.400 MeV");
  EXPECT_EQ(energy_item(), 4);
  EXPECT_TRUE(same_bits(slider("magfield_slider").floatValue(), 0.6F));
  EXPECT_TRUE(same_bits(slider("size_slider").floatValue(), 5.0F));
  EXPECT_TRUE(same_bits(slider("energy_slider").floatValue(), 0.4F));
  EXPECT_EQ(chamber().B_field(), static_cast<double>(0.6F));
  EXPECT_EQ(chamber().sides_cm(), 500.0);
  EXPECT_EQ(chamber().kinetic_Mev(), static_cast<double>(0.4F));
  EXPECT_EQ(projection().scaler(), 1.25);
}

TEST_F(ChamberSettingsTest, EnergySelectsItsRangeAndIsShownWithItsPrecision) {
  struct Case {
    float energy;
    int item;
    const char* label;
  };
  constexpr std::array cases{
      Case{0.4F, 4, "T = 0.400 MeV"},        Case{1.0F, 3, "T = 1.000 MeV"},
      Case{1000.0F, 0, "T = 1000.0 MeV"},    Case{10.0F, 2, "T = 10.00 MeV"},
      Case{100.0F, 1, "T = 100.0 MeV"},      Case{0.1F, 4, "T = 0.100 MeV"},
      Case{0.01F, 5, "T = 0.0100 MeV"},      Case{0.0F, 6, "T = 0.0000 MeV"},
      Case{0.005F, 6, "T = 0.0050 MeV"},     Case{9.95F, 3, "T = 9.950 MeV"},
      Case{99.5F, 2, "T = 99.50 MeV"},       Case{0.0995F, 5, "T = 0.0995 MeV"},
      Case{0.0123F, 5, "T = 0.0123 MeV"},    Case{999.0F, 1, "T = 1000.0 MeV"},
      Case{10'000.0F, 0, "T = 10000.0 MeV"}, Case{9'999.0F, 0, "T = 10000.0 MeV"},
      Case{25'000.0F, 0, "T = 25000.0 MeV"},
  };
  for (const auto& [energy, item, text] : cases) {
    settings().setEnergyControl(energy);
    EXPECT_EQ(energy_item(), item) << energy;
    EXPECT_EQ(label("kinetic_energy_text"), text) << energy;
    EXPECT_TRUE(same_bits(slider("energy_slider").floatValue(), energy)) << energy;
  }
}

TEST_F(ChamberSettingsTest, EnergyWithinAShareOfTheGreatestShowsTheTick) {
  // From 0.1 to 1 MeV there is a tick at each 0.1 and the tolerance is 0.004; from 10 to 100 a
  // hundred times that.
  struct Case {
    float energy;
    const char* label;
  };
  constexpr std::array cases{Case{0.203F, "T = 0.200 MeV"},  Case{0.197F, "T = 0.200 MeV"},
                             Case{0.205F, "T = 0.205 MeV"},  Case{0.195F, "T = 0.195 MeV"},
                             Case{0.19F, "T = 0.190 MeV"},   Case{20.3F, "T = 20.00 MeV"},
                             Case{20.5F, "T = 20.50 MeV"},   Case{203.0F, "T = 200.0 MeV"},
                             Case{500.0F, "T = 500.0 MeV"},  Case{4970.0F, "T = 5000.0 MeV"},
                             Case{0.0034F, "T = 0.0034 MeV"}};
  for (const auto& [energy, text] : cases) {
    settings().setEnergyControl(energy);
    EXPECT_EQ(label("kinetic_energy_text"), text) << energy;
  }
}

TEST_F(ChamberSettingsTest, PrecisionFollowsTheValueThatIsShown) {
  // 9.99 and 0.0999 MeV are nearer to the end of their range than the tolerance.
  settings().setEnergyControl(9.99F);
  EXPECT_EQ(energy_item(), 3);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 10.00 MeV");
  settings().setEnergyControl(0.0999F);
  EXPECT_EQ(energy_item(), 5);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.100 MeV");
}

TEST_F(ChamberSettingsTest, EachEnergyRangeHasItsBounds) {
  constexpr std::array<float, 8> bounds{10000.0F, 1000.0F, 100.0F, 10.0F, 1.0F, 0.1F, 0.01F, 0.0F};
  auto& popup = control<QComboBox>("efactor_popup");
  ASSERT_EQ(popup.count(), 7);
  for (int i = 0; i < popup.count(); ++i) {
    popup.setCurrentIndex(i);
    const auto row = static_cast<std::size_t>(i);
    EXPECT_EQ(slider("energy_slider").maxValue(), static_cast<double>(bounds.at(row)));
    EXPECT_EQ(slider("energy_slider").minValue(), static_cast<double>(bounds.at(row + 1)));
    EXPECT_GE(slider("energy_slider").floatValue(), bounds.at(row + 1));
    EXPECT_LE(slider("energy_slider").floatValue(), bounds.at(row));
  }
}

TEST_F(ChamberSettingsTest, WildEnergiesStayWithinTheRanges) {
  settings().setEnergyRange(-1.0F);
  EXPECT_EQ(energy_item(), 6);
  settings().setEnergyRange(-std::numeric_limits<float>::infinity());
  EXPECT_EQ(energy_item(), 6);
  settings().setEnergyRange(std::numeric_limits<float>::infinity());
  EXPECT_EQ(energy_item(), 0);
  settings().setEnergyRange(std::numeric_limits<float>::quiet_NaN());
  EXPECT_GE(energy_item(), 0);
  EXPECT_LE(energy_item(), 6);
}

TEST_F(ChamberSettingsTest, FieldLabelShowsATickNearbyAndElseTheValue) {
  struct Case {
    float field;
    const char* label;
  };
  constexpr std::array cases{
      Case{0.6F, "B = 0.600 kG"},   Case{0.505F, "B = 0.500 kG"},  Case{0.507F, "B = 0.507 kG"},
      Case{0.495F, "B = 0.500 kG"}, Case{0.493F, "B = 0.493 kG"},  Case{0.0F, "B = 0.000 kG"},
      Case{0.006F, "B = 0.000 kG"}, Case{0.007F, "B = 0.007 kG"},  Case{10.0F, "B = 10.000 kG"},
      Case{12.0F, "B = 12.000 kG"}, Case{-1.25F, "B = -1.250 kG"}, Case{10.005F, "B = 10.000 kG"}};
  for (const auto& [field, text] : cases) {
    settings().setFieldControl(field);
    EXPECT_EQ(label("magfield_text"), text) << field;
  }
}

TEST_F(ChamberSettingsTest, SideLabelShowsATickNearbyAndElseTheValue) {
  struct Case {
    float side_cm;
    const char* label;
  };
  constexpr std::array cases{Case{500.0F, "L = 5.000 m"},   Case{250.5F, "L = 2.500 m"},
                             Case{250.7F, "L = 2.507 m"},   Case{249.5F, "L = 2.500 m"},
                             Case{249.3F, "L = 2.493 m"},   Case{50.0F, "L = 0.500 m"},
                             Case{1234.5F, "L = 12.345 m"}, Case{20.0F, "L = 0.200 m"}};
  for (const auto& [side, text] : cases) {
    settings().setSidesControl(side);
    EXPECT_EQ(label("sides_text"), text) << side;
  }
}

TEST_F(ChamberSettingsTest, AValueTooLongForItsLabelEndsInDotsAndDoesNotWidenTheWindow) {
  struct Case {
    const char* label;
    const char* text;
  };
  constexpr std::array cases{
      Case{"magfield_text", "B = 1000000015047466219876688855040.000 kG"},
      Case{"sides_text", "L = 9999999848243207295109594873856.000 m"},
      Case{"kinetic_energy_text", "T = 1000000015047466219876688855040.0 MeV"}};
  const QSize before = chamberWindow().size();
  settings().setFieldControl(1.0e30F);
  settings().setSidesControl(1.0e33F);
  settings().setEnergyControl(1.0e30F);
  handle_waiting_events();
  EXPECT_EQ(chamberWindow().size(), before);
  EXPECT_LE(chamberWindow().minimumSizeHint().width(), before.width());
  for (const auto& [name, text] : cases) {
    auto& long_label = control<ValueLabel>(name);
    const QString shown = long_label.shownText();
    EXPECT_TRUE(shown.endsWith(QChar(u'…'))) << shown.toStdString();
    EXPECT_TRUE(QString::fromLatin1(text).startsWith(shown.chopped(1)));
    EXPECT_LE(long_label.fontMetrics().horizontalAdvance(shown), long_label.width());
    EXPECT_EQ(label(name), text);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&long_label)->text(QAccessible::Name),
              QLatin1String(text));
    const QPoint middle = long_label.rect().center();
    QHelpEvent help(QEvent::ToolTip, middle, long_label.mapToGlobal(middle));
    QCoreApplication::sendEvent(&long_label, &help);
    EXPECT_EQ(QToolTip::text(), QLatin1String(text));
    QToolTip::hideText();
  }
}

TEST_F(ChamberSettingsTest, ALabelTooShortForItsValuePaintsTheShortenedText) {
  auto& field = control<ValueLabel>("magfield_text");
  settings().setFieldControl(1.0e30F);
  const QImage shortened = field.grab().toImage();
  field.setText(field.shownText());
  EXPECT_EQ(field.grab().toImage(), shortened);
}

TEST_F(ChamberSettingsTest, UsualValuesAreShownWholeWithoutAToolTip) {
  for (const float energy : {0.4F, 9'999.0F, 200.0F}) {
    settings().setEnergyControl(energy);
    for (const char* const name : {"magfield_text", "sides_text", "kinetic_energy_text"}) {
      EXPECT_EQ(control<ValueLabel>(name).shownText().toStdString(), label(name));
    }
  }
}

TEST_F(ChamberSettingsTest, SidesControlWorksInMetresAndGivesCentimetresBack) {
  settings().setSidesControl(500.0F);
  EXPECT_TRUE(same_bits(slider("size_slider").floatValue(), 5.0F));
  settings().setNextChamberValues();
  EXPECT_TRUE(same_bits(controller().model().next().sides_cm, 500.0F));
  for (const float side : {333.3F, 123.456F, 61.7F, 2500.0F}) {
    const auto metres = static_cast<float>(static_cast<double>(side) * 0.01);
    settings().setSidesControl(side);
    EXPECT_TRUE(same_bits(slider("size_slider").floatValue(), metres)) << side;
    settings().setNextChamberValues();
    EXPECT_TRUE(same_bits(controller().model().next().sides_cm, metres * 100.0F)) << side;
  }
}

TEST_F(ChamberSettingsTest, ValuesOfTheProgramAreKeptToTheLastBit) {
  for (const float value : {0.1F, 12.345F, -3.3F, 1.0e-7F, 0.6000001F, 20'000.0F, 9.999999F}) {
    settings().setFieldControl(value);
    settings().setEnergyControl(std::fabs(value));
    settings().setNextChamberValues();
    EXPECT_TRUE(same_bits(controller().model().next().B_field, value)) << value;
    EXPECT_TRUE(same_bits(controller().model().next().kinetic_Mev, std::fabs(value))) << value;
  }
}

TEST_F(ChamberSettingsTest, KnobRestsAtTheNearestEndForValuesBeyondTheRange) {
  ValueSlider& field = slider("magfield_slider");
  settings().setFieldControl(12.0F);
  EXPECT_EQ(field.value(), field.maximum());
  settings().setFieldControl(-2.0F);
  EXPECT_EQ(field.value(), field.minimum());
  settings().setFieldControl(5.0F);
  EXPECT_EQ(2 * field.value(), field.maximum());
}

TEST_F(ChamberSettingsTest, AnEventTakesTheSlidersValueAndNotTheTick) {
  settings().setFieldControl(0.505F);
  ASSERT_EQ(label("magfield_text"), "B = 0.500 kG");
  choose("new_event_item");
  EXPECT_EQ(chamber().B_field(), static_cast<double>(0.505F));
}

TEST_F(ChamberSettingsTest, MovedControlsChangeNothingUntilTheNextEvent) {
  choose("new_event_item");
  slider("magfield_slider").moveTo(2.0);
  slider("size_slider").moveTo(2.5);
  slider("energy_slider").moveTo(0.7);
  EXPECT_EQ(label("magfield_text"), "B = 2.000 kG");
  EXPECT_EQ(label("sides_text"), "L = 2.500 m");
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.700 MeV");
  EXPECT_TRUE(same_bits(controller().model().next().B_field, 0.6F));
  EXPECT_TRUE(same_bits(controller().model().next().sides_cm, 500.0F));
  EXPECT_TRUE(same_bits(controller().model().next().kinetic_Mev, 0.4F));
  EXPECT_EQ(chamber().values_text(), "B = 0.6 kG, T = 0.4 MeV, L = 5 m");
  EXPECT_EQ(projection().scaler(), 1.25);

  choose("new_event_item");
  EXPECT_EQ(chamber().values_text(), "B = 2 kG, T = 0.7 MeV, L = 2.5 m");
  EXPECT_EQ(chamber().B_field(), 2.0);
  EXPECT_EQ(chamber().sides_cm(), 250.0);
  EXPECT_EQ(projection().scaler(), 0.625);
}

TEST_F(ChamberSettingsTest, CurrentValuesFollowOnlyWhenToldTo) {
  settings().setNextBField(-1.5F);
  settings().setNextSidesCm(100.0F);
  settings().setNextMev(7.5F);
  EXPECT_EQ(chamber().sides_cm(), 500.0);
  controller().setCurrentChamberValues();
  EXPECT_EQ(chamber().B_field(), -1.5);
  EXPECT_EQ(chamber().sides_cm(), 100.0);
  EXPECT_EQ(chamber().kinetic_Mev(), 7.5);
  EXPECT_EQ(projection().scaler(), 0.25);
}

}  // namespace velquon::test
