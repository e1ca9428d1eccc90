// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>
#include <vector>

#include "guide/guide_pages.h"
#include "guide/guide_search.h"

class QAction;
class QLabel;
class QLineEdit;
class QToolBar;

namespace velquon {

class GuideBrowser;
class GuideContents;

/// The user's guide in a window of its own: its contents, its pages, a search through all of them,
/// and text of a size that can be chosen.
class GuideWindow : public QWidget {
  Q_OBJECT

 public:
  explicit GuideWindow(QWidget* parent = nullptr);

 private:
  void addReading(QToolBar& bar);
  void addTextSizes(QToolBar& bar);
  void addSearch(QToolBar& bar);
  QAction* addItem(QToolBar& bar, const QString& text, const QString& tip,
                   const QList<QKeySequence>& keys);
  void goTo(std::size_t page, int block);
  void search();
  void showHit();
  /// \param page the one that is shown
  void markHits(std::size_t page);
  void escape();

  std::vector<GuidePage> pages_;
  GuideSearch search_;
  GuideContents* contents_;
  GuideBrowser* browser_;
  QLineEdit* words_ = nullptr;
  QLabel* found_ = nullptr;
};

}  // namespace velquon
