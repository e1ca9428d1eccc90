// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/worksheet_run.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <algorithm>

namespace velquon::test {

QStringList words(const char* text) {
  return QString::fromUtf8(text).split(QLatin1Char(' '));
}

QuietEnding run_without_display(const char* program, const QStringList& arguments) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove(QStringLiteral("DISPLAY"));
  environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
  environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
  // Pages in English, whoever starts the tests.
  environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
  process.setProcessEnvironment(environment);
  process.start(QString::fromUtf8(program), arguments);
  EXPECT_TRUE(process.waitForFinished(120'000) && process.exitStatus() == QProcess::NormalExit);
  QStringList errors = QString::fromUtf8(process.readAllStandardError()).split(QLatin1Char('\n'));
  errors.removeIf([](const QString& line) { return line.startsWith(QStringLiteral("QStandard")); });
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
          errors.join(QLatin1Char('\n'))};
}

std::vector<QStringList> rows_of_events(const QStringList& arguments) {
  const QuietEnding ending = run_without_display(EVENT_TOOL, arguments);
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  std::vector<QStringList> rows;
  for (const QString& line : ending.output.split(QLatin1Char('\n')).mid(1)) {
    if (!line.isEmpty()) {
      rows.push_back(line.split(QLatin1Char(',')));
    }
  }
  return rows;
}

std::map<int, EventPlaces> places_of_events(const QStringList& arguments) {
  std::map<int, EventPlaces> events;
  for (const QStringList& row : rows_of_events(arguments)) {
    events[row[0].toInt()].push_back({row[2].toDouble(), row[3].toDouble(), row[4].toDouble()});
  }
  return events;
}

QRectF frame_of(const PdfPage& page) {
  std::vector<double> across;
  std::vector<double> up;
  for (const PaperLine& line : page.lines) {
    if (line.color[0] > 0.2) {
      across.insert(across.end(), {line.from.x(), line.to.x()});
      up.insert(up.end(), {line.from.y(), line.to.y()});
    }
  }
  EXPECT_EQ(across.size(), 8U) << "four gray lines";
  if (across.empty()) {
    return {};
  }
  const auto [left, right] = std::ranges::minmax(across);
  const auto [low, high] = std::ranges::minmax(up);
  return {QPointF(left, low), QPointF(right, high)};
}

QStringList lines_of_pdf_page(const QString& path, int page) {
  QProcess tool;
  const QString number = QString::number(page);
  tool.start(QStringLiteral("pdftotext"),
             {QStringLiteral("-layout"), QStringLiteral("-f"), number, QStringLiteral("-l"), number,
              path, QStringLiteral("-")});
  EXPECT_TRUE(tool.waitForFinished() && tool.exitCode() == 0);
  QStringList lines;
  for (const QString& line :
       QString::fromUtf8(tool.readAllStandardOutput()).split(QLatin1Char('\n'))) {
    if (!line.simplified().isEmpty()) {
      lines << line.simplified();
    }
  }
  return lines;
}

QStringList WorksheetTest::files() const {
  return QDir(folder_.path())
      .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QuietEnding WorksheetTest::leave(const QStringList& arguments) const {
  return run_without_display(VELQUON_PROGRAM,
                             QStringList{QStringLiteral("--worksheets"), sheets()} + arguments);
}

std::vector<PdfPage> WorksheetTest::pages(const QStringList& arguments) const {
  const QuietEnding ending = leave(arguments);
  EXPECT_EQ(ending.status, 0) << ending.errors.toStdString();
  EXPECT_EQ(ending.output, QString());
  EXPECT_EQ(ending.errors, QString());
  return read_pdf_pages(read(sheets()));
}

QByteArray WorksheetTest::read(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

}  // namespace velquon::test
