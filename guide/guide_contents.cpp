// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_contents.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>

namespace velquon {

namespace {

constexpr int block_role = Qt::UserRole;

QTreeWidgetItem* item_of(const GuideHeading& heading) {
  auto* const item = new QTreeWidgetItem({heading.text});
  item->setData(0, block_role, heading.block);
  item->setToolTip(0, heading.text);
  return item;
}

}  // namespace

GuideContents::GuideContents(QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName(tr("Contents of the guide"));
  setHeaderHidden(true);
  setFrameShape(QFrame::NoFrame);
  connect(this, &QTreeWidget::currentItemChanged, this, &GuideContents::choose);
  // A heading that is the current one already is gone to again.
  connect(this, &QTreeWidget::itemClicked, this, &GuideContents::choose);
}

int GuideContents::roomForHeadings() const {
  constexpr int least = 230;
  constexpr int most = 400;
  const int beside = 2 * style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  return std::clamp(sizeHintForColumn(0) + beside, least, most);
}

void GuideContents::setPages(const std::vector<GuidePage>& pages) {
  const QSignalBlocker silence(this);
  clear();
  for (const GuidePage& page : pages) {
    QTreeWidgetItem* top = nullptr;
    for (const GuideHeading& heading : page.headings) {
      QTreeWidgetItem* const item = item_of(heading);
      if (top == nullptr) {
        top = item;
        addTopLevelItem(item);
      } else {
        top->addChild(item);
      }
    }
  }
  expandItem(topLevelItem(0));
}

void GuideContents::showPage(std::size_t page) {
  QTreeWidgetItem* const item = topLevelItem(static_cast<int>(page));
  const QTreeWidgetItem* const now = currentItem();
  if (item == nullptr || now == item || (now != nullptr && now->parent() == item)) {
    return;
  }
  const QSignalBlocker silence(this);
  setCurrentItem(item);
}

void GuideContents::choose(const QTreeWidgetItem* item) {
  if (item == nullptr) {
    return;
  }
  const QTreeWidgetItem* const top = item->parent() != nullptr ? item->parent() : item;
  Q_EMIT chosen(static_cast<std::size_t>(indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(top))),
                item->data(0, block_role).toInt());
}

}  // namespace velquon
