// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The writers of all formats that put a whole run into one target.

#include <string>
#include <utility>

#include "files/csv_writer.h"
#include "files/hepmc3_writer.h"
#include "files/particle_table.h"
#include "tools/event_writer.h"
#include "tools/npy_writer.h"
#include "tools/summary.h"

namespace velquon {

namespace {

class CsvEvents : public EventWriter {
 public:
  explicit CsvEvents(ByteOutput output) : writer_(std::move(output)) {}

  std::error_code write(std::uint64_t number, std::span<const PlotPoint> points,
                        const ParticleRecord& /*record*/) override {
    return writer_.write(number, points);
  }
  std::error_code finish() override { return writer_.finish(); }

 private:
  CsvWriter writer_;
};

class ParticleEvents : public EventWriter {
 public:
  explicit ParticleEvents(ByteOutput output) : writer_(std::move(output)) {}

  std::error_code write(std::uint64_t number, std::span<const PlotPoint> /*points*/,
                        const ParticleRecord& record) override {
    return writer_.write(number, record);
  }
  std::error_code finish() override { return writer_.finish(); }

 private:
  ParticleTable writer_;
};

class Hepmc3Events : public EventWriter {
 public:
  Hepmc3Events(ByteOutput output, const RunDescription& run)
      : writer_(std::move(output), {.type = std::string(run.type->key),
                                    .values = run.values,
                                    .seed = run.seed,
                                    .version = VELQUON_VERSION}) {}

  std::error_code write(std::uint64_t number, std::span<const PlotPoint> /*points*/,
                        const ParticleRecord& record) override {
    return writer_.write(number, record);
  }
  std::error_code finish() override { return writer_.finish(); }

 private:
  Hepmc3Writer writer_;
};

}  // namespace

std::unique_ptr<EventWriter> make_event_writer(EventFormat format, OutputTarget& target,
                                               const RunDescription& run) {
  switch (format) {
    case EventFormat::npy:
      return std::make_unique<NpyWriter>(target);
    case EventFormat::particles:
      return std::make_unique<ParticleEvents>(target.bytes());
    case EventFormat::hepmc3:
      return std::make_unique<Hepmc3Events>(target.bytes(), run);
    case EventFormat::summary:
      return std::make_unique<SummaryWriter>(target.bytes(), run);
    case EventFormat::csv:
    case EventFormat::cwd:
      break;
  }
  return std::make_unique<CsvEvents>(target.bytes());
}

}  // namespace velquon
