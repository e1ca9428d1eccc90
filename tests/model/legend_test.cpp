// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/legend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "events/event_types.h"
#include "tests/model/made_events.h"

namespace velquon::test {

namespace {

EventTracks of_codes(const std::vector<std::int16_t>& codes) {
  EventTracks tracks;
  for (const std::int16_t code : codes) {
    tracks.points.push_back({.coords = {}, .code = code});
  }
  return tracks;
}

/// An entry as a text: "3 π⁻", "4 decay of π⁻", "3 π|μ".
std::string text_of(const LegendEntry& entry) {
  std::string text = std::to_string(entry.code) + " ";
  if (entry.meaning == LegendMeaning::decay_point) {
    text += "decay of ";
  }
  if (entry.particle != nullptr) {
    text += entry.particle->symbol;
  }
  for (const std::string_view family : entry.families) {
    text += family == entry.families.front() ? "" : "|";
    text += family;
  }
  return text;
}

std::vector<std::string> texts_of(const EventTracks& tracks, bool answers_shown = true) {
  std::vector<std::string> texts;
  for (const LegendEntry& entry : legend_of(tracks, answers_shown)) {
    texts.push_back(text_of(entry));
  }
  return texts;
}

/// The legends of many events of a type.
std::set<std::vector<std::string>> legends_of(std::size_t type, const ChamberValues& values) {
  std::set<std::vector<std::string>> legends;
  constexpr unsigned most_seeds = 400;
  for (unsigned seed = 1; seed <= most_seeds; ++seed) {
    legends.insert(texts_of(made(type, values, seed)));
  }
  return legends;
}

using Texts = std::vector<std::string>;

}  // namespace

TEST(LegendTest, APionsChainHasAnEntryForEachParticleThatIsSeen) {
  const auto legends = legends_of(negative_pion, usual);
  EXPECT_TRUE(legends.contains(Texts{"3 π⁻"}));
  EXPECT_TRUE(legends.contains(Texts{"3 π⁻", "4 μ⁻"}));
}

TEST(LegendTest, AMuonsElectronHasItsOwnCode) {
  constexpr ChamberValues slow{.B_field = 3.0F, .sides_cm = 1000.0F, .kinetic_Mev = 0.1F};
  EXPECT_TRUE(legends_of(negative_muon, slow).contains(Texts{"3 μ⁻", "4 e⁻"}));
}

TEST(LegendTest, TheLeptonsOfAPairExchangeTheirCodesOnStraightLines) {
  EXPECT_TRUE(legends_of(neutral_pion, usual).contains(Texts{"3 e⁻", "4 e⁺"}));
  EXPECT_TRUE(legends_of(neutral_pion, without_field).contains(Texts{"4 e⁻", "3 e⁺"}));
}

TEST(LegendTest, TwoPairsShareTheirEntries) {
  for (unsigned seed = 1; seed < 400; ++seed) {
    const EventTracks tracks = made(neutral_pion, usual, seed);
    if (tracks.record->particles().size() == 7) {
      EXPECT_EQ(legend_of(tracks, true).size(), 2U);
      return;
    }
  }
  FAIL() << "no event with two pairs";
}

TEST(LegendTest, ALambdasEntriesComeInTheOrderInWhichTheyAppear) {
  const auto legends = legends_of(lambda_type, usual);
  EXPECT_TRUE(legends.contains(Texts{}));
  EXPECT_TRUE(legends.contains(Texts{"2 π⁻", "3 p"}) || legends.contains(Texts{"3 p", "2 π⁻"}));
  EXPECT_TRUE(legends.contains(Texts{"3 e⁻", "4 e⁺"}));
}

TEST(LegendTest, ADecayPointWhoseDaughterLeftNoTrackIsNamedAsWhatItIs) {
  // Near the wall the muon's first step leaves the chamber.
  constexpr ChamberValues fast{.B_field = 3.0F, .sides_cm = 1000.0F, .kinetic_Mev = 60.0F};
  constexpr unsigned most_seeds = 20'000;
  for (unsigned seed = 1; seed < most_seeds; ++seed) {
    const EventTracks tracks = made(negative_pion, fast, seed);
    const auto particles = tracks.record->particles();
    if (particles.size() == 3 && particles[1].points == 0) {
      EXPECT_EQ(texts_of(tracks), (Texts{"3 π⁻", "4 decay of π⁻"}));
      return;
    }
  }
  FAIL() << "no pion that decayed beside the wall";
}

TEST(LegendTest, AFilesEventHasItsCodesAndWhatTheyMayBe) {
  EXPECT_EQ(texts_of(of_codes({4, 3, 3, 9, 2, 5, 6, 0, -7})),
            (Texts{"4 μ|e", "3 π|μ|e|p", "9 ", "2 π", "5 e", "6 ", "0 ", "-7 "}));
}

TEST(LegendTest, HiddenAnswersLeaveTheCodesAlone) {
  const EventTracks tracks = made(negative_pion, usual, 1);
  ASSERT_FALSE(tracks.points.empty());
  for (const LegendEntry& entry : legend_of(tracks, false)) {
    EXPECT_EQ(entry.particle, nullptr);
    EXPECT_EQ(entry.meaning, LegendMeaning::not_told);
    EXPECT_TRUE(entry.families.empty());
  }
  EXPECT_EQ(texts_of(tracks, false).front(), "3 ");
}

TEST(LegendTest, ColoursAreThoseOfTheTable) {
  const auto entries = legend_of(of_codes({2, 3, 4, 5, 6, 7, 8}), true);
  std::vector<std::size_t> rows;
  rows.reserve(entries.size());
  for (const LegendEntry& entry : entries) {
    rows.push_back(entry.color);
  }
  EXPECT_EQ(rows, (std::vector<std::size_t>{4, 0, 1, 2, 3, 4, 4}));
}

/// What the decay chains give their tracks is what the table of a file's codes names.
TEST(LegendTest, EveryTrackOfAChainIsOfAFamilyThatItsCodeNames) {
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    for (const ChamberValues& values : {usual, without_field}) {
      for (unsigned seed = 1; seed <= 300; ++seed) {
        for (const LegendEntry& entry : legend_of(made(type, values, seed), true)) {
          if (entry.meaning != LegendMeaning::particle) {
            continue;
          }
          const auto families = families_of_code(entry.code);
          const bool is_named = std::ranges::any_of(families, [&](std::string_view family) {
            return entry.particle->symbol.starts_with(family);
          });
          EXPECT_TRUE(is_named) << text_of(entry);
        }
      }
    }
  }
}

}  // namespace velquon::test
