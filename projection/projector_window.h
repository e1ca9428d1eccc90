// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <memory>

#include "model/listeners.h"
#include "model/projector.h"
#include "projection/projection_view.h"
#include "widgets/gl_panel.h"

class QAbstractButton;

namespace Ui {
class ProjectorWindow;
}

namespace velquon {

struct ToldEvent;
class ViewScrollArea;

/// The window of the projection view with the buttons of its planes, zooms and tools and what the
/// tools read. Each button has a key.
class ProjectorWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param projector what the window shows an event with
  explicit ProjectorWindow(Projector& projector);
  ~ProjectorWindow() override;

  [[nodiscard]] ProjectionView* view() const { return view_; }
  [[nodiscard]] ViewScrollArea* area() const;

  /// Tells the shown event beside the picture and, to who cannot see it, in words, unless there is
  /// something measured to tell.
  void tell(const ToldEvent& event);
  void showLegend(bool show);
  /// Makes the status line as high as a text takes in it.
  void makeRoomForStatus(const QString& longest);
  /// What the window says that the chosen tool reads, a line each.
  [[nodiscard]] QString shownReadings() const;

 Q_SIGNALS:
  /// What the chosen tool reads is to be put into the list of measurements.
  void recordAsked();

 private:
  void connectButtons();
  void connectKeys();
  void zoomBy(ZoomTurn turn);
  void showChoices();
  void showReading();
  void describePicture();

  std::unique_ptr<Ui::ProjectorWindow> ui_;
  Projector& projector_;
  ProjectionView* view_;
  QString event_in_words_;
  Subscription changes_;
};

}  // namespace velquon
