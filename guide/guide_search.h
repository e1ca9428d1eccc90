// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <cstddef>
#include <vector>

#include "guide/guide_pages.h"

namespace velquon {

/// A place in the guide where words were found.
struct GuideHit {
  std::size_t page = 0;  ///< an index of the pages
  int position = 0;      ///< of the first character in the page's document
};

/// The places of the guide where words stand, small and capital letters alike, and which of them is
/// the present one.
class GuideSearch {
 public:
  /// Looks for words; empty ones are found nowhere. The present place is the first at or behind the
  /// one where reading goes on, or the first of all.
  void look(const std::vector<GuidePage>& pages, const QString& words, const GuideHit& reading);

  /// Goes to the next place, after the last to the first.
  void goOn();
  /// Goes to the place before, from the first to the last.
  void goBack();

  [[nodiscard]] const std::vector<GuideHit>& hits() const { return hits_; }
  /// Index of the present place; 0 while there is none.
  [[nodiscard]] std::size_t present() const { return present_; }

 private:
  std::vector<GuideHit> hits_;
  std::size_t present_ = 0;
};

}  // namespace velquon
