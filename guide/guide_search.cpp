// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_search.h"

#include <algorithm>
#include <tuple>

namespace velquon {

void GuideSearch::look(const std::vector<GuidePage>& pages, const QString& words,
                       const GuideHit& reading) {
  hits_.clear();
  present_ = 0;
  if (words.isEmpty()) {
    return;
  }
  for (std::size_t page = 0; page < pages.size(); ++page) {
    const QString& text = pages[page].text;
    qsizetype at = text.indexOf(words, 0, Qt::CaseInsensitive);
    while (at >= 0) {
      hits_.push_back({page, static_cast<int>(at)});
      at = text.indexOf(words, at + words.size(), Qt::CaseInsensitive);
    }
  }
  const auto is_before = [](const GuideHit& hit, const GuideHit& place) {
    return std::tie(hit.page, hit.position) < std::tie(place.page, place.position);
  };
  const auto first = std::ranges::lower_bound(hits_, reading, is_before);
  present_ = first == hits_.end() ? 0 : static_cast<std::size_t>(first - hits_.begin());
}

void GuideSearch::goOn() {
  if (!hits_.empty()) {
    present_ = (present_ + 1) % hits_.size();
  }
}

void GuideSearch::goBack() {
  if (!hits_.empty()) {
    present_ = (present_ + hits_.size() - 1) % hits_.size();
  }
}

}  // namespace velquon
