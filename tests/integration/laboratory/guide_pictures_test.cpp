// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The guide's pictures of the laboratory are what the program shows. With VELQUON_GUIDE_PICTURES naming a
// folder they are made anew there; scripts/guide-pictures does so.

#include <QDir>
#include <QFileInfo>

#include "tests/integration/laboratory/pupil.h"
#include "tests/support/windows/pictures.h"

namespace velquon::test {

namespace {

/// A picture of an event of an exercise: with a measurement on it, or of the chamber.
struct GuidePicture {
  const char* name;
  const char* exercise;
  std::uint32_t seed;
  std::size_t gesture;  ///< the one that is made, of those of the seed
  bool of_chamber;
};

void PrintTo(const GuidePicture& picture, std::ostream* out) {
  *out << picture.name;
}

class GuidePicturesTest : public Pupil, public testing::WithParamInterface<GuidePicture> {
 protected:
  [[nodiscard]] std::uint32_t seed() const override { return GetParam().seed; }

  [[nodiscard]] QImage picture() {
    const auto& [name, exercise, seed, number, of_chamber] = GetParam();
    const Gesture gesture = gestures_of(QLatin1String(exercise), seed).at(number);
    set(gesture);
    goTo(gesture.event);
    if (of_chamber) {
      // The cube without what is beside it, for the width of the guide's window.
      constexpr QRect cube(110, 30, 450, 460);
      return picture_of(chamber()).copy(cube);
    }
    measure(gesture);
    return picture_of(projection());
  }
};

}  // namespace

TEST_P(GuidePicturesTest, ShowsWhatTheProgramShows) {
  // Lines may be laid a pixel beside by another driver.
  constexpr int most_different = 400;
  const QString file = QStringLiteral("/%1.png").arg(QLatin1String(GetParam().name));
  const QImage made = picture();
  if (const QString folder = qEnvironmentVariable("VELQUON_GUIDE_PICTURES"); !folder.isEmpty()) {
    ASSERT_TRUE(made.save(folder + file));
    return;
  }
  const QImage kept(QStringLiteral(GUIDE_PICTURES) + file);
  ASSERT_EQ(kept.size(), made.size());
  EXPECT_LT(differing_pixels(kept.convertToFormat(made.format()), made), most_different);
}

INSTANTIATE_TEST_SUITE_P(Laboratory, GuidePicturesTest,
                         testing::Values(GuidePicture{"curvature", "curvature", 1, 0, false},
                                         GuidePicture{"pairs", "pairs", 2, 0, false},
                                         GuidePicture{"kink", "kink", 3, 0, false},
                                         GuidePicture{"lambda", "lambda", 5, 0, false},
                                         GuidePicture{"chamber", "pairs", 2, 0, true}));

}  // namespace velquon::test
