// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/measurement_files.h"

#include <QFile>
#include <QFileInfo>
#include <span>
#include <utility>

#include "files/atomic_file.h"
#include "model/measurement_file.h"
#include "widgets/model_text.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

/// The bytes of a file, or why there are none.
struct LoadedText {
  QByteArray bytes;
  QString problem;
};

LoadedText read_text(const QString& path) {
  if (const QFileInfo info(path); info.exists() && !info.isFile()) {
    return {{}, MeasurementFiles::tr("it is no regular file")};
  }
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return {{}, file.errorString()};
  }
  // One byte more than is taken, which refuses the file.
  QByteArray bytes = file.read(static_cast<qint64>(CsvLimits{}.bytes) + 1);
  return {std::move(bytes), file.error() == QFileDevice::NoError ? QString() : file.errorString()};
}

/// Why a table is refused, in the user's language.
QString reason_text(const TextError& error) {
  QString text = model_text(error.reason);
  for (const std::string& value : error.values) {
    text = text.arg(QString::fromStdString(value));
  }
  return text;
}

}  // namespace

bool write_or_tell(UserDialogs& dialogs, const QString& path, QByteArrayView bytes) {
  const auto error = write_file_atomically(
      QFile::encodeName(path).toStdString(),
      std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
  if (error) {
    dialogs.alert(MeasurementFiles::tr("Not saved"),
                  MeasurementFiles::tr("Velquon can't write the file %1: %2.")
                      .arg(path, QString::fromLocal8Bit(error.message().c_str())));
  }
  return !error;
}

MeasurementFiles::MeasurementFiles(Measurements& measurements, UserDialogs& dialogs,
                                   QObject* parent)
    : QObject(parent), measurements_(measurements), dialogs_(dialogs) {}

bool MeasurementFiles::save() {
  const QString path =
      dialogs_.fileToSave(tr("Save Measurements"), QStringLiteral("measurements"),
                          tr("Tables of measurements (*.csv)"), QStringLiteral("csv"));
  if (path.isEmpty()) {
    return false;
  }
  const std::string text = encode_measurements(measurements_.rows());
  if (!write_or_tell(dialogs_, path, QByteArrayView(text))) {
    return false;
  }
  measurements_.setSaved();
  return true;
}

void MeasurementFiles::open() {
  if (!mayDiscard()) {
    return;
  }
  const QString path =
      dialogs_.fileToOpen(tr("Open Measurements"), tr("Tables of measurements (*.csv)"));
  if (path.isEmpty()) {
    return;
  }
  if (auto rows = load(path)) {
    measurements_.open(*std::move(rows));
  }
}

void MeasurementFiles::addFiles() {
  const QStringList paths =
      dialogs_.filesToOpen(tr("Add Files"), tr("Tables of measurements (*.csv)"));
  MeasurementTable all;
  for (const QString& path : paths) {
    auto rows = load(path);
    if (!rows) {
      return;
    }
    const std::string name = QFileInfo(path).fileName().toStdString();
    for (Measurement& row : *rows) {
      // A row that has been added to that file before tells where it was measured.
      if (row.file.empty()) {
        row.file = name;
      }
      all.push_back(std::move(row));
    }
  }
  measurements_.add(std::move(all));
}

bool MeasurementFiles::mayDiscard() {
  if (!measurements_.hasUnsaved()) {
    return true;
  }
  switch (
      dialogs_.askToSave(tr("Measurements"), tr("There are measurements that are not saved."))) {
    case SaveAnswer::save:
      return save();
    case SaveAnswer::discard:
      return true;
    case SaveAnswer::cancel:
      return false;
  }
  return false;
}

std::optional<MeasurementTable> MeasurementFiles::load(const QString& path) {
  const auto [bytes, problem] = read_text(path);
  if (!problem.isEmpty()) {
    dialogs_.alert(tr("Not opened"), tr("Velquon can't read the file %1: %2.").arg(path, problem));
    return std::nullopt;
  }
  auto result =
      decode_measurements(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
  if (const auto* const error = std::get_if<TextError>(&result)) {
    const QString reason = reason_text(*error);
    dialogs_.alert(tr("Not opened"),
                   error->line == 0 ? tr("Velquon can't read the file %1: %2.").arg(path, reason)
                                    : tr("Velquon can't read the file %1, line %2: %3.")
                                          .arg(path)
                                          .arg(error->line)
                                          .arg(reason));
    return std::nullopt;
  }
  return std::get<MeasurementTable>(std::move(result));
}

}  // namespace velquon
