// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Icons, chosen buttons and marks in the palettes that desktops have: what tells something must
// stand out from what is around it.

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QStyle>
#include <QToolBar>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"
#include "widgets/contrast.h"
#include "widgets/legend_strip.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

struct Desktop {
  const char* name;
  QRgb window;
  QRgb text;
  QRgb highlight;
};

void PrintTo(const Desktop& desktop, std::ostream* out) {
  *out << desktop.name;
}

QPalette palette_of(const Desktop& desktop) {
  // Qt works the other shades out from these two.
  QPalette palette(QColor(desktop.window), QColor(desktop.window));
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    palette.setColor(role, QColor(desktop.text));
  }
  palette.setColor(QPalette::Highlight, QColor(desktop.highlight));
  return palette;
}

/// Takes the desktop's palette while the program runs, as when a person chooses another theme.
class PaletteTest : public ApplicationFixture, public testing::WithParamInterface<Desktop> {
 protected:
  void SetUp() override {
    usual_ = QApplication::palette();
    ApplicationFixture::SetUp();
    QApplication::setPalette(palette_of(GetParam()));
    handle_waiting_events();
  }
  void TearDown() override {
    ApplicationFixture::TearDown();
    QApplication::setPalette(usual_);
  }

  [[nodiscard]] QAbstractButton& toolBarButton(const char* action) {
    auto& bar = control<QToolBar>("chamber_tool_bar");
    return dynamic_cast<QAbstractButton&>(*bar.widgetForAction(&item(action)));
  }

 private:
  QPalette usual_;
};

/// The menu that an item is in.
QMenu* menu_of(const QAction& item) {
  for (QObject* const holder : item.associatedObjects()) {
    if (auto* const menu = qobject_cast<QMenu*>(holder)) {
      return menu;
    }
  }
  throw std::runtime_error("an item of no menu");
}

QImage picture_on_screen(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// How many pixels of an area stand out from a colour.
int pixels_standing_out(const QImage& picture, const QRect& area, const QColor& from) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      count += contrast(picture.pixelColor(x, y), from) >= least_contrast ? 1 : 0;
    }
  }
  return count;
}

/// The pixels of two pictures of one size that can be told apart.
int pixels_told_apart(const QImage& left, const QImage& right) {
  int count = 0;
  for (int y = 0; y < left.height(); ++y) {
    for (int x = 0; x < left.width(); ++x) {
      count += contrast(left.pixelColor(x, y), right.pixelColor(x, y)) >= least_contrast ? 1 : 0;
    }
  }
  return count;
}

TEST_P(PaletteTest, EveryLineOfAnIconStandsOutFromItsButton) {
  const QColor button = QApplication::palette().color(QPalette::Button);
  const std::vector<std::pair<const char*, QIcon>> icons{
      {"new_event", item("new_event_item").icon()},
      {"replay", item("replay_item").icon()},
      {"rotate", item("rotate_item").icon()},
      {"reset_orientation", item("reset_orientation_item").icon()},
      {"tape", control<QAbstractButton>("tape_tool").icon()},
      {"grab", control<QAbstractButton>("grab_tool").icon()},
      {"curve", control<QAbstractButton>("curve_tool").icon()},
      {"angle", control<QAbstractButton>("angle_tool").icon()}};
  for (const auto& [name, icon] : icons) {
    const QImage drawing = icon.pixmap(QSize(24, 24), 1.0).toImage();
    int lines = 0;
    for (int y = 0; y < drawing.height(); ++y) {
      for (int x = 0; x < drawing.width(); ++x) {
        const QColor color = drawing.pixelColor(x, y);
        if (color.alpha() == 255) {
          ++lines;
          EXPECT_GE(contrast(color, button), least_contrast)
              << name << ' ' << color.name().toStdString();
        }
      }
    }
    EXPECT_GT(lines, 20) << name;
  }
}

TEST_P(PaletteTest, IconsAreSeenOnTheirButtonsAtOnce) {
  const QColor window = QApplication::palette().color(QPalette::Window);
  for (const char* const name :
       {"new_event_item", "replay_item", "rotate_item", "reset_orientation_item"}) {
    QAbstractButton& button = toolBarButton(name);
    const QImage seen = picture_on_screen(button);
    const QRect left_part(0, 0, button.iconSize().width() + 6, seen.height());
    EXPECT_GT(pixels_standing_out(seen, left_part, window), 40) << name;
  }
  for (const char* const name : {"tape_tool", "grab_tool", "curve_tool", "angle_tool"}) {
    const QImage seen = picture_on_screen(control<QAbstractButton>(name));
    EXPECT_GT(pixels_standing_out(seen, seen.rect().adjusted(4, 4, -4, -4), window), 40) << name;
  }
}

