// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/measurements.h"

#include <bit>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

namespace velquon {

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

}  // namespace

bool are_alike(const Measurement& left, const Measurement& right) {
  const auto same = [](double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
  };
  return left.event == right.event && left.quantity == right.quantity &&
         left.plane == right.plane && same(left.value, right.value) &&
         same(left.error, right.error) && same(left.field_kG, right.field_kG) &&
         left.ending == right.ending && same(left.longest_cm, right.longest_cm) &&
         left.note == right.note && left.file == right.file;
}

void Measurements::add(MeasurementTable rows) {
  Step step;
  step.put.reserve(rows.size());
  for (Measurement& row : rows) {
    step.put.push_back({rows_.size() + step.put.size(), std::move(row)});
  }
  perform(std::move(step));
}

void Measurements::remove(const std::vector<std::size_t>& places) {
  Step step;
  for (const std::size_t place : places) {
    step.taken.push_back({place, rows_[place]});
  }
  perform(std::move(step));
}

void Measurements::change(std::size_t place, Measurement measurement) {
  if (are_alike(rows_[place], measurement)) {
    return;
  }
  Step step;
  step.taken.push_back({place, rows_[place]});
  step.put.push_back({place, std::move(measurement)});
  perform(std::move(step));
}

void Measurements::open(MeasurementTable rows) {
  rows_ = std::move(rows);
  steps_.clear();
  done_ = 0;
  saved_ = 0;
  changed.tell();
}

void Measurements::undo() {
  if (canUndo()) {
    --done_;
    exchange(steps_[done_].put, steps_[done_].taken);
    changed.tell();
  }
}

void Measurements::redo() {
  if (canRedo()) {
    exchange(steps_[done_].taken, steps_[done_].put);
    ++done_;
    changed.tell();
  }
}

void Measurements::setSaved() {
  saved_ = done_;
  changed.tell();
}

bool Measurements::hasUnsaved() const {
  return !rows_.empty() && done_ != saved_;
}

void Measurements::perform(Step step) {
  if (step.taken.empty() && step.put.empty()) {
    return;
  }
  if (saved_ != never && saved_ > done_) {
    saved_ = never;
  }
  steps_.resize(done_);
  exchange(step.taken, step.put);
  steps_.push_back(std::move(step));
  ++done_;
  changed.tell();
}

void Measurements::exchange(const std::vector<Placed>& taken, const std::vector<Placed>& put) {
  MeasurementTable rest;
  rest.reserve(rows_.size() - taken.size() + put.size());
  auto next_taken = taken.begin();
  auto next_put = put.begin();
  const auto put_what_comes_here = [&] {
    while (next_put != put.end() && next_put->place == rest.size()) {
      rest.push_back((next_put++)->row);
    }
  };
  for (std::size_t place = 0; place < rows_.size(); ++place) {
    put_what_comes_here();
    if (next_taken != taken.end() && next_taken->place == place) {
      ++next_taken;
    } else {
      rest.push_back(std::move(rows_[place]));
    }
  }
  put_what_comes_here();
  rows_ = std::move(rest);
}

}  // namespace velquon
