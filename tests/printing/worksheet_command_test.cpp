// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Worksheets from the command line, as a shell sees them.

#include <QFile>

#include "tests/support/documents/worksheet_run.h"
#include "tests/support/file_size_limit.h"

namespace velquon::test {

namespace {

class WorksheetCommandTest : public WorksheetTest {};

TEST_F(WorksheetCommandTest, DefaultsAreThoseOfTheStartAndOneEvent) {
  const auto made = pages(words("--type pi-"));
  EXPECT_EQ(made.size(), 1U);
  EXPECT_NEAR(made.at(0).paper.height(), 842.0, 0.5);
  EXPECT_TRUE(
      lines_of_pdf_page(sheets(), 1).contains(QStringLiteral("B = 0.6 kG, T = 0.4 MeV, L = 5 m")));
  EXPECT_EQ(files(), QStringList{QStringLiteral("sheets.pdf")}) << "no answers were asked for";
}

TEST_F(WorksheetCommandTest, PagesAreInTheLanguageThatIsChosen) {
  const auto made = pages(words("--type lambda --language de --answers") + QStringList{answers()});
  EXPECT_EQ(made.size(), 1U);
  const QStringList lines = lines_of_pdf_page(sheets(), 1);
  EXPECT_TRUE(lines.contains(QStringLiteral("B = 0.6 kG, T = 0.4 MeV, L = 5 m")));
  EXPECT_TRUE(lines.join(u' ').contains(QStringLiteral("Einlaufendes Teilchen: Lambda")));
  EXPECT_EQ(title_of_pdf(sheets()), QStringLiteral("Arbeitsblätter"));
  EXPECT_EQ(title_of_pdf(answers()), QStringLiteral("Lösungen zu den Arbeitsblättern"));
}

TEST_F(WorksheetCommandTest, WithoutASeedTheClockGivesOne) {
  const auto seed_line = [&] {
    static_cast<void>(pages(words("--type pi-")));
    return lines_of_pdf_page(sheets(), 1).at(1);
  };
  const QString first = seed_line();
  EXPECT_TRUE(first.contains(QStringLiteral("Seed ")));
  EXPECT_NE(seed_line(), first);
}

TEST_F(WorksheetCommandTest, ReplacesFormerFilesByWholeOnes) {
  for (const char* const events : {"40", "1"}) {
    const auto made =
        pages(words("--type mu- --seed 1 --events") + QStringList{QLatin1String(events)} +
              QStringList{QStringLiteral("--answers"), answers()});
    EXPECT_EQ(made.size(), QByteArray(events).toUInt());
    EXPECT_EQ(title_of_pdf(answers()), QStringLiteral("Answers to the worksheets"));
  }
  EXPECT_EQ(files(), words("answers.pdf sheets.pdf"));
}

struct Refusal {
  const char* arguments;
  const char* line;
};

class WorksheetRefusals : public WorksheetTest, public ::testing::WithParamInterface<Refusal> {};

TEST_P(WorksheetRefusals, EndWithStatus2AndOneLine) {
  QuietEnding ending = run_without_display(
      VELQUON_PROGRAM, QString::fromUtf8(GetParam().arguments).replace(u'@', sheets()).split(u' '));
  EXPECT_EQ(ending.status, 2);
  EXPECT_EQ(ending.output, QString());
  EXPECT_EQ(ending.errors.replace(sheets(), QStringLiteral("@")).toStdString(),
            "velquon: " + std::string(GetParam().line) + "\n");
  EXPECT_EQ(files(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, WorksheetRefusals,
    ::testing::Values(
        Refusal{"--worksheets @", "--type is needed with --worksheets"},
        Refusal{"--worksheets @ --type kaon",
                "--type: 'kaon' is not one of pi-, pi+, pi0, mu-, mu+, lambda"},
        Refusal{"--worksheets @ --type pi- --energy 0",
                "--energy: '0' is not a finite energy in MeV above 0"},
        Refusal{"--worksheets @ --type pi- --energy 1e-60",
                "--energy: '1e-60' is not a finite energy in MeV above 0"},
        Refusal{"--worksheets @ --type pi- --energy -3",
                "--energy: '-3' is not a finite energy in MeV above 0"},
        Refusal{"--worksheets @ --type pi- --energy inf",
                "--energy: 'inf' is not a finite energy in MeV above 0"},
        Refusal{"--worksheets @ --type pi- --field nan",
                "--field: 'nan' is not a finite field in kG"},
        Refusal{"--worksheets @ --type pi- --field 1e39",
                "--field: '1e39' is not a finite field in kG"},
        Refusal{"--worksheets @ --type pi- --field 5x",
                "--field: '5x' is not a finite field in kG"},
        Refusal{"--worksheets @ --type pi- --side 0",
                "--side: '0' is not a finite side in cm above 0"},
        Refusal{"--worksheets @ --type pi- --events 0",
                "--events: '0' is not a whole number from 1 to 1000"},
        Refusal{"--worksheets @ --type pi- --events 1001",
                "--events: '1001' is not a whole number from 1 to 1000"},
        Refusal{"--worksheets @ --type pi- --events 2.5",
                "--events: '2.5' is not a whole number from 1 to 1000"},
        Refusal{"--worksheets @ --type pi- --seed -1",
                "--seed: '-1' is not a whole number from 0 to 4294967295"},
        Refusal{"--worksheets @ --type pi- --paper A5", "--paper: 'A5' is not one of A4, Letter"},
        Refusal{"--worksheets @ --type pi- --answers @",
                "--answers: '@' is the file of the worksheets"},
        Refusal{"--worksheets @ --type pi- --answers=", "--answers: no file is named"},
        Refusal{"--worksheets= --type pi-", "--worksheets: no file is named"},
        Refusal{"--worksheets @ --type pi- a.cwd", "'a.cwd' is one argument too many"},
        Refusal{"--worksheets @ --type pi- --pictures d", "--pictures goes without --worksheets"},
        Refusal{"--type pi-", "--type goes with --worksheets"},
        Refusal{"--field 5 a.cwd", "--field goes with --worksheets"},
        Refusal{"--side 5", "--side goes with --worksheets"},
        Refusal{"--energy 5", "--energy goes with --worksheets"},
        Refusal{"--events 5", "--events goes with --worksheets"},
        Refusal{"--paper A4", "--paper goes with --worksheets"},
        Refusal{"--answers @", "--answers goes with --worksheets"}));

TEST_F(WorksheetCommandTest, AnswersInTheFileOfTheWorksheetsByAnotherNameAreRefused) {
  static_cast<void>(pages(words("--type pi- --seed 1")));
  const QByteArray before = read(sheets());
  const QString link = path(QStringLiteral("link.pdf"));
  ASSERT_TRUE(QFile::link(sheets(), link));
  for (const QString& name : {link, path(QStringLiteral("./sheets.pdf"))}) {
    const QuietEnding ending = leave(words("--type pi- --seed 2 --answers") + QStringList{name});
    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.errors,
              QStringLiteral("velquon: --answers: '%1' is the file of the worksheets\n").arg(name));
    EXPECT_EQ(read(sheets()), before);
  }
}

TEST_F(WorksheetCommandTest, AFileThatCannotBeWrittenIsNamedWithTheReason) {
  const QString nowhere = path(QStringLiteral("no/such.pdf"));
  for (const QStringList& arguments : {QStringList{QStringLiteral("--worksheets"), nowhere},
                                       QStringList{QStringLiteral("--worksheets"), sheets(),
                                                   QStringLiteral("--answers"), nowhere}}) {
    const QuietEnding ending =
        run_without_display(VELQUON_PROGRAM, arguments + words("--type pi- --seed 1"));
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.errors,
              QStringLiteral("velquon: cannot write %1: No such file or directory\n").arg(nowhere));
  }
}

TEST_F(WorksheetCommandTest, OnAFullDiskTheFormerFileStaysAndNothingElse) {
  static_cast<void>(pages(words("--type pi- --seed 1")));
  const QByteArray before = read(sheets());
  const QStringList many =
      words("--type pi- --seed 2 --events 30 --answers") + QStringList{answers()};
  {
    const velquon::test::FileSizeLimit limit(3000);
    const QuietEnding ending = leave(many);
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.errors,
              QStringLiteral("velquon: cannot write %1: File too large\n").arg(sheets()));
  }
  EXPECT_EQ(read(sheets()), before);
  EXPECT_EQ(files(), QStringList{QStringLiteral("sheets.pdf")});
}

}  // namespace

}  // namespace velquon::test
