// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractScrollArea>
#include <QSize>
#include <optional>

namespace velquon {

class GLView;

/// A scrolling area for one OpenGL view. The view fills the area and is told which part of its
/// document it shows, so that the picture moves by being drawn again and not by being shifted.
class ViewScrollArea : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit ViewScrollArea(QWidget* parent = nullptr);

  /// \param view     a child of this area's viewport, to stay there for good
  /// \param document size of what the view can show
  void setView(GLView* view, QSize document);

  /// Scrolls so that a point of the document, y upwards, is the lower left one seen, as far as the
  /// document reaches. It stays there whatever size the area gets, until somebody scrolls.
  void scrollPoint(QPointF point);

  /// Shows the whole document as large as there is room for, on black, with a panel beside it. What
  /// was scrolled to is there again afterwards.
  /// \param panel becomes a child of this area's viewport; null to end the presentation, which
  ///              hides the panel
  void present(QWidget* panel);
  [[nodiscard]] GLView* view() const { return view_; }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void placeView();
  void placePresented();
  void showBars(bool needed);
  void goToPoint();

  GLView* view_ = nullptr;
  QSize document_;
  QWidget* panel_ = nullptr;           ///< there while the view is presented
  std::optional<QPointF> lower_left_;  ///< where it was scrolled to, until somebody scrolls
  bool placing_ = false;               ///< while the bars move by no one's hand
};

}  // namespace velquon
