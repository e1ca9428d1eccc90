// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "model/projector.h"
#include "projection/projection_view.h"
#include "widgets/gl_panel.h"

class QAbstractButton;

namespace Ui {
class ProjectorWindow;
}

namespace velquon {

class ViewScrollArea;

/// The window of the projection view with the buttons of its planes, zooms and tools and what the
/// tools read. Each button has a key.
class ProjectorWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param projector what the window shows an event with; must outlive the window
  explicit ProjectorWindow(Projector& projector);
  ~ProjectorWindow() override;

  [[nodiscard]] ProjectionView* view() const { return view_; }
  [[nodiscard]] ViewScrollArea* area() const;
  /// What the window says that the chosen tool reads, a line each.
  [[nodiscard]] QString shownReadings() const;

 Q_SIGNALS:
  /// What the chosen tool reads is to be put into the list of measurements.
  void recordAsked();

 private:
  void connectButtons();
  void connectKeys();
  void zoomBy(ZoomTurn turn);
  void showReading();

  std::unique_ptr<Ui::ProjectorWindow> ui_;
  Projector& projector_;
  ProjectionView* view_;
};

}  // namespace velquon
