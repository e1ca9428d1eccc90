// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "app/application.h"
#include "app/chamber_controller.h"
#include "chamber/chamber_settings.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "engine/event_record.h"
#include "projection/projection_view.h"
#include "projection/projector_window.h"
#include "widgets/user_dialogs.h"

namespace velquon::test {

inline constexpr std::uint32_t fixture_seed = 20'240'611;

/// Dialogs that nobody answers: no file is chosen, and what is told is kept.
class SilentDialogs : public UserDialogs {
 public:
  void alert(const QString& title, const QString& message) override;
  void alertAboutFile(const QString& title, const QString& message, const QString& path) override;
  QString fileToOpen(const QString& title, const QString& filter) override;
  QStringList filesToOpen(const QString& title, const QString& filter) override;
  SaveAnswer askToSave(const QString& title, const QString& message) override;
  QString fileToSave(const QString& title, const QString& suggestion, const QString& filter,
                     const QString& suffix) override;

  QStringList alerts;
};

/// The whole program with its windows on the screen, the chamber window active, as it is
/// right after its start.
class ApplicationFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// The seed that the program is started with.
  [[nodiscard]] virtual std::uint32_t seed() const { return fixture_seed; }

  [[nodiscard]] ChamberView& chamber() { return *chamber_; }
  [[nodiscard]] ProjectionView& projection() { return *projection_; }
  [[nodiscard]] ChamberWindow& chamberWindow() { return application_->chamberWindow(); }
  [[nodiscard]] ProjectorWindow& projectorWindow() { return application_->projectorWindow(); }
  [[nodiscard]] ChamberController& controller() { return application_->controller(); }

  /// A control of either window by its object name.
  template <typename Widget>
  [[nodiscard]] Widget& control(const char* name) {
    auto* widget = chamberWindow().findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) {
      widget = projectorWindow().findChild<Widget*>(QLatin1String(name));
    }
    if (widget == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *widget;
  }

  /// A menu item by its object name, found in the chamber window's menu bar.
  [[nodiscard]] QAction& item(const char* name);
  /// Chooses a menu item.
  void choose(const char* name) { item(name).trigger(); }
  void clickButton(const char* name);

  /// Activates a window and waits until it is active.
  void activate(QWidget& window);
  /// Activates the live track and waits until it is: until then its item would activate it again.
  void showTrackWindow();
  /// Brings up another window of the desktop that becomes active.
  void activateAnotherProgram();

  /// Shows an event of the test's own making.
  void showEvent(std::span<const PlotPoint> points);
  /// Shows neither axes nor values, so that what is left of these colours belongs to points.
  void hideAxesAndValues();

  [[nodiscard]] Application& application() { return *application_; }
  /// Asks and tells the user, from the program's start on; silent unless a suite has someone to
  /// answer in his place.
  [[nodiscard]] virtual UserDialogs& dialogs() { return silent_dialogs_; }

 private:
  SilentDialogs silent_dialogs_;
  std::unique_ptr<Application> application_;
  std::unique_ptr<QWidget> another_program_;
  ChamberView* chamber_ = nullptr;
  ProjectionView* projection_ = nullptr;
};

/// The items of menus and of the menus in them.
QList<QAction*> items_of(const QList<QAction*>& actions);
/// The menu item under a window's menu bar with an object name; null without one.
QAction* item_named(const QMainWindow& window, const QString& name);
/// The menu item at a path of titles without their key marks; null without one.
QAction* item_titled(const QMainWindow& window, const QStringList& path);

/// A point of an event.
PlotPoint point_at(double x, double y, double z, std::int16_t code);
/// Points spread over the plane x = 0.
std::vector<PlotPoint> spread_points(int count);

}  // namespace velquon::test
