// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Many events made by velquon-events beside the program.

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <set>

#include "record/make_events_dialog.h"
#include "tests/record/measurements_fixture.h"
#include "tests/support/type_places.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

class MakeEventsTest : public MeasurementsFixture {
 protected:
  void openDialog() {
    openMeasurements();
    run("make_events_item");
    ASSERT_NE(dialog(), nullptr);
    ASSERT_TRUE(wait_until_exposed(dialog()));
  }
  MakeEventsDialog* dialog() { return window().makeEventsDialog(); }
  template <typename Widget>
  Widget& field(const char* name) {
    auto* const widget = dialog()->findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) {
      throw std::runtime_error(std::string("no field ") + name);
    }
    return *widget;
  }
  /// Fills the dialog in and presses Make.
  void make(int type, int events, SampledQuantity sampled) {
    field<QComboBox>("make_type_popup").setCurrentIndex(type);
    field<QSpinBox>("make_number_box").setValue(events);
    field<QComboBox>("make_sampled_popup").setCurrentIndex(static_cast<int>(sampled));
    field<QCheckBox>("random_seed_box").setChecked(false);
    field<QDoubleSpinBox>("make_seed_box").setValue(5.0);
    QTest::mouseClick(&field<QPushButton>("make_button"), Qt::LeftButton);
  }
  bool waitForEnd() {
    return wait_until([this] { return dialog() == nullptr || !dialogs().alerts.empty(); }, 60'000);
  }
  /// A program in the place of velquon-events.
  QString script(const QByteArray& text) {
    QString file = write(QStringLiteral("tool"), "#!/bin/sh\n" + text);
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file;
  }
  std::string alert() {
    return dialogs().alerts.empty() ? "" : dialogs().alerts.back().message.toStdString();
  }
};

}  // namespace

