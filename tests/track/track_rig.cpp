#include "tests/track/track_rig.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <stdexcept>

namespace velquon::testing {

namespace {

constexpr int patience = 30'000;  // milliseconds

void insist(bool true_thing, const char* what) {
  if (!true_thing) {
    throw std::runtime_error(what);
  }
}

QAction* add_choice(QMenu& menu, const char* title, bool checked) {
  QAction* item = menu.addAction(QLatin1String(title));
  item->setCheckable(true);
  item->setChecked(checked);
  return item;
}

std::vector<QPoint> pixels_of(const QImage& picture, bool (*is_meant)(QRgb)) {
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

void KeyWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) {
    if (isActiveWindow()) {
      Q_EMIT becameKey();
    } else {
      Q_EMIT resignedKey();
    }
  }
}

TrackRig::TrackRig()
    : window(new KeyWindow),
      panel(new TrackPanel),
      view(panel->track_view()),
      slider(panel->vSlider()) {
  window->setCentralWidget(panel);
  makeMenus();
  panel->setItems(inject_item, clear_item);
  controller = std::make_unique<TrackController>(
      TrackOutlets{.track_window = window,
                   .track_view = view,
                   .vSlider = slider,
                   .activate_item = activate_item,
                   .inject_item = inject_item,
                   .particle_selector = particle_menu.menuAction(),
                   .direction_selector = direction_menu.menuAction(),
                   .speed_selector = velocity_menu.menuAction(),
                   .screen_speed = speed_menu.menuAction(),
                   .electron_item = electron_item,
                   .positron_item = positron_item,
                   .RtoL_item = RtoL_item,
                   .LtoR_item = LtoR_item,
                   .v_item = v_item,
                   .two_v_item = two_v_item,
                   .three_v_item = three_v_item,
                   .speed_menu = &speed_menu,
                   .slower_item = slower_item,
                   .faster_item = faster_item,
                   .default_item = default_item,
                   .action_menu = &action_menu,
                   .settings_menu = &settings_menu,
                   .event_menu = &event_menu,
                   .open_item = &open_item,
                   .save_item = &save_item});
  QObject::connect(window, &KeyWindow::becameKey, controller.get(),
                   &TrackController::windowDidBecomeKey);
  QObject::connect(window, &KeyWindow::resignedKey, controller.get(),
                   &TrackController::windowDidResignKey);
  controller->awakeFromNib();
}

TrackRig::~TrackRig() {
  delete window;
}

void TrackRig::makeMenus() {
  new_event_item = action_menu.addAction(QStringLiteral("New Event"));
  show_axes_item = settings_menu.addAction(QStringLiteral("Show Axes"));
  settings_menu.addSeparator();
  axis_menu.setTitle(QStringLiteral("Rotation Axis"));
  settings_menu.addMenu(&axis_menu);
  pion_item = event_menu.addAction(QStringLiteral("Negative Pion"));

  track_menu.setTitle(QStringLiteral("Track"));
  activate_item = track_menu.addAction(QStringLiteral("Activate"));
  inject_item = track_menu.addAction(QStringLiteral("Inject Particle"));
  inject_item->setShortcut(QKeySequence(QStringLiteral("Ctrl+J")));
  clear_item = track_menu.addAction(QStringLiteral("Clear Screen"));
  clear_item->setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
  electron_item = add_choice(particle_menu, "Electron", true);
  positron_item = add_choice(particle_menu, "Positron", false);
  LtoR_item = add_choice(direction_menu, "Left to Right", true);
  RtoL_item = add_choice(direction_menu, "Right to Left", false);
  v_item = add_choice(velocity_menu, "v", false);
  two_v_item = add_choice(velocity_menu, "2v", true);
  three_v_item = add_choice(velocity_menu, "3v", false);
  faster_item = speed_menu.addAction(QStringLiteral("Faster"));
  default_item = speed_menu.addAction(QStringLiteral("Default"));
  slower_item = speed_menu.addAction(QStringLiteral("Slower"));
  for (QMenu* menu : {&particle_menu, &direction_menu, &velocity_menu, &speed_menu}) {
    track_menu.addMenu(menu);
  }
  window->menuBar()->addMenu(&track_menu);
}

void TrackRig::activate() {
  activate_item->trigger();
  insist(QTest::qWaitForWindowExposed(window) && QTest::qWaitForWindowActive(window) &&
             QTest::qWaitFor([this] { return controller->activated() && view->passes() > 0; }),
         "the track window did not become active");
}

void TrackRig::deactivate() {
  activate_item->trigger();
  // The window manager takes a while to give the keyboard to somebody else.
  insist(
      QTest::qWaitFor([this] { return QGuiApplication::focusWindow() != window->windowHandle(); }),
      "the hidden track window still has the keyboard");
}

void TrackRig::injectAndHold() {
  view->setTimerSecs(1000.0);
  inject_item->trigger();
  insist(QTest::qWaitFor(
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
  insist(QTest::qWaitForWindowExposed(window) &&
             QTest::qWaitFor([this, before] { return view->passes() > before; }),
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
  return QTest::qWaitFor(
      [this] { return view->trackTimer() != nullptr && !view->trackTimer()->isActive(); },
      patience);
}

std::vector<QPoint> TrackRig::whitePixels() const {
  return pixels_of(picture(), [](QRgb color) { return (color & 0xFFFFFFU) == 0xFFFFFFU; });
}

std::vector<QPoint> TrackRig::redPixels() const {
  return pixels_of(picture(), [](QRgb color) { return (color & 0xFFFFFFU) == 0xFF0000U; });
}

}  // namespace velquon::testing
