// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>

namespace velquon {

/// Holds what a window shows, and scrolls it where the window is smaller than the least size that
/// it needs: on a small screen, or with large letters.
class ScrollingContent : public QScrollArea {
 public:
  /// \param content becomes this area's own
  explicit ScrollingContent(QWidget* content);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
};

}  // namespace velquon
