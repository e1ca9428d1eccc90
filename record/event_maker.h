// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QProcess>
#include <cstdint>
#include <memory>

#include "engine/chamber_values.h"
#include "events/event_types.h"
#include "files/particle_table_reader.h"
#include "model/event_sample.h"

namespace velquon {

/// Many events that are to be made, and what is noted of each.
struct EventOrder {
  std::size_t type = 0;  ///< an index of `event_types`
  ChamberValues values;
  std::uint32_t seed = 0;
  int events = 1;
  SampledQuantity sampled = SampledQuantity::decay_length;
};

/// Has the program `velquon-events` make events, beside this one, and reads what happened in them from
/// its output as it comes. One order at a time.
class EventMaker : public QObject {
  Q_OBJECT

 public:
  explicit EventMaker(QObject* parent = nullptr);
  /// Ends what is being made.
  ~EventMaker() override;
  EventMaker(const EventMaker&) = delete;
  EventMaker& operator=(const EventMaker&) = delete;
  EventMaker(EventMaker&&) = delete;
  EventMaker& operator=(EventMaker&&) = delete;

  /// The program's path: beside this program, in the folder of tools of a build, or where commands
  /// are; empty when it is nowhere.
  [[nodiscard]] static QString findTool();

  /// \param tool path of the program
  void start(const QString& tool, const EventOrder& order);
  /// Ends the making; no signal follows.
  void cancel();
  [[nodiscard]] bool isRunning() const { return process_.state() != QProcess::NotRunning; }

  /// What was noted, once `finished` has been told.
  [[nodiscard]] MeasurementTable takeRows();

 Q_SIGNALS:
  void madeSoFar(int events);
  void finished();
  /// \param reason one line, without a full stop
  void failed(const QString& reason);

 private:
  void read();
  void processEnded(int status, QProcess::ExitStatus how);
  void fail(const QString& reason);
  void note(std::uint64_t number, std::span<const RecordedParticle> particles);

  QProcess process_;
  EventOrder order_;
  std::unique_ptr<ParticleTableReader> reader_;
  MeasurementTable rows_;
  int last_event_ = 0;
  bool is_waited_for_ = false;  ///< neither cancelled nor failed
};

}  // namespace velquon
