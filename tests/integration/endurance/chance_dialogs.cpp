// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>

#include "files/event_file.h"
#include "tests/integration/endurance/monkey.h"

namespace velquon::test {

namespace {

QByteArray an_event() {
  std::vector<PlotPoint> points;
  for (int i = 0; i < 40; ++i) {
    PlotPoint point{};
    point.coords[0] = 10.0 * i - 400.0;
    point.coords[1] = 5.0 * i;
    point.coords[2] = 1.0;
    point.code = static_cast<std::int16_t>(i % 5);
    points.push_back(point);
  }
  const auto bytes = encode_event(points, ChamberValues{});
  return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

}  // namespace

ChanceDialogs::ChanceDialogs(Chance& chance) : chance_(chance) {
  const QByteArray event = an_event();
  write(QStringLiteral("event.cwd"), event);
  write(QStringLiteral("cut.cwd"), event.left(event.size() / 2));
  write(QStringLiteral("empty.cwd"), {});
  write(QStringLiteral("noise.cwd"), QByteArray(997, '\xa5'));
  write(QStringLiteral("table.csv"),
        "number,event,quantity,plane,value,error,unit,field_kG,ending,longest_cm,note,file\n"
        "1,e,length,xy,125,,cm,2.5,,500,,\n2,e,length,xy,17,,cm,2.5,,500,,\n");
  write(QStringLiteral("broken.csv"), "number,event\n1,\"never closed\n");
  paths_ << folder_.path() << folder_.filePath(QStringLiteral("not/there.cwd"))
         << QStringLiteral("/dev/full") << QString();
}

void ChanceDialogs::write(const QString& name, const QByteArray& bytes) {
  QFile file(folder_.filePath(name));
  if (file.open(QIODevice::WriteOnly)) {
    file.write(bytes);
  }
  paths_ << file.fileName();
}

QString ChanceDialogs::anyPath() {
  return chance_.oneOf(paths_);
}

void ChanceDialogs::alert(const QString& /*title*/, const QString& /*message*/) {
  ++alerts_;
}

void ChanceDialogs::alertAboutFile(const QString& /*title*/, const QString& /*message*/,
                                   const QString& /*path*/) {
  ++alerts_;
}

QString ChanceDialogs::fileToOpen(const QString& /*title*/, const QString& /*filter*/) {
  return anyPath();
}

QStringList ChanceDialogs::filesToOpen(const QString& /*title*/, const QString& /*filter*/) {
  QStringList files;
  for (int i = chance_.below(4); i > 0; --i) {
    files << anyPath();
  }
  return files;
}

SaveAnswer ChanceDialogs::askToSave(const QString& /*title*/, const QString& /*message*/) {
  constexpr std::array answers{SaveAnswer::save, SaveAnswer::discard, SaveAnswer::cancel};
  return chance_.oneOf(answers);
}

QString ChanceDialogs::fileToSave(const QString& /*title*/, const QString& suggestion,
                                  const QString& /*filter*/, const QString& suffix) {
  return chance_.oneIn(2) ? folder_.filePath(suggestion.section(QLatin1Char('/'), -1) +
                                             QLatin1Char('.') + suffix)
                          : anyPath();
}

}  // namespace velquon::test