TEST_P(PaletteTest, TheButtonOfABarThatIsTooShortIsSeen) {
  chamberWindow().resize(300, chamberWindow().height());
  auto& button = control<QAbstractButton>("qt_toolbar_ext_button");
  ASSERT_TRUE(wait_until([&] { return button.isVisible(); }));
  const QImage seen = picture_on_screen(button);
  EXPECT_GT(pixels_standing_out(seen, seen.rect(), QApplication::palette().color(QPalette::Window)),
            15);
}

TEST_P(PaletteTest, AChosenButtonIsToldFromTheOthers) {
  for (const auto& [name, another] :
       {std::pair{"xz_button", "xy_button"}, std::pair{"zoom_2", "zoom_1"},
        std::pair{"grab_tool", "tape_tool"}}) {
    clickButton(another);
    const QImage left_alone = picture_on_screen(control<QAbstractButton>(name));
    clickButton(name);
    const QImage taken = picture_on_screen(control<QAbstractButton>(name));
    EXPECT_GT(pixels_told_apart(left_alone, taken), 60) << name;
  }
}

TEST_P(PaletteTest, TheMarksOfASliderStandOutFromTheWindow) {
  const QColor window = QApplication::palette().color(QPalette::Window);
  for (const char* const name : {"magfield_slider", "size_slider", "energy_slider"}) {
    auto& slider = control<ValueSlider>(name);
    const QImage seen = picture_on_screen(slider);
    constexpr int height_of_marks = 3;
    const QRect below(0, seen.height() - height_of_marks, seen.width(), height_of_marks);
    EXPECT_GE(pixels_standing_out(seen, below, window), slider.tickMarks()) << name;
  }
}

TEST_P(PaletteTest, TheMarkOfAChosenItemIsToldFromNone) {
  for (const char* const name : {"axes_item", "mon_projector"}) {
    QAction& choice = item(name);
    QMenu& menu = *menu_of(choice);
    menu.popup(chamberWindow().mapToGlobal(QPoint(50, 50)));
    ASSERT_TRUE(wait_until([&] { return menu.isVisible(); }));
    const QRect place = menu.actionGeometry(&choice);
    choice.setChecked(false);
    const QImage without = picture_on_screen(menu).copy(place);
    choice.setChecked(true);
    const QImage with = picture_on_screen(menu).copy(place);
    menu.close();
    EXPECT_GT(pixels_told_apart(without, with), 15) << name;
  }
}

TEST_P(PaletteTest, LegendAndStatusLineCanBeReadAndTheirChipsSeen) {
  constexpr double least_for_letters = 4.5;
  choose("new_event_item");
  const QColor window = QApplication::palette().color(QPalette::Window);
  for (const char* const name :
       {"chamber_legend", "projector_legend", "chamber_status", "projector_status"}) {
    auto& strip = control<QWidget>(name);
    const QImage seen = picture_on_screen(strip);
    double best = 0.0;
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        best = std::max(best, contrast(seen.pixelColor(x, y), window));
      }
    }
    EXPECT_GE(best, least_for_letters) << name;
    EXPECT_GT(pixels_standing_out(seen, seen.rect(), window), 40) << name;
  }
  // The frame of a chip stands out from the window, and what is in it from the black there.
  const auto& legend = control<LegendStrip>("chamber_legend");
  const QImage seen = picture_on_screen(control<QWidget>("chamber_legend"));
  for (const LegendLine& line : legend.lines()) {
    EXPECT_GE(contrast(*line.color, Qt::black), least_contrast);
    bool is_there = false;
    for (int x = 0; x < seen.width(); ++x) {
      is_there |= seen.pixelColor(x, seen.height() / 2) == *line.color;
    }
    EXPECT_TRUE(is_there) << line.symbol.toStdString();
  }
}

TEST_P(PaletteTest, TheLineOfTheFocusStandsOutFromWindowAndPicture) {
  const QColor window = QApplication::palette().color(QPalette::Window);
  activate(chamberWindow());
  chamber().setFocus();
  auto& line = control<QWidget>("chamber_focus_line");
  const QColor seen = picture_on_screen(line).pixelColor(line.rect().center());
  EXPECT_GE(contrast(seen, window), least_contrast);
  // In a black window it is the only line there is.
  EXPECT_GE(contrast(seen, Qt::black), least_contrast);
}

INSTANTIATE_TEST_SUITE_P(Desktops, PaletteTest,
                         testing::Values(Desktop{"Light", 0xFFEFEFEF, 0xFF000000, 0xFF308CC6},
                                         Desktop{"Dark", 0xFF353535, 0xFFFFFFFF, 0xFF2A82DA},
                                         Desktop{"Black", 0xFF000000, 0xFFFFFFFF, 0xFF00007F},
                                         Desktop{"DarkBlue", 0xFF1B1E2B, 0xFFD0D4E0, 0xFF3A3F58},
                                         Desktop{"White", 0xFFFFFFFF, 0xFF000000, 0xFFFFFF00}),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace

}  // namespace velquon::test
