// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/documents_fixture.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <array>

#include "tests/support/windows/pictures.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

std::vector<float> as_list(const ChamberValues& values) {
  return {values.B_field, values.sides_cm, values.kinetic_Mev};
}

}  // namespace

std::string differences(const Shown& left, const Shown& right) {
  std::string names;
  const auto compare = [&names](const char* name, const auto& a, const auto& b) {
    if (!(a == b)) {
      names += std::string(name) + ' ';
    }
  };
  compare("points", left.points, right.points);
  compare("has_event", left.has_event, right.has_event);
  compare("current_values", left.current_values, right.current_values);
  compare("next_values", left.next_values, right.next_values);
  compare("controls", left.controls, right.controls);
  compare("energy_range", left.energy_range, right.energy_range);
  compare("labels", left.labels, right.labels);
  compare("titles", left.titles, right.titles);
  compare("scaler", left.scaler, right.scaler);
  compare("chamber_picture", left.chamber_picture, right.chamber_picture);
  compare("projection_picture", left.projection_picture, right.projection_picture);
  return names;
}

QString DocumentsFixture::write(const QString& name, const QByteArray& bytes) {
  QFile file(path(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  return file.fileName();
}

QByteArray DocumentsFixture::read(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

void DocumentsFixture::makeEvent(int type) {
  constexpr std::array<const char*, 6> items{"piminus_item", "piplus_item", "pizero_item",
                                             "muminus_item", "muplus_item", "lambda_item"};
  choose(items.at(static_cast<std::size_t>(type)));
  do {
    choose("new_event_item");
  } while (chamber().point_number() == 0);
}

Shown DocumentsFixture::shown() {
  controller().displayViews();
  return {.points = copy_of(chamber().data_ptr()),
          .has_event = chamber().has_event(),
          .current_values = as_list(chamber().current_values()),
          .next_values = as_list(controller().model().next()),
          .controls = {control<ValueSlider>("magfield_slider").floatValue(),
                       control<ValueSlider>("size_slider").floatValue(),
                       control<ValueSlider>("energy_slider").floatValue()},
          .energy_range = control<QComboBox>("efactor_popup").currentIndex(),
          .labels = {control<QLabel>("magfield_text").text(), control<QLabel>("sides_text").text(),
                     control<QLabel>("kinetic_energy_text").text()},
          .titles = {chamberWindow().windowTitle(), projectorWindow().windowTitle(),
                     controller().shownName()},
          .scaler = projection().scaler(),
          .chamber_picture = picture_of(chamber()),
          .projection_picture = picture_of(projection())};
}

std::vector<PlotPoint> copy_of(std::span<const PlotPoint> points) {
  return {points.begin(), points.end()};
}

}  // namespace velquon::test
