#include "app/command_line.h"

#include <QCommandLineParser>
#include <QDir>
#include <algorithm>

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

}  // namespace

QString as_one_line(QString text) {
  std::ranges::replace_if(
      text, [](QChar c) { return c.category() == QChar::Other_Control; }, QLatin1Char('?'));
  return text;
}

ParsedCommandLine parse_command_line(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Shows particle decays in a detector chamber in a magnetic field."));
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                QStringLiteral("Print this help."));
  const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                   QStringLiteral("Print the version."));
  const QCommandLineOption seed(
      QStringLiteral("seed"), QStringLiteral("Seed of the random generator."), QStringLiteral("N"));
  const QCommandLineOption pictures(
      QStringLiteral("pictures"),
      QStringLiteral("Leave a picture of an event of each kind in a folder, and end."),
      QStringLiteral("DIR"));
  parser.addOptions({help, version, seed, pictures});
  parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Event file to open."),
                               QStringLiteral("[FILE]"));
  if (!parser.parse(arguments)) {
    return refusal(parser.errorText());
  }
  if (parser.isSet(help)) {
    // Without an application object the parser does not know the program's name.
    return {
        std::nullopt,
        parser.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("velquon")),
        0};
  }
  if (parser.isSet(version)) {
    return {std::nullopt, QStringLiteral("velquon " VELQUON_VERSION "\n"), 0};
  }
  CommandLine options;
  if (parser.isSet(seed)) {
    bool is_number = false;
    options.seed = parser.value(seed).toUInt(&is_number);
    if (!is_number) {
      return refusal(QStringLiteral("--seed: '%1' is not a whole number from 0 to 4294967295")
                         .arg(parser.value(seed)));
    }
  }
  if (parser.isSet(pictures)) {
    options.pictures = absolute_path(parser.value(pictures));
    if (options.pictures.isEmpty()) {
      return refusal(QStringLiteral("--pictures: no folder is named"));
    }
  }
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1 || (!files.isEmpty() && parser.isSet(pictures))) {
    return refusal(QStringLiteral("'%1' is one argument too many").arg(files.back()));
  }
  if (!files.isEmpty()) {
    options.file = absolute_path(files.front());
  }
  return {options, {}, 0};
}

}  // namespace velquon
