// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/events/record_checks.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <set>

#include "tests/support/event_making.h"

namespace velquon::test {

namespace {

constexpr double step = 20.0;  // drawing units
constexpr double eps = 2.3e-16;

using FourVector = std::array<double, 4>;

FourVector four_momentum(const RecordedParticle& row) {
  return {row.momentum[0], row.momentum[1], row.momentum[2], row.energy};
}

std::vector<std::size_t> daughters_of(const RecordedEvent& event, std::size_t parent) {
  std::vector<std::size_t> daughters;
  for (std::size_t i = 0; i < event.record.particles().size(); ++i) {
    if (event.record.particles()[i].parent == static_cast<int>(parent)) {
      daughters.push_back(i);
    }
  }
  return daughters;
}

Vector3 in_units(const RecordedEvent& event, const Vector3& cm) {
  const double scale = 800.0 / static_cast<double>(event.values.sides_cm);
  return {cm[0] * scale, cm[1] * scale, cm[2] * scale};
}

Vector3 point_in_cm(const RecordedEvent& event, std::size_t point) {
  const auto side = static_cast<double>(event.values.sides_cm);
  const auto& coords = event.points[point].coords;
  return {coords[0] * side / 800.0, coords[1] * side / 800.0, coords[2] * side / 800.0};
}

/// The curved or straight path that a charged particle's row foretells.
class ForetoldPath {
 public:
  ForetoldPath(const RecordedEvent& event, const RecordedParticle& row)
      : start_(in_units(event, row.place_cm)),
        straight_(event.values.B_field == 0.0F),
        phi_(std::atan2(row.momentum[1], row.momentum[0])) {
    const double pz = row.momentum[2];
    const double p = length(row.momentum);
    if (straight_) {
      const double theta = std::acos(pz / row.energy);
      advance_ = {std::cos(phi_) * std::sin(theta) * step, std::sin(phi_) * std::sin(theta) * step,
                  std::cos(theta) * step};
      return;
    }
    const double pt = std::sqrt(p * p - pz * pz);
    const double field = charge_of(row.pdg) * static_cast<double>(event.values.B_field);
    radius_cm_ = 10.0 * pt / (3.0 * field);
    radius_ = radius_cm_ * 800.0 / static_cast<double>(event.values.sides_cm);
    dphi_ = -step * pt / p / radius_;
    dz_ = pz / p * step;
  }

  /// The n-th point, from 1.
  [[nodiscard]] Vector3 point(double n) const {
    if (straight_) {
      return {start_[0] + n * advance_[0], start_[1] + n * advance_[1],
              start_[2] + n * advance_[2]};
    }
    // A turn about the centre, written so that a large radius costs no digits.
    const double half = n * dphi_ / 2.0;
    const double chord = -2.0 * radius_ * std::sin(half);
    return {start_[0] + chord * std::cos(phi_ + half), start_[1] + chord * std::sin(phi_ + half),
            start_[2] + n * dz_};
  }
  /// How far the engine's own rounding may carry a point of a circle of this radius.
  [[nodiscard]] double rounding() const {
    return 1e-9 + 2000.0 * eps * (straight_ ? 400.0 : std::fabs(radius_));
  }
  [[nodiscard]] double radius() const { return radius_; }
  [[nodiscard]] double dphi() const { return straight_ ? 0.0 : dphi_; }

