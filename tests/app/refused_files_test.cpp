// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

#include <sys/stat.h>

#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/plain_rights.h"

namespace velquon::test {

namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

/// A file that is refused, made when the test runs.
struct Refused {
  const char* name;
  QByteArray (*bytes)();
};

class RefusedFileTest : public DocumentsFixture {
 protected:
  /// Puts something on the screen that a refusal could spoil, with controls that say something
  /// else than the event.
  void SetUp() override {
    DocumentsFixture::SetUp();
    makeEvent(5);
    controller().settings().setFieldControl(3.21F);
    controller().settings().setSidesControl(654.0F);
    controller().settings().setEnergyControl(42.0F);
    clickButton("yz_button");
    clickButton("zoom_2");
    ASSERT_TRUE(dialogs().alerts.empty());
  }

  /// Opens a file of these bytes from the projector.
  void expectRefusal(const QByteArray& bytes, const RecordingDialogs::Alert& alert) {
    const QString file = write(QStringLiteral("refused.cwd"), bytes);
    activate(projectorWindow());
    dialogs().alerts.clear();
    const Shown before = shown();
    EXPECT_FALSE(documents().readAndDisplayFile(file));
    EXPECT_EQ(dialogs().alerts, std::vector{alert});
    EXPECT_EQ(differences(before, shown()), "");
    EXPECT_TRUE(projectorWindow().isActiveWindow());
  }

