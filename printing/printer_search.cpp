// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/printer_search.h"

namespace velquon {

PrinterSearch::PrinterSearch(QObject* parent) : QObject(parent) {
  constexpr int longest_search = 4'000;  // milliseconds
  limit_.setObjectName(QStringLiteral("printer_search_limit"));
  limit_.setSingleShot(true);
  limit_.setInterval(longest_search);
  lpstat_.setStandardErrorFile(QProcess::nullDevice());
  connect(&limit_, &QTimer::timeout, this, [this] { end(Result::no_answer); });
  connect(&lpstat_, &QProcess::finished, this, &PrinterSearch::takeAnswer);
  connect(&lpstat_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
      end(Result::no_command);
    }
  });
}

PrinterSearch::~PrinterSearch() {
  lpstat_.disconnect(this);
  lpstat_.kill();
  lpstat_.waitForFinished();
}

void PrinterSearch::start() {
  limit_.start();
  QTimer::singleShot(0, this, [this] {
    lpstat_.start(QStringLiteral("lpstat"), {QStringLiteral("-e")}, QIODevice::ReadOnly);
  });
}

void PrinterSearch::end(Result result) {
  limit_.stop();
  lpstat_.disconnect(this);
  lpstat_.kill();
  Q_EMIT ended(result);
}

void PrinterSearch::takeAnswer() {
  const bool has_printer = !lpstat_.readAllStandardOutput().trimmed().isEmpty();
  end(has_printer ? Result::found : Result::none);
}

}  // namespace velquon
