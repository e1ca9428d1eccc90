// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <QTemporaryDir>
#include <span>
#include <string>
#include <vector>

#include "app/event_documents.h"
#include "tests/support/documents/recording_dialogs.h"
#include "tests/support/windows/application_fixture.h"

namespace velquon::test {

/// The alerts of a refused file.
inline const RecordingDialogs::Alert bad_data{
    QStringLiteral("Bad data"), QStringLiteral("Sorry, Velquon can't read this file.")};
inline const RecordingDialogs::Alert wrong_format{
    QStringLiteral("Wrong format"), QStringLiteral("Sorry, Velquon can't read this file.")};

/// Everything of the program that an event file can change.
struct Shown {
  std::vector<PlotPoint> points;
  bool has_event = false;
  std::vector<float> current_values;  ///< field, side, energy
  std::vector<float> next_values;
  std::vector<float> controls;
  int energy_range = -1;
  std::vector<QString> labels;
  std::vector<QString> titles;
  double scaler = 0.0;
  QImage chamber_picture;
  QImage projection_picture;
};

/// Names of what differs, each followed by a blank; empty when nothing does.
std::string differences(const Shown& left, const Shown& right);

/// The whole program with its windows on the screen and a user who answers from a list.
class DocumentsFixture : public ApplicationFixture {
 protected:
  [[nodiscard]] RecordingDialogs& dialogs() override { return dialogs_; }
  [[nodiscard]] EventDocuments& documents() { return application().documents(); }

  /// Path of a file in a folder of the test's own.
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  [[nodiscard]] QString folder() const { return folder_.path(); }
  /// Leaves a file in the test's folder.
  /// \return its path
  QString write(const QString& name, const QByteArray& bytes);
  /// What a file holds.
  static QByteArray read(const QString& path);

  /// Makes an event of a type, 0 to 5, as the user would.
  void makeEvent(int type);
  /// The program as it is now; both pictures are drawn.
  [[nodiscard]] Shown shown();

 private:
  QTemporaryDir folder_;
  RecordingDialogs dialogs_;
};

/// The points as they are, for comparing with a list.
std::vector<PlotPoint> copy_of(std::span<const PlotPoint> points);

}  // namespace velquon::test
