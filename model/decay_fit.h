// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <span>

namespace velquon {

/// The length of a track that decays by chance.
struct LengthObservation {
  double length = 0.0;  ///< not negative
  bool decayed = true;  ///< false: it left the chamber there and would have been longer
  /// A decay beyond this length would not have been seen, nor its track; infinite without a limit.
  double longest = std::numeric_limits<double>::infinity();
};

/// What the chamber's walls do to the lengths that a fit is made from.
enum class ChamberCut {
  none,       ///< nothing that is known: all lengths are those of decays
  censored,   ///< tracks that left count with the length up to there
  truncated,  ///< tracks that left are not in the sample; the longest possible lengths are known
};

/// An exponential distribution of lengths: a track decays in dx with the probability dx / length.
struct DecayFit {
  double length = 0.0;  ///< mean decay length, in the unit of the lengths
  double error = 0.0;   ///< one standard deviation
  std::size_t decays = 0;
  std::size_t left = 0;  ///< tracks that left the chamber
  ChamberCut cut = ChamberCut::none;
  double tracks = 0.0;  ///< how many there were, those that left the chamber unseen included
};

/// Finds the decay length λ that makes the lengths most likely. With n decays and all lengths x:
///
/// - When some tracks left, each of them counts with the probability exp(-x/λ) to come that far, a
///   decay with exp(-x/λ)/λ: λ = Σx / n with the error λ / √n (J. F. Lawless, "Statistical Models and
///   Methods for Lifetime Data", 2nd ed., Wiley 2003, section 4.1).
/// - When none did and longest lengths L are known, a decay counts with the probability given that it
///   was inside, exp(-x/λ) / λ / (1 - exp(-L/λ)). λ is where the derivative vanishes:
///   Σx = Σ(λ - L / (exp(L/λ) - 1)), sums over the decays (M. S. Bartlett, "On the statistical
///   estimation of mean life-times", Philosophical Magazine 44 (1953) 249). The error comes from the
///   second derivative there.
/// - Without either, λ is the mean with the error λ / √n.
///
/// \return nothing when there is no decay, when a length is negative, not finite or beyond its
///         longest, or when the lengths do not fall off: no exponential is most likely
[[nodiscard]] std::optional<DecayFit> fit_decay(std::span<const LengthObservation> lengths);

/// How many decays the fit expects in a unit of length, at a length inside the chamber.
[[nodiscard]] double expected_density(const DecayFit& fit, double length);

/// A Gaussian: the mean and the standard deviation that make the values most likely, σ² being the
/// mean squared deviation, with the errors σ / √n and σ / √(2n).
struct GaussianFit {
  double mean = 0.0;
  double mean_error = 0.0;
  double sigma = 0.0;
  double sigma_error = 0.0;
  std::size_t count = 0;  ///< values
};

/// \return nothing for fewer than two values, or when all are alike
[[nodiscard]] std::optional<GaussianFit> fit_gaussian(std::span<const double> values);

/// How many values the fit expects in a unit.
[[nodiscard]] double expected_density(const GaussianFit& fit, double value);

}  // namespace velquon