 private:
  Vector3 start_;
  bool straight_;
  double phi_;
  double radius_cm_ = 0.0;
  double radius_ = 0.0;
  double dphi_ = 0.0;
  double dz_ = 0.0;
  Vector3 advance_{};
};

std::set<Fate> possible_fates(int number) {
  if (charge_of(number) != 0) {
    return {Fate::decayed, Fate::left, Fate::full};
  }
  if (number == pdg::photon) {
    return {Fate::converted, Fate::escaped};
  }
  const bool decays = number == pdg::pizero || number == pdg::lambda;
  return decays ? std::set{Fate::decayed, Fate::escaped} : std::set{Fate::undetected};
}

std::string at_row(std::size_t row, const std::string& what) {
  return "particle " + std::to_string(row) + ": " + what;
}

std::string problem_in_row(const RecordedEvent& event, std::size_t i) {
  const RecordedParticle& row = event.record.particles()[i];
  const double squared = row.energy * row.energy - scalar(row.momentum, row.momentum);
  const double tolerance = 1e-13 * std::max(1.0, row.energy * row.energy);
  if (row.pdg == pdg::both_neutrinos) {
    // The electron's mass is left out of the spectrum, so the pair may lack its square.
    if (squared < -0.27 - 10 * tolerance) {
      return at_row(i, "the neutrinos' mass squared is negative");
    }
  } else if (std::abs(row.pdg) == pdg::muon_neutrino) {
    const RecordedParticle& parent = event.record.particles()[static_cast<std::size_t>(row.parent)];
    if (std::fabs(squared) > 1e-12 * std::max(1.0, parent.energy * parent.energy)) {
      return at_row(i, "the neutrino has a mass");
    }
  } else if (std::fabs(squared - mass_of(row.pdg) * mass_of(row.pdg)) > tolerance) {
    return at_row(i, "wrong mass");
  }
  if ((i == 0) != (row.parent == -1) || row.parent >= static_cast<int>(i)) {
    return at_row(i, "wrong parent");
  }
  const bool ends_in_chamber = row.fate == Fate::decayed || row.fate == Fate::converted;
  const bool seen = charge_of(row.pdg) != 0;
  if (!possible_fates(row.pdg).contains(row.fate)) {
    return at_row(i, "a fate that it cannot have");
  }
  if (ends_in_chamber != row.end_cm.has_value() && !(seen && row.points > 0)) {
    return at_row(i, "an end that is not known, or none where one is");
  }
  if (row.points > 0 && !seen) {
    return at_row(i, "points of a neutral particle");
  }
  const bool stable = std::set<int>{11, 2212}.contains(std::abs(row.pdg));
  const bool has_daughters = !daughters_of(event, i).empty();
  if (has_daughters != (ends_in_chamber && !stable)) {
    return at_row(i, "daughters that do not go with its fate");
  }
  return {};
}

/// The parent's four-momentum at its end, if that can be told from its row.
std::optional<FourVector> at_the_end(const RecordedEvent& event, std::size_t i) {
  const RecordedParticle& row = event.record.particles()[i];
  FourVector momentum = four_momentum(row);
  if (charge_of(row.pdg) == 0) {
    return momentum;
  }
  const auto own = points_of(event, i);
  if (own.empty() || point_in_cm(event, own.back()) != *row.end_cm) {
    return std::nullopt;  // the event had no room for all of its points
  }
  const double turn = static_cast<double>(own.size() - 1) * ForetoldPath(event, row).dphi();
  momentum[0] = row.momentum[0] * std::cos(turn) - row.momentum[1] * std::sin(turn);
  momentum[1] = row.momentum[1] * std::cos(turn) + row.momentum[0] * std::sin(turn);
  return momentum;
}

/// How much more energy than the parent the daughters may have, at the generator's own rounded
/// constants, in MeV.
struct EnergyRange {
  double low;
  double high;
};
EnergyRange energy_excess(const RecordedParticle& parent) {
  const double rounding = 1e-12 * parent.energy;
  if (parent.pdg == pdg::lambda) {
    const double off = 0.25 * parent.energy / mass_of(pdg::lambda);
    return {-off, off};
  }
  if (parent.pdg == pdg::photon) {
    return {-rounding, 1.5};  // masses and opening angle are not paid for
  }
  return {-rounding, rounding};
}

std::string problem_at_vertex(const RecordedEvent& event, std::size_t i) {
  const auto rows = event.record.particles();
  const auto daughters = daughters_of(event, i);
  const auto before = daughters.empty() ? std::nullopt : at_the_end(event, i);
  FourVector after{};
  for (const std::size_t daughter : daughters) {
    if (rows[daughter].place_cm != *rows[i].end_cm) {
      return at_row(daughter, "does not begin where its parent ends");
    }
    for (std::size_t k = 0; k < 4; ++k) {
      after[k] += four_momentum(rows[daughter])[k];
    }
  }
  if (!before) {
    return {};
  }
  const double rounding = 1e-11 * std::max(1.0, rows[i].energy);
  for (std::size_t k = 0; k < 3; ++k) {
    if (!(std::fabs(after[k] - (*before)[k]) <= rounding)) {
      return at_row(i, "momentum is not kept");
    }
  }
  const EnergyRange range = energy_excess(rows[i]);
  const double excess = after[3] - (*before)[3];
  return range.low <= excess && excess <= range.high ? std::string()
                                                     : at_row(i, "energy is not kept");
}

std::string problem_in_track(const RecordedEvent& event, std::size_t i) {
  const RecordedParticle& row = event.record.particles()[i];
  const auto own = points_of(event, i);
  if (own.size() != static_cast<std::size_t>(row.points)) {
    return at_row(i, "another number of points");
  }
  if (own.empty()) {
    return {};
  }
  if (own.front() != static_cast<std::size_t>(row.first_point)) {
    return at_row(i, "another first point");
  }
  const ForetoldPath path(event, row);
  for (std::size_t n = 0; n < own.size(); ++n) {
    const PlotPoint& point = event.points[own[n]];
    if (length(difference(position_of(point), path.point(static_cast<double>(n + 1)))) >
        path.rounding()) {
      return at_row(i, "its points lie elsewhere, the first wrong one is " + std::to_string(n));
    }
    const bool decay_point = n + 1 == own.size() && row.fate == Fate::decayed;
    if (!decay_point && point.code != row.code) {
      return at_row(i, "another code");
    }
  }
  if (row.fate != Fate::decayed && point_in_cm(event, own.back()) != row.end_cm) {
    return at_row(i, "does not end at its last point");
  }
  return {};
}

}  // namespace

RecordedEvent next_recorded_event(const EventType& type, const ChamberValues& values) {
  RecordedEvent event{.type = &type, .values = values, .points = {}, .record = {}};
  TrackBuffer buffer;
  event.handed_over = make_event(type, values, buffer, &event.record);
  if (event.handed_over == HandOver::yes) {
    event.points.assign(buffer.points().begin(), buffer.points().end());
  }
  return event;
}

double mass_of(int pdg_number) {
  static const std::map<int, double> masses{{11, 0.51},     {13, 105.7},    {14, 0.0},
                                            {22, 0.0},      {111, 135.0},   {211, 139.6},
                                            {2112, 939.57}, {2212, 938.28}, {3122, 1115.6}};
  return masses.at(std::abs(pdg_number));
}

int charge_of(int pdg_number) {
  static const std::map<int, int> charges{{11, -1}, {13, -1}, {211, 1}, {2212, 1}};
  const auto found = charges.find(std::abs(pdg_number));
  if (found == charges.end()) {
    return 0;
  }
  return pdg_number > 0 ? found->second : -found->second;
}

std::vector<std::uint8_t> owners_from_rows(const RecordedEvent& event) {
  const auto rows = event.record.particles();
  std::vector<std::vector<std::uint8_t>> lists(rows.size());
  for (std::size_t i = rows.size(); i-- > 0;) {
    std::vector<std::vector<std::uint8_t>> parts;
    for (const std::size_t daughter : daughters_of(event, i)) {
      if (!lists[daughter].empty()) {
        parts.push_back(lists[daughter]);
      }
    }
    std::ranges::sort(parts, {}, [&](const auto& list) { return rows[list.front()].first_point; });
    auto& list = lists[i];
    list.assign(static_cast<std::size_t>(rows[i].points), static_cast<std::uint8_t>(i));
    std::size_t longest = 0;
    for (const auto& part : parts) {
      longest = std::max(longest, part.size());
    }
    for (std::size_t turn = 0; turn < longest; ++turn) {
      for (const auto& part : parts) {
        if (turn < part.size()) {
          list.push_back(part[turn]);
        }
      }
    }
  }
  return lists.empty() ? std::vector<std::uint8_t>() : lists.front();
}

std::vector<std::size_t> points_of(const RecordedEvent& event, std::size_t row) {
  std::vector<std::size_t> own;
  for (std::size_t point = 0; point < event.record.owners().size(); ++point) {
    if (event.record.owners()[point] == row) {
      own.push_back(point);
    }
  }
  return own;
}

std::string problem_in(const RecordedEvent& event) {
  if (event.handed_over == HandOver::no) {
    return event.record.particles().empty() && event.record.owners().empty()
               ? std::string()
               : "a record of an event that is not handed over";
  }
  const auto owners = event.record.owners();
  if (owners.size() != event.points.size() ||
      !std::ranges::equal(owners, owners_from_rows(event))) {
    return "the points' owners do not follow from the particles";
  }
  for (std::size_t i = 0; i < event.record.particles().size(); ++i) {
    for (auto* check : {problem_in_row, problem_at_vertex, problem_in_track}) {
      if (std::string problem = check(event, i); !problem.empty()) {
        return problem;
      }
    }
  }
  return event.record.particles().empty() ? "no particles" : std::string();
}

std::string problem_in_circles(const RecordedEvent& event, CircleCount& count) {
  const auto rows = event.record.particles();
  for (std::size_t i = 0; i < rows.size() && event.values.B_field != 0.0F; ++i) {
    const auto own = points_of(event, i);
    if (own.size() < 3) {
      continue;
    }
    const ForetoldPath path(event, rows[i]);
    // Three points about two radians apart, or as far apart as there are.
    const double apart = std::max(1.0, std::floor(2.0 / std::fabs(path.dphi())));
    const std::size_t most_apart = (own.size() - 1) / 2;
    const auto stride = static_cast<std::size_t>(std::min(apart, static_cast<double>(most_apart)));
    const Vector3 a = position_of(event.points[own[0]]);
    const Vector3 ab = difference(position_of(event.points[own[stride]]), a);
    const Vector3 ac = difference(position_of(event.points[own[2 * stride]]), a);
    const double area2 = ab[0] * ac[1] - ab[1] * ac[0];
    const double lengths = std::hypot(ab[0], ab[1]) * std::hypot(ac[0], ac[1]) *
                           std::hypot(ac[0] - ab[0], ac[1] - ab[1]);
    // The rotation is clockwise for a positive radius; a turn by more than half a circle hides it.
    const double radius = -lengths / (2.0 * area2);
    const bool sense_shows = std::fabs(static_cast<double>(stride) * path.dphi()) < 3.0;
    // A point's place is good to this; the height of the arc over its chord is what is measured.
    const double place = 400.0 * eps * static_cast<double>(own.size()) * 2.0 +
                         std::fabs(path.radius()) * 4.0 * eps * static_cast<double>(own.size());
    const double height = std::fabs(area2) / std::hypot(ac[0], ac[1]);
    const double tolerance = std::max(1e-9, 4.0 * place / height);
    ++(tolerance > 1e-9 ? count.flat : count.exact);
    const double wanted = sense_shows ? path.radius() : std::fabs(path.radius());
    const double measured = sense_shows ? radius : std::fabs(radius);
    if (!(std::fabs(measured / wanted - 1.0) <= tolerance) && tolerance < 0.5) {
      return at_row(i,
                    "radius " + std::to_string(measured) + " instead of " + std::to_string(wanted));
    }
  }
  return {};
}

}  // namespace velquon::test
