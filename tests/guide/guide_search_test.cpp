// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_search.h"

#include <gtest/gtest.h>

namespace velquon::test {

namespace {

std::vector<GuidePage> pages() {
  std::vector<GuidePage> pages(3);
  pages[0].text = QStringLiteral("The helix. A helix turns.");
  pages[1].text = QStringLiteral("Nothing of it here.");
  pages[2].text = QStringLiteral("Helixhelix");
  return pages;
}

/// The present place as page and position.
std::pair<std::size_t, int> present(const GuideSearch& search) {
  const GuideHit& hit = search.hits().at(search.present());
  return {hit.page, hit.position};
}

using Place = std::pair<std::size_t, int>;

}  // namespace

TEST(GuideSearch, FindsWordsOnAllPagesInSmallAndCapitalLettersAlike) {
  GuideSearch search;
  search.look(pages(), QStringLiteral("hELIX"), {});
  ASSERT_EQ(search.hits().size(), 4);
  EXPECT_EQ(present(search), Place(0, 4));
}

TEST(GuideSearch, BeginsWhereReadingGoesOn) {
  GuideSearch search;
  search.look(pages(), QStringLiteral("helix"), {.page = 0, .position = 5});
  EXPECT_EQ(present(search), Place(0, 13));
  search.look(pages(), QStringLiteral("helix"), {.page = 1, .position = 0});
  EXPECT_EQ(present(search), Place(2, 0));
}

TEST(GuideSearch, BeginsAnewBehindTheLastPlace) {
  GuideSearch search;
  search.look(pages(), QStringLiteral("helix"), {.page = 2, .position = 6});
  EXPECT_EQ(present(search), Place(0, 4));
}

TEST(GuideSearch, GoesRoundBothWays) {
  GuideSearch search;
  search.look(pages(), QStringLiteral("helix"), {});
  search.goBack();
  EXPECT_EQ(present(search), Place(2, 5));
  search.goOn();
  EXPECT_EQ(present(search), Place(0, 4));
  search.goOn();
  EXPECT_EQ(present(search), Place(0, 13));
}

TEST(GuideSearch, FindsNothingForNoWordsAndStaysCalm) {
  GuideSearch search;
  for (const char* const words : {"", "quark"}) {
    search.look(pages(), QLatin1String(words), {});
    search.goOn();
    search.goBack();
    EXPECT_TRUE(search.hits().empty()) << words;
  }
}

}  // namespace velquon::test