TEST_F(MakeEventsTest, OffersTheChosenKindAndTheValuesOfTheNextEvent) {
  choose("lambda_item");
  control<ValueSlider>("magfield_slider").moveTo(1.5);
  openDialog();
  EXPECT_EQ(field<QComboBox>("make_type_popup").currentText().toStdString(), "Lambda");
  EXPECT_EQ(field<QDoubleSpinBox>("make_field_box").value(), 1.5);
  EXPECT_EQ(field<QDoubleSpinBox>("make_side_box").value(), 500.0);
  EXPECT_EQ(field<QDoubleSpinBox>("make_energy_box").value(), 0.4);
  for (const char* const name :
       {"make_type_popup", "make_number_box", "make_field_box", "make_side_box", "make_energy_box",
        "make_seed_box", "make_sampled_popup"}) {
    EXPECT_FALSE(field<QWidget>(name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(MakeEventsTest, ValuesBeyondTheUsualRangesAreShownAsTheyAre) {
  controller().settings().setFieldControl(-5.0F);
  controller().settings().setSidesControl(0.25F);
  controller().settings().setEnergyControl(0.0000125F);
  openDialog();
  EXPECT_EQ(field<QDoubleSpinBox>("make_field_box").text().toStdString(), "-5.000 kG");
  EXPECT_EQ(field<QDoubleSpinBox>("make_side_box").text().toStdString(), "0.25 cm");
  EXPECT_EQ(field<QDoubleSpinBox>("make_energy_box").text().toStdString(), "0.0000125 MeV");
}

TEST_F(MakeEventsTest, AFieldOfZeroCanBeTypedInThePlaceOfANegativeOne) {
  controller().settings().setFieldControl(-5.0F);
  openDialog();
  auto& box = field<QDoubleSpinBox>("make_field_box");
  box.selectAll();
  QTest::keyClicks(&box, QStringLiteral("0"));
  make(lambda_type, 3, SampledQuantity::decay_length);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(alert(), "");
  EXPECT_EQ(cell(0, MeasurementColumn::field), "0");
}

TEST_F(MakeEventsTest, NumbersHaveAPointAndMayBeTypedWithACommaWhateverTheCountry) {
  const QLocale usual;
  QLocale::setDefault(QLocale(QLocale::German));
  openDialog();
  auto& box = field<QDoubleSpinBox>("make_field_box");
  EXPECT_EQ(box.text().toStdString(), "0.600 kG");
  for (const char* const typed : {"1.25", "1,25"}) {
    box.setValue(3.0);
    box.selectAll();
    QTest::keyClicks(&box, QLatin1String(typed));
    EXPECT_EQ(box.value(), 1.25) << typed;
  }
  QLocale::setDefault(usual);
}

TEST_F(MakeEventsTest, EventsBecomeRowsInOneStep) {
  addRows(Quantity::radius, {1.0});
  openDialog();
  make(lambda_type, 300, SampledQuantity::decay_length);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(alert(), "");
  ASSERT_EQ(measurements().rows().size(), 301U);
  EXPECT_EQ(cell(1, MeasurementColumn::event), "lambda 1, seed 5");
  EXPECT_EQ(cell(300, MeasurementColumn::event), "lambda 300, seed 5");
  EXPECT_EQ(cell(1, MeasurementColumn::quantity), "decay length");
  EXPECT_EQ(cell(1, MeasurementColumn::field), "0.6");
  EXPECT_EQ(windowControl<QLabel>("measurements_message").text().toStdString(),
            "Events made: 300. Rows noted: 300.");
  run("undo_item");
  EXPECT_EQ(measurements().rows().size(), 1U);
}

TEST_F(MakeEventsTest, OneSeedMakesTheSameRowsAndARandomOneOthers) {
  std::set<double> first_values;
  for (int time = 0; time < 2; ++time) {
    openDialog();
    make(lambda_type, 5, SampledQuantity::decay_length);
    ASSERT_TRUE(waitForEnd());
    ASSERT_FALSE(measurements().rows().empty());
    first_values.insert(measurements().rows().back().value);
  }
  EXPECT_EQ(first_values.size(), 1U);
  openDialog();
  EXPECT_TRUE(field<QCheckBox>("random_seed_box").isChecked());
  EXPECT_FALSE(field<QDoubleSpinBox>("make_seed_box").isEnabled());
  field<QSpinBox>("make_number_box").setValue(5);
  QTest::keyClick(&field<QSpinBox>("make_number_box"), Qt::Key_Return);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(measurements().rows().size(), 15U);
  EXPECT_NE(measurements().rows().back().event.find(", seed "), std::string::npos);
}

TEST_F(MakeEventsTest, TenThousandEventsComeWhileTheWindowsLive) {
  openDialog();
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
  timer.start(10);
  make(1, 10'000, SampledQuantity::tracks);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(alert(), "");
  EXPECT_GT(measurements().rows().size(), 9'000U);
  EXPECT_GT(ticks, 5);
}

TEST_F(MakeEventsTest, CancelEndsItAndNothingIsNoted) {
  openDialog();
  dialog()->setTool(script("exec sleep 60\n"));
  make(1, 100, SampledQuantity::tracks);
  run_loop_for(200);
  ASSERT_NE(dialog(), nullptr);
  EXPECT_FALSE(field<QPushButton>("make_button").isEnabled());
  EXPECT_TRUE(field<QProgressBar>("make_events_progress").isVisible());
  QTest::mouseClick(&field<QPushButton>("cancel_button"), Qt::LeftButton);
  const MakeEventsDialog* const cancelled = dialog();
  EXPECT_FALSE(cancelled != nullptr && cancelled->isVisible());
  // The program's own loop would do so.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(dialog(), nullptr);
  EXPECT_TRUE(measurements().rows().empty());
  EXPECT_EQ(alert(), "");
}

TEST_F(MakeEventsTest, AMissingProgramIsTold) {
  openDialog();
  dialog()->setTool(QString());
  make(1, 10, SampledQuantity::tracks);
  EXPECT_EQ(alert(), "The program velquon-events, which makes them, is not installed.");
  dialog()->setTool(path(QStringLiteral("nowhere")));
  dialogs().alerts.clear();
  make(1, 10, SampledQuantity::tracks);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(alert().find("velquon-events made no events: "), 0U) << alert();
  EXPECT_TRUE(measurements().rows().empty());
  // It can be tried again.
  EXPECT_TRUE(field<QPushButton>("make_button").isEnabled());
}

struct FailingTool {
  const char* name;
  const char* text;
  const char* told;
};
class FailingToolTest : public MakeEventsTest, public ::testing::WithParamInterface<FailingTool> {};

TEST_P(FailingToolTest, IsToldAndNoRowsAreAdded) {
  openDialog();
  dialog()->setTool(script(GetParam().text));
  make(1, 10, SampledQuantity::tracks);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(alert(), std::string("velquon-events made no events: ") + GetParam().told + ".");
  EXPECT_TRUE(measurements().rows().empty());
}

// Joined to what follows it in the scripts below.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage)
#define PARTICLE_HEADER                                                                       \
  "event,particle,pdg,parent,fate,code,first_point,points,x,y,z,px,py,pz,energy,end_x,end_y," \
  "end_z"

INSTANTIATE_TEST_SUITE_P(
    Tools, FailingToolTest,
    ::testing::Values(
        FailingTool{"Status", "echo first >&2; echo 'no room' >&2; exit 1\n", "no room"},
        FailingTool{"SilentStatus", "exit 3\n", "it ended with the status 3"},
        FailingTool{"Killed", "echo " PARTICLE_HEADER "; kill -9 $$\n",
                    "it was ended before it was done"},
        FailingTool{"NoTable", "echo something else\n", "line 1 of its output can't be understood"},
        FailingTool{"Nothing", "exit 0\n", "line 1 of its output can't be understood"},
        FailingTool{"CutLine",
                    "echo " PARTICLE_HEADER
                    "; echo '1,0,211,-1,left,3,0,5,0,0,0,1,0,0,140,,,'; printf 2,0,211\n",
                    "line 3 of its output can't be understood"},
        FailingTool{"MoreEventsThanAsked",
                    "echo " PARTICLE_HEADER "; echo '11,0,211,-1,left,3,0,5,0,0,0,1,0,0,140,,,'\n",
                    "line 3 of its output can't be understood"}),
    [](const auto& tested) { return tested.param.name; });

}  // namespace velquon::test
