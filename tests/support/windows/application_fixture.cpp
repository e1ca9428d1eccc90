// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/application_fixture.h"

#include <QAbstractButton>
#include <QDeadlineTimer>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "tests/support/windows/waiting.h"
#include "tests/support/windows/window_manager.h"
#include "track/track_controller.h"
#include "track/track_window.h"

namespace velquon::test {

namespace {

QString plain_title(const QAction& action) {
  return action.text().remove(QLatin1Char('&'));
}

QAction* find_named(const QList<QAction*>& actions, const QString& name) {
  for (QAction* const action : actions) {
    if (action->objectName() == name) {
      return action;
    }
    if (action->menu() != nullptr) {
      if (QAction* const found = find_named(action->menu()->actions(), name)) {
        return found;
      }
    }
  }
  return nullptr;
}

}  // namespace

void SilentDialogs::alert(const QString& title, const QString& message) {
  alerts << title + QStringLiteral(": ") + message;
}

void SilentDialogs::alertAboutFile(const QString& title, const QString& message,
                                   const QString& path) {
  alert(title, message + QStringLiteral(" / ") + path);
}

QString SilentDialogs::fileToOpen(const QString& /*title*/, const QString& /*filter*/) {
  return {};
}

QStringList SilentDialogs::filesToOpen(const QString& /*title*/, const QString& /*filter*/) {
  return {};
}

SaveAnswer SilentDialogs::askToSave(const QString& title, const QString& message) {
  alert(title, message);
  return SaveAnswer::cancel;
}

QString SilentDialogs::fileToSave(const QString& /*title*/, const QString& /*suggestion*/,
                                  const QString& /*filter*/, const QString& /*suffix*/) {
  return {};
}

void ApplicationFixture::SetUp() {
  application_ = std::make_unique<Application>(seed(), dialogs());
  chamber_ = &control<ChamberView>("chamber_view");
  projection_ = &control<ProjectionView>("projection_view");
  application_->showWindows();
  ASSERT_TRUE(wait_until_exposed(&chamberWindow()));
  ASSERT_TRUE(wait_until_exposed(&projectorWindow()));
  activate(chamberWindow());
  ASSERT_TRUE(wait_until([this] { return chamber_->passes() > 0 && projection_->passes() > 0; }));
}

void ApplicationFixture::TearDown() {
  EXPECT_TRUE(silent_dialogs_.alerts.isEmpty())
      << silent_dialogs_.alerts.join(QLatin1Char('\n')).toStdString();
  another_program_.reset();
  application_.reset();
}

QAction& ApplicationFixture::item(const char* name) {
  QAction* const found = item_named(chamberWindow(), QLatin1String(name));
  if (found == nullptr) {
    throw std::runtime_error(std::string("no menu item ") + name);
  }
  return *found;
}

void ApplicationFixture::clickButton(const char* name) {
  QTest::mouseClick(&control<QAbstractButton>(name), Qt::LeftButton);
}

void ApplicationFixture::activate(QWidget& window) {
  const QDeadlineTimer end(longest_wait);
  do {
    window.activateWindow();
    // A window that came up just now may still be given the focus.
    ASSERT_TRUE(wait_for_window_manager());
  } while (!window.isActiveWindow() && !end.hasExpired());
  const QWidget* const active = QApplication::activeWindow();
  ASSERT_TRUE(window.isActiveWindow())
      << window.windowTitle().toStdString() << (window.isVisible() ? "" : ", hidden")
      << "; active: " << (active != nullptr ? active->windowTitle().toStdString() : "none");
}

void ApplicationFixture::showTrackWindow() {
  choose("activate_item");
  ASSERT_TRUE(wait_until([&] {
    TrackWindow& window = application().trackWindow();
    return window.isActiveWindow() && window.controller().activated();
  }));
}

void ApplicationFixture::activateAnotherProgram() {
  another_program_ = std::make_unique<QWidget>();
  another_program_->setGeometry(500, 700, 200, 100);
  another_program_->show();
  ASSERT_TRUE(wait_until_exposed(another_program_.get()));
  activate(*another_program_);
}

void ApplicationFixture::showEvent(std::span<const PlotPoint> points) {
  ChamberModel& model = controller().model();
  const ShownEvent shown = *model.shown();
  model.show({.points = {points.begin(), points.end()}, .values = shown.values}, shown.name, {});
  controller().displayViews();
}

void ApplicationFixture::hideAxesAndValues() {
  chamber().set_show_axes(false);
  chamber().set_show_values(false);
}

QList<QAction*> items_of(const QList<QAction*>& actions) {
  QList<QAction*> items;
  for (QAction* const action : actions) {
    items += action->menu() != nullptr ? items_of(action->menu()->actions()) : QList{action};
  }
  return items;
}

QAction* item_named(const QMainWindow& window, const QString& name) {
  return find_named(window.menuBar()->actions(), name);
}

QAction* item_titled(const QMainWindow& window, const QStringList& path) {
  QList<QAction*> actions = window.menuBar()->actions();
  QAction* found = nullptr;
  for (const QString& title : path) {
    const auto match = std::ranges::find_if(
        actions, [&](const QAction* action) { return plain_title(*action) == title; });
    if (match == actions.end()) {
      return nullptr;
    }
    found = *match;
    actions = found->menu() != nullptr ? found->menu()->actions() : QList<QAction*>();
  }
  return found;
}

PlotPoint point_at(double x, double y, double z, std::int16_t code) {
  return {{x, y, z, 1.0}, 0.0, code};
}

std::vector<PlotPoint> spread_points(int count) {
  std::vector<PlotPoint> points(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    points[static_cast<std::size_t>(i)] = point_at(0.0, i % 701 - 350, i % 613 - 306, 3);
  }
  return points;
}

}  // namespace velquon::test
