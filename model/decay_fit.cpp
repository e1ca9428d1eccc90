// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/decay_fit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "model/statistics.h"

namespace velquon {

namespace {

bool is_usable(const LengthObservation& observation) {
  return std::isfinite(observation.length) && observation.length >= 0.0 &&
         observation.longest > 0.0 && observation.length <= observation.longest;
}

/// The decays of a sample in which no track left, by the decay rate k = 1/λ.
class TruncatedDecays {
 public:
  explicit TruncatedDecays(std::span<const LengthObservation> lengths) : lengths_(lengths) {
    for (const LengthObservation& observation : lengths) {
      sum_ += observation.length;
    }
  }

  /// Derivative of the likelihood's logarithm by k; it falls with k.
  [[nodiscard]] double slope(double k) const {
    double slope = static_cast<double>(lengths_.size()) / k - sum_;
    for (const LengthObservation& observation : lengths_) {
      if (std::isfinite(observation.longest)) {
        slope -= observation.longest / std::expm1(k * observation.longest);
      }
    }
    return slope;
  }

  /// The limit of `slope` towards k = 0.
  [[nodiscard]] double slopeAtNone() const {
    double slope = -sum_;
    for (const LengthObservation& observation : lengths_) {
      slope += observation.longest / 2.0;
    }
    return slope;
  }

  /// Minus the second derivative by k.
  [[nodiscard]] double information(double k) const {
    double information = 0.0;
    for (const LengthObservation& observation : lengths_) {
      information += 1.0 / (k * k);
      if (std::isfinite(observation.longest)) {
        const double half = std::sinh(k * observation.longest / 2.0);
        information -= observation.longest * observation.longest / (4.0 * half * half);
      }
    }
    return information;
  }

  /// Tracks of which these are the ones that decayed inside.
  [[nodiscard]] double tracks(double k) const {
    double tracks = 0.0;
    for (const LengthObservation& observation : lengths_) {
      tracks += -1.0 / std::expm1(-k * observation.longest);
    }
    return tracks;
  }

 private:
  std::span<const LengthObservation> lengths_;
  double sum_ = 0.0;
};

/// The rate at which the slope vanishes, between two bounds by halving.
double rate_without_slope(const TruncatedDecays& decays, double most) {
  double below = 0.0;
  double above = most;
  double middle = most / 2.0;
  while (middle > below && middle < above) {
    (decays.slope(middle) > 0.0 ? below : above) = middle;
    middle = below + (above - below) / 2.0;
  }
  return above;
}

}  // namespace

std::optional<DecayFit> fit_decay(std::span<const LengthObservation> lengths) {
  DecayFit fit;
  double sum = 0.0;
  bool has_longest = false;
  for (const LengthObservation& observation : lengths) {
    if (!is_usable(observation)) {
      return std::nullopt;
    }
    ++(observation.decayed ? fit.decays : fit.left);
    sum += observation.length;
    has_longest = has_longest || std::isfinite(observation.longest);
  }
  const auto decays = static_cast<double>(fit.decays);
  const double mean = sum / decays;
  if (fit.decays == 0 || !std::isnormal(mean) || !std::isfinite(sum)) {
    return std::nullopt;
  }
  fit.length = mean;
  fit.error = mean / std::sqrt(decays);
  fit.tracks = static_cast<double>(lengths.size());
  if (fit.left > 0 || !has_longest) {
    fit.cut = fit.left > 0 ? ChamberCut::censored : ChamberCut::none;
    return fit;
  }
  const TruncatedDecays sample(lengths);
  if (!(sample.slopeAtNone() > 0.0)) {
    return std::nullopt;
  }
  // The rate without a cut is an upper bound: the cut makes the mean smaller.
  const double rate = rate_without_slope(sample, 1.0 / mean);
  fit.cut = ChamberCut::truncated;
  fit.length = 1.0 / rate;
  fit.error = 1.0 / (std::sqrt(sample.information(rate)) * rate * rate);
  fit.tracks = sample.tracks(rate);
  if (!std::isfinite(fit.length) || !std::isfinite(fit.error)) {
    return std::nullopt;
  }
  return fit;
}

std::optional<GaussianFit> fit_gaussian(std::span<const double> values) {
  const SampleSummary summary = summary_of(values);
  if (!(summary.spread > 0.0) || !std::isfinite(summary.spread)) {
    return std::nullopt;
  }
  const auto count = static_cast<double>(summary.count);
  const double sigma = summary.spread * std::sqrt((count - 1.0) / count);
  return GaussianFit{.mean = summary.mean,
                     .mean_error = sigma / std::sqrt(count),
                     .sigma = sigma,
                     .sigma_error = sigma / std::sqrt(2.0 * count),
                     .count = summary.count};
}

double expected_density(const DecayFit& fit, double length) {
  return fit.tracks / fit.length * std::exp(-length / fit.length);
}

double expected_density(const GaussianFit& fit, double value) {
  const double deviation = (value - fit.mean) / fit.sigma;
  const double peak = 1.0 / (fit.sigma * std::sqrt(2.0 * std::numbers::pi));
  return static_cast<double>(fit.count) * peak * std::exp(-deviation * deviation / 2.0);
}

}  // namespace velquon
