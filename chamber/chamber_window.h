#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "chamber/chamber_settings.h"
#include "widgets/gl_panel.h"

namespace Ui {
class ChamberWindow;
class Menus;
}  // namespace Ui

namespace velquon {

class ChamberView;
class ViewScrollArea;

/// The window of the chamber view with its tool bar and the controls of the chamber values.
class ChamberWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param seed  seed of the random generator; without one the clock's
  /// \param menus items for the tool bar
  ChamberWindow(std::optional<std::uint32_t> seed, const Ui::Menus& menus);
  ~ChamberWindow() override;

  [[nodiscard]] ChamberView* view() const { return view_; }
  [[nodiscard]] ViewScrollArea* area() const;
  [[nodiscard]] ChamberSettingsOutlets settings() const;

 private:
  void fillToolBar(const Ui::Menus& menus);

  std::unique_ptr<Ui::ChamberWindow> ui_;
  ChamberView* view_;
};

}  // namespace velquon
