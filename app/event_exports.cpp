// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/event_exports.h"

#include <QFileInfo>

#include "events/event_types.h"
#include "files/csv_writer.h"
#include "files/hepmc3_writer.h"
#include "files/particle_table.h"
#include "printing/whole_file.h"
#include "widgets/model_text.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

constexpr std::uint64_t event_number = 1;

/// Appends to an array of bytes, which takes all.
ByteOutput output_to(QByteArray& bytes) {
  return [&bytes](std::span<const std::byte> more) {
    bytes.append(QByteArrayView(more.data(), static_cast<qsizetype>(more.size())));
    return std::error_code();
  };
}

// No writer fails here: the bytes go into memory.

QByteArray points_table(std::span<const PlotPoint> points) {
  QByteArray bytes;
  CsvWriter writer(output_to(bytes));
  static_cast<void>(writer.write(event_number, points));
  static_cast<void>(writer.finish());
  return bytes;
}

QByteArray particles_table(const ParticleRecord& record) {
  QByteArray bytes;
  ParticleTable writer(output_to(bytes));
  static_cast<void>(writer.write(event_number, record));
  static_cast<void>(writer.finish());
  return bytes;
}

QByteArray hepmc3_record(const EventTracks& tracks, std::uint32_t seed) {
  QByteArray bytes;
  Hepmc3Writer writer(output_to(bytes), {.type = std::string(event_types()[*tracks.type].key),
                                         .values = tracks.values,
                                         .seed = seed,
                                         .version = VELQUON_VERSION});
  static_cast<void>(writer.write(event_number, *tracks.record));
  static_cast<void>(writer.finish());
  return bytes;
}

}  // namespace

EventExports::EventExports(ChamberModel& model, UserDialogs& dialogs)
    : model_(model), dialogs_(dialogs) {}

bool EventExports::hasPoints() const {
  return !model_.shown()->points().empty();
}

bool EventExports::hasRecord() const {
  const auto& record = model_.shown()->tracks->record;
  return record && !record->particles().empty();
}

void EventExports::exportPoints() {
  const QByteArray bytes = points_table(model_.shown()->points());
  write(fileFor(tr("Export Points"), tr("Tables of points (*.csv)")), bytes);
}

void EventExports::exportRecord() {
  const EventTracks& tracks = *model_.shown()->tracks;
  const QString path =
      fileFor(tr("Export Record"), tr("Tables of particles (*.csv);;HepMC3 records (*.hepmc3)"));
  const bool is_hepmc3 = path.endsWith(QLatin1String(".hepmc3"), Qt::CaseInsensitive);
  write(path, is_hepmc3 ? hepmc3_record(tracks, model_.seed()) : particles_table(*tracks.record));
}

QString EventExports::fileFor(const QString& title, const QString& filter) {
  const QString name = event_name_text(model_.shown()->name);
  return dialogs_.fileToSave(title, QFileInfo(name).completeBaseName(), filter,
                             QStringLiteral("csv"));
}

void EventExports::write(const QString& path, const QByteArray& bytes) {
  if (path.isEmpty()) {
    return;
  }
  if (const auto reason = write_whole_file(path, bytes)) {
    dialogs_.alert(tr("Not saved"), tr("Velquon can't write the file %1: %2.").arg(path, *reason));
  }
}

}  // namespace velquon