  /// The same for each of a table, one after the other.
  void expectRefusals(std::span<const Refused> files, const RecordingDialogs::Alert& alert) {
    for (const Refused& refused : files) {
      SCOPED_TRACE(refused.name);
      expectRefusal(refused.bytes(), alert);
    }
  }
};

const Refused of_a_wrong_format[] = {
    {"Empty", [] { return QByteArray(); }},
    {"TagIAlone", [] { return hex("49"); }},
    {"TagIWithABody", [] { return event_file(spiral(3)).replace(0, 1, "I"); }},
    {"LowerCaseTag", [] { return event_file(spiral(3)).replace(0, 1, "p"); }},
    {"LowerCasePcTag", [] { return pc_file(spiral(3)).replace(0, 1, "w"); }},
    {"ZeroByte", [] { return hex("00"); }},
    {"TextFile", [] { return QByteArray("event,point,x,y,z,code\n"); }},
    {"HighByte", [] { return hex("FF 0001"); }}};

const Refused of_wrong_counts[] = {
    {"Zero", [] { return event_file(0, {}); }},
    {"ZeroWithPoints", [] { return event_file(0, spiral(2)); }},
    {"OneTooMany", [] { return event_file(5001, spiral(5001)); }},
    {"MinusOne", [] { return event_file(-1, spiral(2)); }},
    {"MostNegative", [] { return event_file(-32768, spiral(2)); }},
    {"PcZero", [] { return pc_file(0, spiral(2)); }},
    {"PcMinusOne", [] { return pc_file(-1, spiral(2)); }},
    {"PcOneTooMany", [] { return pc_file(5001, spiral(5001)); }},
    {"PcOneInItsLowBytes", [] { return pc_file(65537, spiral(2)); }},
    {"PcMostNegative",
     [] { return pc_file(std::numeric_limits<std::int32_t>::min(), spiral(2)); }}};

const Refused of_wrong_lengths[] = {
    {"TagAlone", [] { return hex("50"); }},
    {"HalfACount", [] { return hex("5000"); }},
    {"CountAlone", [] { return hex("500001"); }},
    {"NoTrailer", [] { return event_file(spiral(2)).chopped(72); }},
    {"OneByteShort", [] { return event_file(spiral(2)).chopped(1); }},
    {"OnePointShort", [] { return event_file(3, spiral(2)); }},
    {"PcTagAlone", [] { return hex("57"); }},
    {"PcHalfAHeader", [] { return pc_file(spiral(1)).left(30); }},
    {"PcHeaderOneByteShort", [] { return pc_file(spiral(1)).left(52); }},
    {"PcHeaderAlone", [] { return pc_file(spiral(1)).left(53); }},
    {"PcOneByteShort", [] { return pc_file(spiral(2)).chopped(1); }},
    {"PcOnePointShort", [] { return pc_file(3, spiral(2)); }}};

TEST_F(RefusedFileTest, AWrongFormatIsToldAndChangesNothing) {
  expectRefusals(of_a_wrong_format, wrong_format);
}

TEST_F(RefusedFileTest, AnImpossibleCountIsToldAndChangesNothing) {
  expectRefusals(of_wrong_counts, bad_data);
}

TEST_F(RefusedFileTest, AWrongLengthIsToldAndChangesNothing) {
  expectRefusals(of_wrong_lengths, bad_data);
}

struct Impossible {
  const char* name = nullptr;
  FileSettings settings;
};

const Impossible impossible_values[] = {
    {"SideZero", {.side_cm = 0.0}},
    {"SideNegative", {.side_cm = -400.0}},
    {"SideNotANumber", {.side_cm = not_a_number}},
    {"SideInfinite", {.side_cm = infinity}},
    {"SideTooSmallForAFloat", {.side_cm = 1e-60}},
    {"FieldNotANumber", {.field_kG = not_a_number}},
    {"FieldInfinite", {.field_kG = infinity}},
    {"FieldTooLargeForAFloat", {.field_kG = 1e300}},
    {"NegativeFieldAndNoSide", {.field_kG = -5.0, .side_cm = 0.0}},
    {"EnergyNegative", {.energy_MeV = -1.0}},
    {"EnergyNegativeAndTiny", {.energy_MeV = -1e-60}},
    {"EnergyNotANumber", {.energy_MeV = not_a_number}},
    {"EnergyInfinite", {.energy_MeV = infinity}}};

TEST_F(RefusedFileTest, ImpossibleValuesAreToldAndChangeNothing) {
  for (const Impossible& impossible : impossible_values) {
    SCOPED_TRACE(impossible.name);
    expectRefusal(event_file(spiral(2), impossible.settings), bad_data);
  }
}

TEST_F(RefusedFileTest, ImpossibleValuesOfThePcEditionAreToldAndChangeNothing) {
  for (const Impossible& impossible : impossible_values) {
    SCOPED_TRACE(impossible.name);
    expectRefusal(pc_file(spiral(2), impossible.settings), bad_data);
  }
}

/// What is no file to read, put at a path.
struct NoFile {
  const char* name;
  QString (*make)(const QString& path);
};

class UnloadableFileTest : public RefusedFileTest, public ::testing::WithParamInterface<NoFile> {};

TEST_P(UnloadableFileTest, IsLeftWithoutAWordAtOnce) {
  const QString file = GetParam().make(path(QStringLiteral("thing.cwd")));
  const Shown before = shown();
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(documents().readAndDisplayFile(file));
  EXPECT_FALSE(documents().application_openFile(file));
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_TRUE(dialogs().alerts.empty());
  EXPECT_EQ(differences(before, shown()), "");
}

const auto name_of_case = [](const auto& tested) { return tested.param.name; };

INSTANTIATE_TEST_SUITE_P(
    Paths, UnloadableFileTest,
    ::testing::Values(NoFile{"Nothing", [](const QString& path) { return path; }},
                      NoFile{"EmptyPath", [](const QString&) { return QString(); }},
                      NoFile{"Folder",
                             [](const QString& path) {
                               EXPECT_EQ(::mkdir(qPrintable(path), 0700), 0);
                               return path;
                             }},
                      NoFile{"Pipe",
                             [](const QString& path) {
                               EXPECT_EQ(::mkfifo(qPrintable(path), 0600), 0);
                               return path;
                             }},
                      NoFile{"EndlessDevice",
                             [](const QString&) { return QStringLiteral("/dev/zero"); }},
                      NoFile{"LinkToADevice",
                             [](const QString& path) {
                               EXPECT_TRUE(QFile::link(QStringLiteral("/dev/zero"), path));
                               return path;
                             }},
                      NoFile{"LinkToNothing",
                             [](const QString& path) {
                               EXPECT_TRUE(QFile::link(QStringLiteral("/no/such/file"), path));
                               return path;
                             }},
                      NoFile{"LinkToItself",
                             [](const QString& path) {
                               EXPECT_TRUE(QFile::link(path, path));
                               return path;
                             }}),
    name_of_case);

TEST_F(RefusedFileTest, AFileThatMayNotBeReadIsLeftWithoutAWord) {
  const QString file = write(QStringLiteral("secret.cwd"), event_file(spiral(3)));
  ASSERT_TRUE(QFile::setPermissions(file, QFile::Permissions()));
  const int faults = velquon::test::with_plain_rights([&] {
    const bool is_shown = documents().readAndDisplayFile(file);
    const bool is_told = !dialogs().alerts.empty();
    const bool is_changed =
        chamberWindow().title() != QStringLiteral("Particle Chamber: Untitled Type 6 Decay");
    const bool has_reason =
        EventDocuments::problemOfLoading(file) == QStringLiteral("Permission denied");
    const std::array wrong{is_shown, is_told, is_changed, !has_reason};
    return static_cast<int>(std::ranges::count(wrong, true));
  });
  EXPECT_EQ(faults, 0);
}

TEST_F(RefusedFileTest, TheAlertNamesTheFileThatIsRefused) {
  const QString wrong = write(QStringLiteral("wrong.cwd"), hex("00"));
  const QString bad = write(QStringLiteral("bad.cwd"), hex("50"));
  EXPECT_FALSE(documents().readAndDisplayFile(wrong));
  EXPECT_FALSE(documents().readAndDisplayFile(bad));
  EXPECT_EQ(dialogs().files_told, (std::vector{wrong, bad}));
}

TEST_F(RefusedFileTest, AGoodFileIsReadAfterARefusedOne) {
  EXPECT_FALSE(documents().readAndDisplayFile(write(QStringLiteral("a.cwd"), hex("57"))));
  EXPECT_TRUE(
      documents().readAndDisplayFile(write(QStringLiteral("b.cwd"), event_file(spiral(3)))));
  EXPECT_EQ(chamber().point_number(), 3);
}

}  // namespace

}  // namespace velquon::test
