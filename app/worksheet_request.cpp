// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/worksheet_request.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <array>
#include <clocale>
#include <cstdio>

#include "app/command_line.h"
#include "app/languages.h"
#include "model/clock.h"
#include "printing/whole_file.h"
#include "printing/worksheets.h"

namespace velquon {

namespace {

const QString sheets_key = QStringLiteral("worksheets");
const QString answers_key = QStringLiteral("answers");

ReadWorksheetOptions refused(const QString& reason) {
  return {std::nullopt, reason};
}

/// What is wrong with the names of the files; empty when nothing is.
QString problem_of_names(const QCommandLineParser& parser) {
  for (const QString& key : {sheets_key, answers_key}) {
    if (parser.isSet(key) && parser.value(key).isEmpty()) {
      return QStringLiteral("--%1: no file is named").arg(key);
    }
  }
  const bool share_a_file =
      parser.isSet(answers_key) && is_one_file(parser.value(sheets_key), parser.value(answers_key));
  return share_a_file ? QStringLiteral("--answers: '%1' is the file of the worksheets")
                            .arg(parser.value(answers_key))
                      : QString();
}

bool save(const QString& path, const QByteArray& bytes) {
  const auto reason = write_whole_file(path, bytes);
  if (reason) {
    std::fprintf(stderr, "velquon: cannot write %s: %s\n", qPrintable(as_one_line(path)),
                 qPrintable(*reason));
  }
  return !reason;
}

}  // namespace

QList<QCommandLineOption> worksheet_options() {
  QList<QCommandLineOption> options{
      {sheets_key, QStringLiteral("Leave worksheets for a class in a PDF file, and end."),
       QStringLiteral("FILE.pdf")},
      {answers_key, QStringLiteral("With --worksheets: leave their answers in a PDF file."),
       QStringLiteral("FILE.pdf")}};
  for (const OrderEntry& entry : order_entries()) {
    options << QCommandLineOption(
        QString::fromUtf8(entry.key),
        QStringLiteral("With --worksheets: %1.").arg(QString::fromUtf8(entry.help)),
        QString::fromUtf8(entry.placeholder));
  }
  return options;
}

ReadWorksheetOptions read_worksheet_options(const QCommandLineParser& parser,
                                            std::optional<std::uint32_t> seed) {
  if (!parser.isSet(sheets_key)) {
    for (const QCommandLineOption& option : worksheet_options()) {
      const QString name = option.names().constFirst();
      if (parser.isSet(name)) {
        return refused(QStringLiteral("--%1 goes with --worksheets").arg(name));
      }
    }
    return {};
  }
  if (const QString problem = problem_of_names(parser); !problem.isEmpty()) {
    return refused(problem);
  }
  WorksheetRequest request{
      .order = {}, .sheets = parser.value(sheets_key), .answers = parser.value(answers_key)};
  for (const OrderEntry& entry : order_entries()) {
    const QString key = QString::fromUtf8(entry.key);
    if (parser.isSet(key) && !entry.take(request.order, parser.value(key).toStdString())) {
      return refused(QStringLiteral("--%1: '%2' is not %3")
                         .arg(key, parser.value(key), QString::fromUtf8(entry.wanted)));
    }
  }
  if (request.order.type == nullptr) {
    return refused(QStringLiteral("--type is needed with --worksheets"));
  }
  request.order.seed = seed.value_or(static_cast<std::uint32_t>(Microseconds()));
  return {request, {}};
}

int leave_worksheets(const WorksheetRequest& request, const QString& language) {
  // Pages are drawn by Qt alone; its platform without a screen has fonts as well.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("DISPLAY");
  char name[] = "velquon";
  std::array<char*, 2> arguments{name, nullptr};
  int count = 1;
  const QGuiApplication application(count, arguments.data());
  // A locale would put a comma into the values.
  std::setlocale(LC_NUMERIC, "C");
  const ShownLanguage shown_language(language);
  const auto documents = make_worksheets(request.order, [](int) { return true; });
  const bool saved = save(request.sheets, documents->sheets) &&
                     (request.answers.isEmpty() || save(request.answers, documents->answers));
  return saved ? 0 : 1;
}

}  // namespace velquon
