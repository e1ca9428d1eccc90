// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <memory>
#include <optional>
#include <vector>

class QMainWindow;
class QShortcut;

namespace velquon {

class ViewScrollArea;

/// While one lives, a window fills its screen and shows nothing but its view, as large as there is
/// room for, and a panel beside it. The view stays in its place among the widgets and keeps its
/// context; it covers the menus and controls, which go on working by their keys. Afterwards the
/// window is as it was.
class Presentation : public QObject {
  Q_OBJECT

 public:
  /// \param window on the screen
  /// \param area   holds the view, within the window
  /// \param panel  shown beside the view
  Presentation(QMainWindow& window, ViewScrollArea& area, std::unique_ptr<QWidget> panel);
  ~Presentation() override;
  Presentation(const Presentation&) = delete;
  Presentation& operator=(const Presentation&) = delete;
  Presentation(Presentation&&) = delete;
  Presentation& operator=(Presentation&&) = delete;

  [[nodiscard]] QMainWindow& window() const { return window_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  /// The Escape key was pressed, or the window is no longer on the screen. To be answered from the
  /// event loop.
  void endAsked();

 private:
  void coverAll();
  void uncover();

  QMainWindow& window_;
  ViewScrollArea& area_;
  std::unique_ptr<QWidget> panel_;
  QPointer<QWidget> had_keys_;
  std::optional<QRect> usual_place_;  ///< none for a window that fills the screen anyway
  bool placing_ = false;
  std::vector<QWidget*> covering_;  ///< the area and what it lies in, from the inside
  std::unique_ptr<QShortcut> escape_;
};

}  // namespace velquon
