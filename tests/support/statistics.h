// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <span>
#include <vector>

namespace velquon::test {

// All tests of a law are made at a significance of 1e-4 and with fixed seeds: a right program
// passes every time, and a seed is not chosen to make it pass.

/// |z| that a normal variable exceeds with probability 1e-4: 2 (1 - Phi(3.8906)) = 1e-4.
inline constexpr double critical_z = 3.8906;

/// Greatest distance between the sample's distribution and a continuous one, times sqrt(n).
[[nodiscard]] double kolmogorov_statistic(std::vector<double> sample,
                                          const std::function<double(double)>& distribution);

/// 2 exp(-2 s^2) is the asymptotic probability that the statistic exceeds s; it is 1e-4 at
/// s = sqrt(ln(2e4) / 2) = 2.2252.
inline constexpr double critical_kolmogorov = 2.2252;

/// Pearson's statistic of counts against expected counts.
[[nodiscard]] double chi_square(std::span<const double> counted, std::span<const double> expected);

/// Chi-square that is exceeded with probability 1e-4, by Wilson and Hilferty: its cube root over
/// the degrees of freedom f is normal with mean 1 - 2/(9f) and variance 2/(9f), and one-sided
/// 1 - Phi(3.7190) = 1e-4.
[[nodiscard]] double critical_chi_square(double degrees_of_freedom);

/// Distance of a count from n p in units of its standard deviation sqrt(n p (1 - p)).
[[nodiscard]] double binomial_z(double count, double n, double p);

}  // namespace velquon::test
