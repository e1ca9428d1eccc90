// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/pseudo_language.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <stdexcept>

namespace velquon::test {

namespace {

QString other_vowels(QString text) {
  constexpr std::array<std::array<char16_t, 2>, 8> vowels{{{u'a', u'å'},
                                                           {u'e', u'ê'},
                                                           {u'o', u'ö'},
                                                           {u'u', u'ü'},
                                                           {u'A', u'Å'},
                                                           {u'E', u'Ê'},
                                                           {u'O', u'Ö'},
                                                           {u'U', u'Ü'}}};
  for (const auto& [plain, other] : vowels) {
    text.replace(QChar(plain), QChar(other));
  }
  return text;
}

/// A text of the language; marks of rich text and the patterns of files stay what they are.
QString pseudo_text(const QString& source) {
  static const QRegularExpression kept(QStringLiteral("<[^>]*>|\\(\\*[^)]*\\)"));
  QString text;
  qsizetype done = 0;
  for (auto matches = kept.globalMatch(source); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    text += other_vowels(source.sliced(done, match.capturedStart() - done)) + match.captured();
    done = match.capturedEnd();
  }
  text += other_vowels(source.sliced(done));
  const qsizetype more = (source.size() * 4 + 9) / 10;
  return QChar(u'«') + text + QString(more > 2 ? more - 2 : 0, QChar(u'o')) + QChar(u'»');
}

}  // namespace

PseudoLanguage::PseudoLanguage(const QString& file) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("no file " + file.toStdString());
  }
  QXmlStreamReader reader(&source);
  QString context;
  while (!reader.atEnd()) {
    reader.readNext();
    if (reader.isStartElement() && reader.name() == QLatin1String("name")) {
      context = reader.readElementText();
    } else if (reader.isStartElement() && reader.name() == QLatin1String("source")) {
      texts_[context] << reader.readElementText();
    }
  }
}

QString PseudoLanguage::translate(const char* context, const char* source, const char* /*comment*/,
                                  int count) const {
  const QString text = QString::fromUtf8(source);
  // Of Qt's own texts the names of keys are read back from the texts of shortcuts.
  const bool is_of_qt = context[0] == 'Q';
  const bool is_known = is_of_qt ? qstrcmp(context, "QShortcut") != 0
                                 : texts_.value(QString::fromUtf8(context)).contains(text);
  if (!is_known) {
    return {};
  }
  QStringList parts;  // of the kinds of files that a dialog offers
  for (const QString& part : text.split(QLatin1String(";;"))) {
    parts << pseudo_text(part);
  }
  return parts.join(QLatin1String(";;")).replace(QLatin1String("%n"), QString::number(count));
}

TestedLanguage::TestedLanguage(const QString& code) {
  if (code == QLatin1String("pseudo")) {
    // Any of the files has all texts.
    pseudo_ = std::make_unique<PseudoLanguage>(QStringLiteral(TRANSLATIONS "/velquon_de.ts"));
    QCoreApplication::installTranslator(pseudo_.get());
  } else {
    shown_ = std::make_unique<ShownLanguage>(code);
  }
}

QString untranslated_part(QString text) {
  static const QRegularExpression translated(QStringLiteral("«[^«»]*»"));
  while (text.contains(translated)) {
    text.remove(translated);
  }
  static const QRegularExpression common(
      QStringLiteral("\\b(MeV|Velquon|velquon|HepMC3|PDF|CSV|PNG|SVG|Ctrl|Alt|Shift|Del|Return|Esc|"
                     "Left|Right|Letter)\\b|"
                     "\\(\\*[^)]*\\)|<[^>]*>"));
  text.remove(common);
  static const QRegularExpression word(QStringLiteral("\\p{L}{3,}"));
  return text.contains(word) ? text.trimmed() : QString();
}

}  // namespace velquon::test
