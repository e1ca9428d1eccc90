// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/measurements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace velquon {

namespace {

Measurement row(double value, const std::string& note = {}) {
  Measurement measurement;
  measurement.event = "Untitled Type 1 Decay 1";
  measurement.value = value;
  measurement.note = note;
  return measurement;
}

std::vector<double> values_of(const Measurements& measurements) {
  std::vector<double> values;
  for (const Measurement& measurement : measurements.rows()) {
    values.push_back(measurement.value);
  }
  return values;
}

using Values = std::vector<double>;

}  // namespace

TEST(MeasurementsTest, RowsAreAddedAtTheEndInOneStep) {
  Measurements measurements;
  measurements.add({row(1.0), row(2.0)});
  measurements.add({row(3.0)});
  EXPECT_EQ(values_of(measurements), (Values{1.0, 2.0, 3.0}));
  measurements.undo();
  EXPECT_EQ(values_of(measurements), (Values{1.0, 2.0}));
  measurements.undo();
  EXPECT_EQ(values_of(measurements), Values{});
  EXPECT_FALSE(measurements.canUndo());
  measurements.redo();
  measurements.redo();
  EXPECT_EQ(values_of(measurements), (Values{1.0, 2.0, 3.0}));
  EXPECT_FALSE(measurements.canRedo());
}

TEST(MeasurementsTest, RemovedRowsComeBackToTheirPlaces) {
  Measurements measurements;
  measurements.add({row(0.0), row(1.0), row(2.0), row(3.0), row(4.0)});
  measurements.remove({0, 2, 4});
  EXPECT_EQ(values_of(measurements), (Values{1.0, 3.0}));
  measurements.undo();
  EXPECT_EQ(values_of(measurements), (Values{0.0, 1.0, 2.0, 3.0, 4.0}));
  measurements.redo();
  EXPECT_EQ(values_of(measurements), (Values{1.0, 3.0}));
}

TEST(MeasurementsTest, AChangedRowIsUndoneToWhatItWas) {
  Measurements measurements;
  measurements.add({row(1.0), row(2.0, "old"), row(3.0)});
  measurements.change(1, row(2.0, "new"));
  EXPECT_EQ(measurements.rows()[1].note, "new");
  measurements.undo();
  EXPECT_EQ(measurements.rows()[1].note, "old");
  measurements.redo();
  EXPECT_EQ(measurements.rows()[1].note, "new");
}

TEST(MeasurementsTest, WhatChangesNothingIsNoStep) {
  Measurements measurements;
  measurements.add({});
  measurements.remove({});
  EXPECT_FALSE(measurements.canUndo());
  measurements.add({row(1.0, "same")});
  int told = 0;
  const Subscription changes = measurements.changed.add([&told] { ++told; });
  measurements.change(0, row(1.0, "same"));
  EXPECT_EQ(told, 0);
  measurements.undo();
  EXPECT_FALSE(measurements.canUndo());
}

TEST(MeasurementsTest, ANewStepTakesThePlaceOfThoseUndone) {
  Measurements measurements;
  measurements.add({row(1.0)});
  measurements.add({row(2.0)});
  measurements.undo();
  measurements.add({row(3.0)});
  EXPECT_FALSE(measurements.canRedo());
  EXPECT_EQ(values_of(measurements), (Values{1.0, 3.0}));
  measurements.undo();
  EXPECT_EQ(values_of(measurements), Values{1.0});
}

TEST(MeasurementsTest, EachChangeIsTold) {
  Measurements measurements;
  int told = 0;
  const Subscription changes = measurements.changed.add([&told] { ++told; });
  measurements.add({row(1.0)});
  measurements.change(0, row(1.0, "note"));
  measurements.undo();
  measurements.redo();
  measurements.setSaved();
  measurements.remove({0});
  measurements.open({row(5.0)});
  EXPECT_EQ(told, 7);
}

TEST(MeasurementsTest, RowsAreUnsavedUntilTheyAreInAFileAsTheyAre) {
  Measurements measurements;
  EXPECT_FALSE(measurements.hasUnsaved());
  measurements.add({row(1.0)});
  EXPECT_TRUE(measurements.hasUnsaved());
  measurements.setSaved();
  EXPECT_FALSE(measurements.hasUnsaved());
  measurements.change(0, row(1.0, "note"));
  EXPECT_TRUE(measurements.hasUnsaved());
  measurements.undo();
  EXPECT_FALSE(measurements.hasUnsaved());
  measurements.redo();
  EXPECT_TRUE(measurements.hasUnsaved());
}

TEST(MeasurementsTest, WhatWasSavedAndUndoneForGoodStaysUnsaved) {
  Measurements measurements;
  measurements.add({row(1.0)});
  measurements.add({row(2.0)});
  measurements.setSaved();
  measurements.undo();
  measurements.add({row(3.0)});
  EXPECT_TRUE(measurements.hasUnsaved());
  measurements.undo();
  EXPECT_TRUE(measurements.hasUnsaved());
}

TEST(MeasurementsTest, NoRowsAreNothingToSave) {
  Measurements measurements;
  measurements.add({row(1.0)});
  measurements.remove({0});
  EXPECT_FALSE(measurements.hasUnsaved());
}

TEST(MeasurementsTest, AnOpenedFileIsSavedAndBeginsANewHistory) {
  Measurements measurements;
  measurements.add({row(1.0)});
  measurements.open({row(7.0), row(8.0)});
  EXPECT_EQ(values_of(measurements), (Values{7.0, 8.0}));
  EXPECT_FALSE(measurements.hasUnsaved());
  EXPECT_FALSE(measurements.canUndo());
  EXPECT_FALSE(measurements.canRedo());
}

TEST(MeasurementsTest, AnyNumberOfStepsIsUndoneAndDoneAgain) {
  std::srand(20'261'122);
  Measurements measurements;
  std::vector<Values> states{values_of(measurements)};
  for (int step = 0; step < 300; ++step) {
    const std::size_t rows = measurements.rows().size();
    const int kind = std::rand() % 3;
    if (kind == 0 || rows == 0) {
      measurements.add(MeasurementTable(static_cast<std::size_t>(1 + std::rand() % 4), row(step)));
    } else if (kind == 1) {
      std::vector<std::size_t> places;
      for (std::size_t place = 0; place < rows; ++place) {
        if (std::rand() % 3 == 0) {
          places.push_back(place);
        }
      }
      if (places.empty()) {
        places.push_back(rows - 1);
      }
      measurements.remove(places);
    } else {
      measurements.change(static_cast<std::size_t>(std::rand()) % rows, row(1000.0 + step));
    }
    states.push_back(values_of(measurements));
  }
  for (std::size_t state = states.size(); state-- > 1;) {
    EXPECT_EQ(values_of(measurements), states[state]);
    measurements.undo();
  }
  for (const Values& state : states) {
    EXPECT_EQ(values_of(measurements), state);
    measurements.redo();
  }
}

}  // namespace velquon
