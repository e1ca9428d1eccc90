// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>
#include <cstdint>

namespace velquon {

/// Looks for printers without waiting for the print server, which may never answer: asking it from
/// within the program would hold the windows up for minutes. The command lpstat asks, in a process
/// of its own that is ended when it takes too long.
class PrinterSearch : public QObject {
  Q_OBJECT

 public:
  enum class Result : std::uint8_t {
    found,      ///< there is a printer
    none,       ///< no printer is set up
    no_answer,  ///< the print server does not answer
    no_command  ///< lpstat is not installed
  };

  explicit PrinterSearch(QObject* parent = nullptr);
  ~PrinterSearch() override;
  PrinterSearch(const PrinterSearch&) = delete;
  PrinterSearch& operator=(const PrinterSearch&) = delete;
  PrinterSearch(PrinterSearch&&) = delete;
  PrinterSearch& operator=(PrinterSearch&&) = delete;

  /// `ended` follows, not before control is back in the event loop.
  void start();

 Q_SIGNALS:
  void ended(velquon::PrinterSearch::Result result);

 private:
  void end(Result result);
  void takeAnswer();

  QProcess lpstat_;
  QTimer limit_{this};
};

}  // namespace velquon
