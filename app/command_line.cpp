// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/command_line.h"

#include <QCommandLineParser>
#include <QDir>
#include <algorithm>
#include <array>
#include <string_view>

#include "app/languages.h"
#include "files/one_line.h"

namespace velquon {

namespace {

ParsedCommandLine refusal(const QString& reason) {
  return {std::nullopt, QStringLiteral("velquon: %1\n").arg(as_one_line(reason)), 2};
}

/// The path from the root, so that Qt does not take a name with a colon for one of a resource.
QString absolute_path(const QString& path) {
  return path.isEmpty() || path.startsWith(QLatin1Char('/'))
             ? path
             : QDir::currentPath() + QLatin1Char('/') + path;
}

// The options of Qt, its widgets and its X11 part, without their dash.
constexpr std::array<std::string_view, 15> qt_options_with_value{
    "display",         "geometry",           "icon",          "name",
    "platform",        "platformpluginpath", "platformtheme", "plugin",
    "qwindowgeometry", "qwindowicon",        "qwindowtitle",  "session",
    "style",           "stylesheet",         "title"};
constexpr std::array<std::string_view, 5> qt_options_alone{"dograb", "nograb", "reverse",
                                                           "testability", "widgetcount"};
constexpr std::array<std::string_view, 3> qt_options_joined{
    "style=", "stylesheet=", "qmljsdebugger="};

/// What an argument says behind one dash or two; empty without a dash.
std::string behind_dashes(const QString& argument) {
  const qsizetype dashes = argument.startsWith(QLatin1String("--")) ? 2 : 1;
  return argument.startsWith(QLatin1Char('-')) ? argument.mid(dashes).toStdString() : std::string();
}

/// The arguments told apart: those that Qt takes and the others. Both begin with the program's
/// name.
struct ToldApart {
  QStringList of_qt;
  QStringList others;
  QString display;
};

ToldApart tell_apart(const QStringList& arguments) {
  ToldApart result{arguments.first(1), arguments.first(1), {}};
  const qsizetype end = arguments.indexOf(QStringLiteral("--")) < 0
                            ? arguments.size()
                            : arguments.indexOf(QStringLiteral("--"));
  for (qsizetype i = 1; i < end; ++i) {
    const std::string word = behind_dashes(arguments[i]);
    if (std::ranges::find(qt_options_with_value, word) != qt_options_with_value.end() &&
        i + 1 < end) {
      result.of_qt << arguments[i] << arguments[i + 1];
      ++i;
      if (word == "display") {
        result.display = arguments[i];
      }
    } else if (std::ranges::find(qt_options_alone, word) != qt_options_alone.end() ||
               std::ranges::any_of(qt_options_joined,
                                   [&](auto start) { return word.starts_with(start); })) {
      result.of_qt << arguments[i];
    } else {
      result.others << arguments[i];
    }
  }
  result.others << arguments.sliced(end);
  return result;
}

/// The program's own options but for those of worksheets.
struct OwnOptions {
  QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                          QStringLiteral("Print this help.")};
  QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                             QStringLiteral("Print the version.")};
  QCommandLineOption seed{QStringLiteral("seed"), QStringLiteral("Seed of the random generator."),
                          QStringLiteral("N")};
  QCommandLineOption language{
      QStringLiteral("language"),
      QStringLiteral("Language of the windows and worksheets: %1 (default: the desktop's).")
          .arg(language_codes().join(QStringLiteral(", "))),
      QStringLiteral("CODE")};
  QCommandLineOption pictures{
      QStringLiteral("pictures"),
      QStringLiteral("Leave a picture of an event of each kind in a folder, and end."),
      QStringLiteral("DIR")};
};

void offer(QCommandLineParser& parser, const OwnOptions& own) {
  parser.setApplicationDescription(
      QStringLiteral("Shows particle decays in a detector chamber in a magnetic field."));
  parser.addOptions({own.help, own.version, own.seed, own.language, own.pictures});
  parser.addOptions(worksheet_options());
  parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Event file to open."),
                               QStringLiteral("[FILE]"));
}

QString help_text(const QCommandLineParser& parser) {
  // Without an application object the parser does not know the program's name.
  return parser.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("velquon")) +
         QStringLiteral(
             "\nQt's own options, such as -style, -stylesheet, -display, "
             "-geometry and -session, are\ntaken as well.\n");
}

// Each of these reads a part of the command line, and returns what is wrong with it or nothing.

QString read_seed(const QCommandLineParser& parser, const OwnOptions& own, CommandLine& options) {
  if (!parser.isSet(own.seed)) {
    return {};
  }
  bool is_number = false;
  options.seed = parser.value(own.seed).toUInt(&is_number);
  return is_number ? QString()
                   : QStringLiteral("--seed: '%1' is not a whole number from 0 to 4294967295")
                         .arg(parser.value(own.seed));
}

QString read_language(const QCommandLineParser& parser, const OwnOptions& own,
                      CommandLine& options) {
  if (!parser.isSet(own.language)) {
    return {};
  }
  options.language = parser.value(own.language);
  return language_codes().contains(options.language)
             ? QString()
             : QStringLiteral("--language: '%1' is not one of %2")
                   .arg(options.language, language_codes().join(QStringLiteral(", ")));
}

QString read_pictures(const QCommandLineParser& parser, const OwnOptions& own,
                      CommandLine& options) {
  if (!parser.isSet(own.pictures)) {
    return {};
  }
  options.pictures = absolute_path(parser.value(own.pictures));
  return options.pictures.isEmpty() ? QStringLiteral("--pictures: no folder is named") : QString();
}

QString read_worksheets(const QCommandLineParser& parser, const OwnOptions& own,
                        CommandLine& options) {
  const auto [worksheets, problem] = read_worksheet_options(parser, options.seed);
  options.worksheets = worksheets;
  if (!problem.isEmpty()) {
    return problem;
  }
  return worksheets && parser.isSet(own.pictures)
             ? QStringLiteral("--pictures goes without --worksheets")
             : QString();
}

QString read_file(const QCommandLineParser& parser, const OwnOptions& own, CommandLine& options) {
  const QStringList files = parser.positionalArguments();
  if (files.isEmpty()) {
    return {};
  }
  const bool takes_no_file = options.worksheets || parser.isSet(own.pictures);
  if (files.size() > 1 || takes_no_file) {
    return QStringLiteral("'%1' is one argument too many").arg(files.back());
  }
  options.file = absolute_path(files.front());
  return {};
}

constexpr std::array readers{read_seed, read_language, read_pictures, read_worksheets, read_file};

}  // namespace

QString as_one_line(const QString& text) {
  return QString::fromStdString(as_one_line(text.toStdString()));
}

ParsedCommandLine parse_command_line(const QStringList& arguments) {
  const OwnOptions own;
  QCommandLineParser parser;
  offer(parser, own);
  const auto [of_qt, others, display] = tell_apart(arguments);
  if (!parser.parse(others)) {
    return refusal(parser.errorText());
  }
  if (parser.isSet(own.help)) {
    return {std::nullopt, help_text(parser), 0};
  }
  if (parser.isSet(own.version)) {
    return {std::nullopt, QStringLiteral("velquon " VELQUON_VERSION "\n"), 0};
  }
  CommandLine options;
  options.display = display;
  options.qt_arguments = of_qt;
  for (const auto& read : readers) {
    if (const QString problem = read(parser, own, options); !problem.isEmpty()) {
      return refusal(problem);
    }
  }
  return {options, {}, 0};
}

}  // namespace velquon
