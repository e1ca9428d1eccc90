// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <random>

#include "tests/support/call_faults.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// What is better done by a program of its own: it may be killed, or end on the spot.
class OtherProcessTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
  }

  static QByteArray read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// Names of all that the folder holds.
  [[nodiscard]] QStringList names() const {
    return QDir(folder_.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }

  static QStringList as_qt(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) {
      list << QString::fromStdString(text);
    }
    return list;
  }

 private:
  QTemporaryDir folder_;
};

/// A name of so many bytes with the ending of an event file.
QString name_of_length(int bytes) {
  return QString(bytes - 4, QLatin1Char('n')) + QStringLiteral(".cwd");
}

QString long_name_message(const QString& name) {
  return QStringLiteral("velquon: the name '%1' does not fit into a window's title\n").arg(name);
}

const FileSettings start_up{.field_kG = static_cast<double>(0.6F),
                            .side_cm = 500.0,
                            .energy_MeV = static_cast<double>(0.4F)};

TEST_F(OtherProcessTest, SavesUnderTheLongestNameThatFitsATitle) {
  const QString file = path(name_of_length(237));
  const ProgramEnd ending = run_program(SCRIPTED_PROGRAM, {QStringLiteral("save"), file});
  EXPECT_FALSE(ending.crashed);
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  EXPECT_EQ(read(file), event_file(spiral(3), start_up));
}

TEST_F(OtherProcessTest, EndsAfterSavingUnderANameTooLongForATitle) {
  // The second has fewer characters than the first has bytes.
  const QString accented = QString(117, QChar(0xE9)) + QStringLiteral(".cwd");
  for (const QString& name : {name_of_length(238), name_of_length(247), accented}) {
    const QString file = path(name);
    const ProgramEnd ending = run_program(SCRIPTED_PROGRAM, {QStringLiteral("save"), file});
    EXPECT_TRUE(ending.crashed);
    EXPECT_TRUE(ending.errors.endsWith(long_name_message(name))) << ending.errors.toStdString();
    EXPECT_EQ(read(file), event_file(spiral(3), start_up));
  }
}

TEST_F(OtherProcessTest, EndsOnOpeningAFileWithANameTooLongForATitle) {
  const QString name = name_of_length(238);
  const ProgramEnd ending = run_program(VELQUON_PROGRAM, {write(name, event_file(spiral(3)))});
  EXPECT_TRUE(ending.crashed);
  EXPECT_TRUE(ending.errors.contains(long_name_message(name))) << ending.errors.toStdString();
}

TEST_F(OtherProcessTest, KilledWhileItSavesLeavesAWholeFile) {
  const QByteArray large = event_file(spiral(5000), start_up);
  const QByteArray small = event_file(spiral(3), start_up);
  const QString file = path(QStringLiteral("event.cwd"));
  std::minstd_rand random(1);
  std::uniform_int_distribution<int> milliseconds(0, 30);
  for (int i = 0; i < 12; ++i) {
    RunningProgram program(SCRIPTED_PROGRAM, {QStringLiteral("save-again-and-again"), file});
    ASSERT_EQ(program.nextLine(), QStringLiteral("saving"));
    run_loop_for(milliseconds(random));
    ASSERT_TRUE(program.isRunning());
    program.kill();
    const QByteArray left = read(file);
    EXPECT_TRUE(left == large || left == small) << left.size() << " bytes";
    // A rename that was under way when the program was killed comes to its end.
    EXPECT_TRUE(wait_until([&] { return names() == QStringList{QStringLiteral("event.cwd")}; }))
        << names().join(u' ').toStdString();
  }
}

TEST_F(OtherProcessTest, TellsWhyAPictureIsNotWritten) {
  const ProgramEnd ending = run_program(
      VELQUON_PROGRAM, {QStringLiteral("--pictures"), path(QStringLiteral("."))},
      as_qt(velquon::test::variables_of({{.call = "fsync", .error = EIO}}, CALL_FAULTS_LIBRARY)));
  EXPECT_EQ(ending.status, 1);
  const QString picture = path(QStringLiteral("./negative-pion-chamber.png"));
  EXPECT_TRUE(ending.errors.endsWith(
      QStringLiteral("velquon: cannot write %1: Input/output error\n").arg(picture)))
      << ending.errors.toStdString();
  EXPECT_EQ(names(), QStringList{});
}

/// The drawing without the lines of text, whose numbers depend on the letters of the date.
std::string without_texts(const std::string& operators) {
  std::string rest;
  std::size_t from = 0;
  for (auto text = operators.find("BT\n"); text != std::string::npos;
       text = operators.find("BT\n", from)) {
    rest += operators.substr(from, text - from);
    from = operators.find("ET\n", text);
  }
  return rest + operators.substr(from);
}

TEST_F(OtherProcessTest, PrintsTheSameWhateverTheScreensScale) {
  const QString event = write(QStringLiteral("event.cwd"), event_file(spiral(200)));
  for (const char* const view : {"chamber", "projection"}) {
    std::vector<PdfPage> pages;
    std::vector<QString> words;
    for (const char* const scale : {"1", "2"}) {
      const QString page = path(QLatin1String(scale) + QStringLiteral(".pdf"));
      const ProgramEnd ending =
          run_program(SCRIPTED_PROGRAM, {QStringLiteral("print"), QLatin1String(view), event, page},
                      {QStringLiteral("QT_SCALE_FACTOR=") + QLatin1String(scale)});
      ASSERT_EQ(ending.status, 0);
      ASSERT_EQ(ending.output.trimmed(), QLatin1String(scale));
      pages.push_back(read_pdf(read(page)));
      EXPECT_EQ(pages.back().rectangles.size(), 200U);
      words.emplace_back();
      for (const PaperWord& word : words_of_pdf(page)) {
        if (word.corner.y() < 750.0) {  // below the date
          words.back() += QStringLiteral("%1 %2 %3\n")
                              .arg(word.text)
                              .arg(word.corner.x(), 0, 'f', 1)
                              .arg(word.corner.y(), 0, 'f', 1);
        }
      }
    }
    EXPECT_EQ(pages[0].paper, pages[1].paper);
    EXPECT_TRUE(without_texts(pages[0].operators) == without_texts(pages[1].operators)) << view;
    EXPECT_EQ(words[0], words[1]);
  }
}

}  // namespace

}  // namespace velquon::test
