#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <optional>

namespace velquon {

class ChamberController;
class ChamberWindow;
class Menus;
class ProjectorWindow;

/// The program's windows, menus and controllers, built and joined.
class Application : public QObject {
  Q_OBJECT

 public:
  /// Needs the QApplication and GLUT.
  /// \param seed seed of the random generator; without one the clock's
  explicit Application(std::optional<std::uint32_t> seed);
  ~Application() override;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  Application(Application&&) = delete;
  Application& operator=(Application&&) = delete;

  /// Puts the chamber and projector windows on the screen, side by side.
  void showWindows();

  [[nodiscard]] Menus& menus() { return *menus_; }
  [[nodiscard]] ChamberWindow& chamberWindow() { return *chamber_window_; }
  [[nodiscard]] ProjectorWindow& projectorWindow() { return *projector_window_; }
  [[nodiscard]] ChamberController& controller() { return *controller_; }

 private:
  void connectWindowMenu();

  std::unique_ptr<Menus> menus_;
  std::unique_ptr<ChamberWindow> chamber_window_;
  std::unique_ptr<ProjectorWindow> projector_window_;
  std::unique_ptr<ChamberController> controller_;
};

}  // namespace velquon
