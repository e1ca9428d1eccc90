// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QSizeF>
#include <QWidget>

namespace velquon {

class PrintView;

/// Shows a printed page on its paper, as large as there is room; empty paper until the page is
/// drawn.
class PagePreview : public QWidget {
  Q_OBJECT

 public:
  explicit PagePreview(PrintView& view, QWidget* parent = nullptr);

  /// \param paper points
  void setPaper(QSizeF paper);
  /// The paper with the page as last drawn; null until that is drawn, and while there is no room.
  [[nodiscard]] const QImage& picture() const { return picture_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void drawPicture();

  PrintView& view_;
  QSizeF paper_;
  QImage picture_;
  bool stale_ = true;  ///< the picture is not of this paper or size
  bool due_ = false;   ///< it is drawn with the next round of the event loop
};

}  // namespace velquon
