// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/model_text.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <string>

namespace velquon {

QString model_text(std::string_view text) {
  return QCoreApplication::translate("velquon::Model", std::string(text).c_str());
}

QString event_name_text(std::string_view name) {
  static const QRegularExpression untitled(QStringLiteral("^Untitled Type (\\d) Decay( \\d+)?$"));
  if (name == "Empty") {
    return QCoreApplication::translate("velquon::Model", "Empty");
  }
  QString text = QString::fromUtf8(name);
  const QRegularExpressionMatch match = untitled.match(text);
  if (!match.hasMatch()) {
    return text;
  }
  return QCoreApplication::translate("velquon::Model", "Untitled Type %1 Decay")
             .arg(match.captured(1)) +
         match.captured(2);
}

}  // namespace velquon
