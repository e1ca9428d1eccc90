// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace velquon {

inline constexpr int most_bins = 200;

/// Bins of one width and how many values are in each. A bin holds its lower edge, the last one its
/// upper edge too.
struct Histogram {
  double low = 0.0;
  double width = 1.0;
  std::vector<std::size_t> counts;

  [[nodiscard]] double edge(std::size_t bin) const {
    return low + width * static_cast<double>(bin);
  }
};

/// Counts values in bins whose width the values say: 2 IQR / n^(1/3), IQR being the range of the
/// middle half (D. Freedman and P. Diaconis, "On the histogram as a density estimator", Zeitschrift
/// für Wahrscheinlichkeitstheorie 57 (1981) 453), or, where that is 0, the range over 1 + log2 n bins
/// (H. A. Sturges, "The choice of a class interval", J. Amer. Stat. Assoc. 21 (1926) 65). The width
/// is rounded to 1, 2 or 5 times a power of ten, and the edges are multiples of it. At most
/// `most_bins`.
[[nodiscard]] Histogram automatic_histogram(std::span<const double> values);

/// Counts values in a number of bins from the smallest to the largest value.
/// \param bins 1 to `most_bins`
[[nodiscard]] Histogram histogram_of(std::span<const double> values, int bins);

/// Counts values that are whole numbers, a bin centred on each; in fewer bins when there would be
/// more than `most_bins`.
[[nodiscard]] Histogram histogram_of_counts(std::span<const double> values);

}  // namespace velquon
