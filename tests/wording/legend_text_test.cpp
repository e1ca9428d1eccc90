// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/legend_text.h"

#include <gtest/gtest.h>

#include "widgets/contrast.h"
#include "wording/names.h"

namespace velquon::test {

namespace {

EventTracks of_codes(const std::vector<std::int16_t>& codes) {
  EventTracks tracks;
  for (const std::int16_t code : codes) {
    tracks.points.push_back({.coords = {}, .code = code});
  }
  return tracks;
}

LegendEntry entry_of(LegendMeaning meaning, int pdg, std::int16_t code) {
  return {.code = code,
          .color = track_color_row(code),
          .meaning = meaning,
          .particle = &particle_kind(pdg),
          .families = {}};
}

}  // namespace

TEST(LegendTextTest, AParticleHasItsColourSymbolAndName) {
  const auto lines =
      legend_lines({entry_of(LegendMeaning::particle, -pdg::pion, 3)}, TrackColoring::by_code);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].color, QColor(255, 0, 0));
  EXPECT_EQ(lines[0].symbol, QStringLiteral("π⁻"));
  EXPECT_EQ(lines[0].name, QStringLiteral("Negative pion"));
}

TEST(LegendTextTest, BesideAWhitePictureThereIsNoColour) {
  const auto lines =
      legend_lines({entry_of(LegendMeaning::particle, pdg::proton, 3)}, TrackColoring::white);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_FALSE(lines[0].color.has_value());
  EXPECT_EQ(lines[0].symbol, QStringLiteral("p"));
  EXPECT_EQ(lines[0].name, QStringLiteral("Proton"));
}

TEST(LegendTextTest, ADecayPointTellsWhatDecayed) {
  const auto lines =
      legend_lines({entry_of(LegendMeaning::decay_point, -pdg::pion, 4)}, TrackColoring::by_code);
  EXPECT_EQ(lines[0].symbol, QStringLiteral("•"));
  EXPECT_EQ(lines[0].name, QStringLiteral("Decay of π⁻"));
}

TEST(LegendTextTest, AFilesTracksAreNamedByColourAndByWhatTheyMayBe) {
  const auto entries = legend_of(of_codes({3, 4, 7}), true);
  const auto colored = legend_lines(entries, TrackColoring::by_code);
  ASSERT_EQ(colored.size(), 3U);
  EXPECT_EQ(colored[0].symbol, QStringLiteral("π/μ/e/p"));
  EXPECT_EQ(colored[0].name, QStringLiteral("Red"));
  EXPECT_EQ(colored[2].symbol, QStringLiteral("?"));
  EXPECT_EQ(colored[2].name, QStringLiteral("Light blue"));
  const auto white = legend_lines(entries, TrackColoring::white);
  ASSERT_EQ(white.size(), 2U);
  EXPECT_EQ(white[1].symbol, QStringLiteral("μ/e"));
  EXPECT_EQ(white[1].name, QString());
}

TEST(LegendTextTest, ItCanBeSpoken) {
  const std::vector<LegendEntry> entries{entry_of(LegendMeaning::particle, -pdg::pion, 3),
                                         entry_of(LegendMeaning::particle, pdg::muon, 4)};
  EXPECT_EQ(spoken_legend(entries, TrackColoring::by_code),
            QStringLiteral("Red: Negative pion; Yellow: Negative muon"));
  EXPECT_EQ(spoken_legend(entries, TrackColoring::white),
            QStringLiteral("Negative pion; Negative muon"));
  EXPECT_EQ(spoken_legend({}, TrackColoring::by_code), QString());
}

TEST(LegendTextTest, ColoursOfTracksStandOutFromBlackAndBlueHasItsSymbol) {
  for (const std::int16_t code : std::array<std::int16_t, 5>{2, 3, 4, 5, 7}) {
    const auto line = legend_lines(legend_of(of_codes({code}), true), TrackColoring::by_code)[0];
    EXPECT_GE(contrast(*line.color, Qt::black), least_contrast) << code;
  }
  // Blue is that of the table and darker than that; no chain gives it to a track.
  const auto blue = legend_lines(legend_of(of_codes({6}), true), TrackColoring::by_code)[0];
  EXPECT_LT(contrast(*blue.color, Qt::black), least_contrast);
  EXPECT_FALSE(blue.symbol.isEmpty());
  EXPECT_EQ(blue.name, QStringLiteral("Blue"));
}

}  // namespace velquon::test
