// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTextBrowser>

namespace velquon {

/// Shows pages of the guide: tables with lines and a marked head, pictures no wider than the window,
/// text of a size that can be chosen.
class GuideBrowser : public QTextBrowser {
  Q_OBJECT

 public:
  explicit GuideBrowser(QWidget* parent = nullptr);

  /// Makes the text larger, or smaller by negative steps, within what can be read. A step is a point.
  void enlarge(int steps);
  /// Gives the text the size that it began with.
  void resetSize() { enlarge(-steps_); }
  [[nodiscard]] bool canEnlarge() const;
  [[nodiscard]] bool canReduce() const;

  /// Scrolls so that a block of the page stands at the top.
  void goToBlock(int number);

 Q_SIGNALS:
  void sizeChanged();

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void dressTables();
  void fitPictures();

  int steps_ = 0;
  int turned_ = 0;  ///< of the wheel, towards the next step
};

}  // namespace velquon
