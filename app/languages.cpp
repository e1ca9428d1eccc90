// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace velquon {

const QStringList& language_codes() {
  static const QStringList codes{QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("es"),
                                 QStringLiteral("fr"), QStringLiteral("it")};
  return codes;
}

QString language_for(const QStringList& preferred) {
  for (const QString& name : preferred) {
    QString code = name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0);
    if (language_codes().contains(code)) {
      return code;
    }
  }
  return language_codes().constFirst();
}

ShownLanguage::ShownLanguage(const QString& code) : languages_before_(qgetenv("LANGUAGE")) {
  const QString shown = code.isEmpty() ? language_for(QLocale::system().uiLanguages()) : code;
  // The C library's reasons for failures come in the same language, where it has it.
  qputenv("LANGUAGE", shown.toLatin1());
  // Ours last, where texts are looked for first.
  if (of_qt_.load(QStringLiteral("qtbase_") + shown,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&of_qt_);
  }
  if (own_.load(QStringLiteral(":/i18n/velquon_") + shown)) {
    QCoreApplication::installTranslator(&own_);
  }
}

ShownLanguage::~ShownLanguage() {
  qputenv("LANGUAGE", languages_before_);
}

}  // namespace velquon
