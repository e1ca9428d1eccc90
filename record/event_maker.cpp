// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/event_maker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace velquon {

namespace {

/// A number that the command line takes as the same one.
QString option_value(float number) {
  constexpr int digits = 9;
  return QString::number(static_cast<double>(number), 'g', digits);
}

QStringList arguments_of(const EventOrder& order) {
  // Joined to their options: a value that begins with a minus sign is none of its own.
  return {QStringLiteral("--type=") + QString::fromUtf8(event_types()[order.type].key),
          QStringLiteral("--field=") + option_value(order.values.B_field),
          QStringLiteral("--side=") + option_value(order.values.sides_cm),
          QStringLiteral("--energy=") + option_value(order.values.kinetic_Mev),
          QStringLiteral("--seed=") + QString::number(order.seed),
          QStringLiteral("--events=") + QString::number(order.events),
          QStringLiteral("--format=particles")};
}

/// The last line that a program wrote, for an alert.
QString last_line(const QByteArray& text) {
  const QString line = QString::fromLocal8Bit(text).trimmed().section(QLatin1Char('\n'), -1);
  return line.left(300);
}

}  // namespace

EventMaker::EventMaker(QObject* parent) : QObject(parent) {
  connect(&process_, &QProcess::readyReadStandardOutput, this, &EventMaker::read);
  connect(&process_, &QProcess::finished, this, &EventMaker::processEnded);
  connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
      fail(process_.errorString());
    }
  });
}

EventMaker::~EventMaker() {
  cancel();
}

QString EventMaker::findTool() {
  const QString name = QStringLiteral("velquon-events");
  const QDir folder(QCoreApplication::applicationDirPath());
  // Installed; of a build; of a build, for the programs of its tests.
  for (const char* const place : {"", "../tools/", "../../tools/"}) {
    const QFileInfo tool(folder.filePath(QLatin1String(place) + name));
    if (tool.isFile() && tool.isExecutable()) {
      return tool.canonicalFilePath();
    }
  }
  return QStandardPaths::findExecutable(name);
}

void EventMaker::start(const QString& tool, const EventOrder& order) {
  order_ = order;
  rows_.clear();
  last_event_ = 0;
  reader_ = std::make_unique<ParticleTableReader>(
      [this](std::uint64_t number, std::span<const RecordedParticle> particles) {
        note(number, particles);
      });
  is_waited_for_ = true;
  process_.start(tool, arguments_of(order), QIODevice::ReadOnly);
}

void EventMaker::cancel() {
  is_waited_for_ = false;
  if (isRunning()) {
    process_.kill();
    process_.waitForFinished();
  }
}

MeasurementTable EventMaker::takeRows() {
  return std::move(rows_);
}

void EventMaker::read() {
  const QByteArray bytes = process_.readAllStandardOutput();
  if (!is_waited_for_) {
    return;
  }
  if (!reader_->take(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())))) {
    fail(tr("line %1 of its output can't be understood").arg(reader_->line()));
    return;
  }
  Q_EMIT madeSoFar(last_event_);
}

void EventMaker::processEnded(int status, QProcess::ExitStatus how) {
  read();
  if (!is_waited_for_) {
    return;
  }
  if (how == QProcess::CrashExit) {
    fail(tr("it was ended before it was done"));
  } else if (status != 0) {
    const QString line = last_line(process_.readAllStandardError());
    fail(line.isEmpty() ? tr("it ended with the status %1").arg(status) : line);
  } else if (!reader_->finish() || last_event_ > order_.events) {
    fail(tr("line %1 of its output can't be understood").arg(reader_->line()));
  } else {
    is_waited_for_ = false;
    Q_EMIT finished();
  }
}

void EventMaker::fail(const QString& reason) {
  if (is_waited_for_) {
    cancel();
    rows_.clear();
    Q_EMIT failed(reason);
  }
}

void EventMaker::note(std::uint64_t number, std::span<const RecordedParticle> particles) {
  last_event_ = static_cast<int>(std::min<std::uint64_t>(number, 1'000'000'000));
  if (auto measurement = measurement_of(order_.sampled, particles, order_.values)) {
    measurement->event = std::string(event_types()[order_.type].key) + " " +
                         std::to_string(number) + ", seed " + std::to_string(order_.seed);
    rows_.push_back(*std::move(measurement));
  }
}

}  // namespace velquon
