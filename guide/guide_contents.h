// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTreeWidget>
#include <vector>

#include "guide/guide_pages.h"

namespace velquon {

/// The headings of the guide's pages as a tree: a page each, and what it has under its title.
class GuideContents : public QTreeWidget {
  Q_OBJECT

 public:
  explicit GuideContents(QWidget* parent = nullptr);

  void setPages(const std::vector<GuidePage>& pages);
  /// Width that shows the headings in full, within limits.
  [[nodiscard]] int roomForHeadings() const;
  /// Marks the page that is shown, without choosing it.
  /// \param page an index of the pages
  void showPage(std::size_t page);

 Q_SIGNALS:
  /// The user chose a heading.
  /// \param page  an index of the pages
  /// \param block number of the heading's block in the page
  void chosen(std::size_t page, int block);

 private:
  void choose(const QTreeWidgetItem* item);
};

}  // namespace velquon
