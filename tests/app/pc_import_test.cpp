// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>

#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

// One point at 100, -50, 25 with time 7 and code 3; side 400 cm, field 2 kG, energy 0.5 MeV. What
// is not read holds anything.
const char* const pc_one_point_file =
    "57 DEADBEEFDEADBEEF 0000000000007940 0000000000000040 000000000000E03F"
    "FFFFFFFFFFFFFFFF FFFFFFFFFFFFFFFF 01000000"
    "0000000000005940 00000000000049C0 0000000000003940 000000000000F03F"
    "0000000000001C40 03000000 FFFFFFFF";

const RecordingDialogs::Alert negative_field{
    QStringLiteral("You should know..."),
    QStringLiteral("The event was created with the chamber's magnetic field set to a negative "
                   "value.  The controls and display will show the absolute value of the field.")};

class PcImportTest : public DocumentsFixture {
 protected:
  bool import(const QByteArray& bytes) {
    return documents().readAndDisplayFile(write(QStringLiteral("OLD.CWD"), bytes));
  }
};

TEST_F(PcImportTest, ShowsPointsValuesAndName) {
  ASSERT_EQ(hex(pc_one_point_file).size(), 53 + 48);
  ASSERT_TRUE(import(hex(pc_one_point_file)));
  const Shown after = shown();
  PlotPoint point = point_at(100.0, -50.0, 25.0, 3);
  point.time = 7.0;
  EXPECT_EQ(after.points, std::vector{point});
  EXPECT_TRUE(after.has_event);
  const std::vector<float> values{2.0F, 400.0F, 0.5F};
  EXPECT_EQ(after.current_values, values);
  EXPECT_EQ(after.next_values, values);
  EXPECT_EQ(after.controls, (std::vector{2.0F, 4.0F, 0.5F}));
  EXPECT_EQ(after.titles,
            (std::vector{QStringLiteral("Particle Chamber: OLD.CWD"),
                         QStringLiteral("Projector: OLD.CWD"), QStringLiteral("OLD.CWD")}));
  EXPECT_EQ(after.scaler, 1.0);
  EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(PcImportTest, TakesFiveThousandPoints) {
  ASSERT_TRUE(import(pc_file(spiral(5000))));
  EXPECT_EQ(chamber().point_number(), 5000);
}

TEST_F(PcImportTest, RenumbersTheEndOfATrackAlone) {
  struct Code {
    const char* digits;
    std::int16_t code;
  };
  for (const Code& c :
       {Code{"07000000", 2}, Code{"00000000", 0}, Code{"01000000", 1}, Code{"02000000", 2},
        Code{"08000000", 8}, Code{"01000100", 1}, Code{"07000100", 7}, Code{"FFFFFFFF", -1}}) {
    QByteArray bytes = hex(pc_one_point_file);
    bytes.replace(53 + 40, 4, hex(c.digits));
    ASSERT_TRUE(import(bytes));
    EXPECT_EQ(chamber().data_ptr().front().code, c.code) << c.digits;
  }
}

TEST_F(PcImportTest, TellsOfANegativeFieldAndShowsItsAbsoluteValue) {
  QByteArray bytes = hex(pc_one_point_file);
  bytes.replace(17, 8, hex("00000000000014C0"));  // -5
  ASSERT_TRUE(import(bytes));
  EXPECT_EQ(dialogs().alerts, std::vector{negative_field});
  EXPECT_EQ(control<ValueSlider>("magfield_slider").floatValue(), 5.0F);
  EXPECT_EQ(control<QLabel>("magfield_text").text(), QStringLiteral("B = 5.000 kG"));
  EXPECT_EQ(chamber().values_text(), "B = 5 kG, T = 0.5 MeV, L = 4 m");
  EXPECT_EQ(chamber().data_ptr().front().coords, (std::array{100.0, -50.0, 25.0, 1.0}));
}

TEST_F(PcImportTest, TellsOfANegativeFieldBetweenThePointsAndTheControls) {
  QByteArray bytes = hex(pc_one_point_file);
  bytes.replace(17, 8, hex("00000000000014C0"));
  const Shown before = shown();
  int points_at_alert = 0;
  Shown at_alert;
  dialogs().on_alert = [&] {
    points_at_alert = chamber().point_number();
    at_alert = shown();
  };
  ASSERT_TRUE(import(bytes));
  EXPECT_EQ(points_at_alert, 1);
  EXPECT_EQ(at_alert.controls, before.controls);
  EXPECT_EQ(at_alert.labels, before.labels);
  EXPECT_EQ(at_alert.next_values, before.next_values);
  EXPECT_EQ(at_alert.current_values, before.current_values);
  EXPECT_EQ(at_alert.titles, before.titles);
}

TEST_F(PcImportTest, ANegativeZeroIsNotNegative) {
  QByteArray bytes = hex(pc_one_point_file);
  bytes.replace(17, 8, hex("0000000000000080"));
  ASSERT_TRUE(import(bytes));
  EXPECT_TRUE(dialogs().alerts.empty());
  EXPECT_EQ(chamber().current_values().B_field, 0.0F);
}

TEST_F(PcImportTest, ASavedImportIsAnEventFileOfThisProgram) {
  ASSERT_TRUE(import(hex(pc_one_point_file)));
  dialogs().answer = path(QStringLiteral("new.cwd"));
  documents().save_event_file();
  PlotPoint point = point_at(100.0, -50.0, 25.0, 3);
  point.time = 7.0;
  EXPECT_EQ(read(dialogs().answer), event_file({point}));
}

}  // namespace

}  // namespace velquon::test
