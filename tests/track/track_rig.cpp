// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/track/track_rig.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <stdexcept>

#include "app/track_commands.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

void insist(bool true_thing, const char* what) {
  if (!true_thing) {
    throw std::runtime_error(what);
  }
}

std::vector<QPoint> pixels_where(const QImage& picture, bool (*is_meant)(QRgb)) {
  std::vector<QPoint> places;
  for (int row = 0; row < picture.height(); ++row) {
    for (int column = 0; column < picture.width(); ++column) {
      if (is_meant(picture.pixel(column, row))) {
        places.emplace_back(column, picture.height() - 1 - row);
      }
    }
  }
  return places;
}

}  // namespace

TrackRig::TrackRig()
    : window(new GLPanel),
      panel(new TrackPanel(model)),
      view(panel->track_view()),
      slider(panel->vSlider()) {
  window->setCentralWidget(panel);
  makeMenus();
  controller = std::make_unique<TrackController>(model, *view, *slider, *window);
  add_track_commands(
      commands, menus, model, [this]() -> TrackController& { return *controller; },
      [this] { return view; });
  QObject::connect(window, &GLPanel::becameKey, controller.get(),
                   &TrackController::windowDidBecomeKey);
  QObject::connect(window, &GLPanel::resignedKey, controller.get(),
                   &TrackController::windowDidResignKey);
  controller->awakeFromNib();
}

TrackRig::~TrackRig() {
  delete window;
}

void TrackRig::makeMenus() {
  menus.setupUi(&bar_of_menus);
  window->menuBar()->addMenu(menus.track_menu);
  activate_item = menus.activate_item;
  inject_item = menus.inject_item;
  clear_item = menus.clear_screen_item;
  electron_item = menus.electron_item;
  positron_item = menus.positron_item;
  LtoR_item = menus.LtoR_item;
  RtoL_item = menus.RtoL_item;
  v_item = menus.v_item;
  two_v_item = menus.two_v_item;
  three_v_item = menus.three_v_item;
  faster_item = menus.faster_item;
  default_item = menus.default_item;
  slower_item = menus.slower_item;
}

void TrackRig::activate() {
  activate_item->trigger();
  insist(wait_until_exposed(window) && wait_until_active(window) &&
             wait_until([this] { return controller->activated() && view->passes() > 0; }),
         "the track window did not become active");
}

void TrackRig::deactivate() {
  activate_item->trigger();
  // The window manager takes a while to give the keyboard to somebody else.
  insist(wait_until([this] { return QGuiApplication::focusWindow() != window->windowHandle(); }),
         "the hidden track window still has the keyboard");
}

void TrackRig::injectAndHold() {
  model.setTimerSecs(1000.0);
  inject_item->trigger();
  insist(wait_until(
             [this] { return view->trackTimer() != nullptr && view->trackTimer()->isActive(); }),
         "the run did not start");
  view->trackTimer()->stop();
}

void TrackRig::step(int count) {
  for (int made = 0; made < count; ++made) {
    view->TrackWithTimer(view->trackTimer());
  }
}

void TrackRig::stepHidden(int count) {
  window->hide();
  step(count);
  const int before = view->passes();
  window->show();
  insist(
      wait_until_exposed(window) && wait_until([this, before] { return view->passes() > before; }),
      "the hidden window was not drawn when it came back");
}

void TrackRig::injectAndCircle(int straight_steps, double field, int steps) {
  slider->moveTo(0.0);
  injectAndHold();
  step(straight_steps);
  slider->moveTo(field);
  step(steps);
}

bool TrackRig::waitForEnd() const {
  return wait_until(
      [this] { return view->trackTimer() != nullptr && !view->trackTimer()->isActive(); },
      2 * longest_wait);
}

std::vector<QPoint> TrackRig::whitePixels() const {
  return pixels_where(picture(), [](QRgb color) { return (color & 0xFFFFFFU) == 0xFFFFFFU; });
}

std::vector<QPoint> TrackRig::redPixels() const {
  return pixels_where(picture(), [](QRgb color) { return (color & 0xFFFFFFU) == 0xFF0000U; });
}

}  // namespace velquon::test
