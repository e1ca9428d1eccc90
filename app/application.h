// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <optional>

#include "model/chamber_model.h"
#include "model/event_numbering.h"
#include "model/measurements.h"
#include "model/projector.h"
#include "model/track_model.h"

namespace velquon {

class ChamberController;
class ChamberWindow;
class Commands;
class EventDocuments;
class EventExports;
class EventTelling;
class GLPanel;
class HelpCommands;
class MeasurementFiles;
class MeasurementsWindow;
class Menus;
class PictureFiles;
class Presentations;
class ProjectorWindow;
class RecordWindow;
class ScreenRatio;
class ScreenRoom;
class TrackWindow;
class UserDialogs;

/// The program's model, windows, menus and controllers, built and joined.
class Application : public QObject {
  Q_OBJECT

 public:
  /// Needs the QApplication.
  /// \param seed    seed of the random generator; without one the clock's
  /// \param dialogs asks and tells the user
  Application(std::optional<std::uint32_t> seed, UserDialogs& dialogs);
  ~Application() override;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  Application(Application&&) = delete;
  Application& operator=(Application&&) = delete;

  /// Puts the chamber and projector windows on the screen, side by side.
  void showWindows();
  /// Whether the views of the windows that are shown have OpenGL contexts.
  [[nodiscard]] bool viewsCanDraw() const;

  [[nodiscard]] ChamberModel& model() { return model_; }
  [[nodiscard]] Menus& menus() { return *menus_; }
  [[nodiscard]] ChamberWindow& chamberWindow() { return *chamber_window_; }
  [[nodiscard]] ProjectorWindow& projectorWindow() { return *projector_window_; }
  [[nodiscard]] TrackWindow& trackWindow();
  [[nodiscard]] RecordWindow& recordWindow();
  [[nodiscard]] Measurements& measurements() { return measurements_; }
  [[nodiscard]] MeasurementsWindow& measurementsWindow();
  [[nodiscard]] ChamberController& controller() { return *controller_; }
  [[nodiscard]] EventDocuments& documents() { return *documents_; }

  /// Notes what the projector's tool reads, a row for each reading, and shows the measurements.
  void recordReadings();

  /// Asks about measurements that are not saved before the last window is closed, which ends the
  /// program.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Gives a window the menus and has it take dropped files.
  void join(GLPanel& window);
  void addTrackCommands();
  void addFileCommands();
  void addWindowCommands();
  void addPresentation();
  /// Takes what is being typed into the windows.
  void finishTyping();
  /// Whether the program may end; asks about measurements that are not saved.
  [[nodiscard]] bool mayEnd();
  /// Ends the program if it may.
  void quit();

  ChamberModel model_;
  Projector projector_;
  TrackModel track_model_;
  Measurements measurements_;
  std::unique_ptr<ScreenRoom> screen_room_;
  std::unique_ptr<ScreenRatio> screen_ratio_;
  std::unique_ptr<Menus> menus_;
  std::unique_ptr<ChamberWindow> chamber_window_;
  std::unique_ptr<ProjectorWindow> projector_window_;
  std::unique_ptr<TrackWindow> track_window_;                ///< made when first asked for
  std::unique_ptr<RecordWindow> record_window_;              ///< likewise
  std::unique_ptr<MeasurementsWindow> measurements_window_;  ///< likewise
  std::unique_ptr<ChamberController> controller_;
  std::unique_ptr<EventDocuments> documents_;
  std::unique_ptr<EventExports> exports_;
  std::unique_ptr<PictureFiles> pictures_;
  std::unique_ptr<EventNumbering> numbering_;
  std::unique_ptr<EventTelling> telling_;
  std::unique_ptr<MeasurementFiles> measurement_files_;
  std::unique_ptr<HelpCommands> help_;
  UserDialogs& dialogs_;
  std::unique_ptr<Presentations> presentations_;
  std::unique_ptr<Commands> commands_;
};

}  // namespace velquon
