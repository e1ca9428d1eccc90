// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "widgets/gl_panel.h"

class QToolBar;

namespace Ui {
class ChamberWindow;
}

namespace velquon {

class ChamberModel;
class ChamberSettings;
class ChamberView;
struct ToldEvent;
class ViewScrollArea;

/// The window of the chamber view, with the controls of the chamber values below the view.
class ChamberWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param model what the window shows
  explicit ChamberWindow(ChamberModel& model);
  ~ChamberWindow() override;

  [[nodiscard]] ChamberView* view() const { return view_; }
  [[nodiscard]] ViewScrollArea* area() const;
  /// The tool bar, for the menus to put items into.
  [[nodiscard]] QToolBar* toolBar() const;
  [[nodiscard]] ChamberSettings& settings() { return *settings_; }

  /// Tells the shown event beside the picture and, to who cannot see it, in words.
  void tell(const ToldEvent& event);
  void showLegend(bool show);
  /// Makes the status line as high as a text takes in it.
  void makeRoomForStatus(const QString& longest);
  [[nodiscard]] QString shownStatus() const;

 protected:
  /// Escape and Space stop the turntable where it is, unless what has the focus takes them.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::unique_ptr<Ui::ChamberWindow> ui_;
  ChamberView* view_;
  std::unique_ptr<ChamberSettings> settings_;
};

}  // namespace velquon
