// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/record_tree.h"

#include <QHeaderView>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <optional>

#include "widgets/model_text.h"
#include "widgets/number_text.h"

namespace velquon {

namespace {

// Where a row keeps its number in the order added.
constexpr int number_role = Qt::UserRole;

/// A number with four digits that count, as a power of ten where that would be long.
QString four_digits(double value) {
  constexpr int digits = 4;
  constexpr double smallest = 1e-3;
  constexpr double largest = 1e7;
  const double size = std::abs(value);
  if (size == 0.0) {
    return QStringLiteral("0");
  }
  if (!(size >= smallest && size < largest)) {
    return QString::number(value, 'E', digits - 1);
  }
  const int places = static_cast<int>(std::floor(std::log10(size))) + 1;
  return fixed_text(value, 0, std::max(digits - places, 0));
}

QString four_digits(const std::optional<double>& value) {
  return value ? four_digits(*value) : QStringLiteral("-");
}

QStringList texts_of(const EventRow& row) {
  return {model_text(row.name) + QLatin1Char(' ') + QString::fromUtf8(row.symbol),
          model_text(row.fate),
          four_digits(row.momentum),
          four_digits(row.transverse_momentum),
          four_digits(row.radius_cm),
          four_digits(row.kinetic_energy),
          four_digits(row.flight_cm),
          four_digits(row.decay_length_cm)};
}

bool is_number(const QString& text) {
  bool is_one = false;
  text.toDouble(&is_one);
  return is_one || text == QLatin1String("-");
}

}  // namespace

RecordTree::RecordTree(QWidget* parent) : QTreeWidget(parent) {
  setSelectionMode(ExtendedSelection);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  new QShortcut(QKeySequence(Qt::Key_Escape), this, this, &RecordTree::clearSelection,
                Qt::WidgetWithChildrenShortcut);
}

void RecordTree::showParticles(const std::vector<EventRow>& rows) {
  const QSignalBlocker quiet(this);
  begin({tr("Particle"), tr("Fate"), tr("p (MeV/c)"), tr("Transverse p (MeV/c)"), tr("Radius (cm)"),
         tr("Kinetic energy (MeV)"), tr("Flight (cm)"), tr("Mean decay length (cm)")});
  std::vector<QTreeWidgetItem*> items;
  for (const EventRow& row : rows) {
    QTreeWidgetItem* const parent =
        row.parent < 0 ? nullptr : items[static_cast<std::size_t>(row.parent)];
    items.push_back(addRow(parent, texts_of(row), row.points));
  }
  finish();
}

void RecordTree::showTracks(const std::vector<VisibleTrack>& tracks, TrackDetails details) {
  const QSignalBlocker quiet(this);
  const bool with_numbers = details == TrackDetails::code_and_points;
  begin(with_numbers ? QStringList{tr("Track"), tr("Code"), tr("Points")}
                     : QStringList{tr("Track")});
  for (const VisibleTrack& track : tracks) {
    QStringList texts{model_text(track.color)};
    if (with_numbers) {
      texts << QString::number(track.code) << QString::number(track.points.size());
    }
    addRow(nullptr, texts, track.points);
  }
  finish();
}

std::vector<std::size_t> RecordTree::chosenPoints() const {
  std::vector<std::size_t> chosen;
  for (const QTreeWidgetItem* const item : selectedItems()) {
    const auto& points = points_[item->data(0, number_role).toULongLong()];
    chosen.insert(chosen.end(), points.begin(), points.end());
  }
  std::ranges::sort(chosen);
  return chosen;
}

void RecordTree::begin(const QStringList& titles) {
  clear();
  points_.clear();
  setColumnCount(static_cast<int>(titles.size()));
  setHeaderLabels(titles);
}

QTreeWidgetItem* RecordTree::addRow(QTreeWidgetItem* parent, const QStringList& texts,
                                    std::span<const std::size_t> points) {
  auto* const item = new QTreeWidgetItem(texts);
  item->setData(0, number_role, QVariant::fromValue<qulonglong>(points_.size()));
  for (int column = 0; column < item->columnCount(); ++column) {
    if (is_number(item->text(column))) {
      item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  if (parent == nullptr) {
    addTopLevelItem(item);
  } else {
    parent->addChild(item);
  }
  points_.emplace_back(points.begin(), points.end());
  return item;
}

void RecordTree::finish() {
  constexpr int gap = 10;  // that numbers do not touch the next column
  expandAll();
  for (int column = 0; column < columnCount(); ++column) {
    resizeColumnToContents(column);
    setColumnWidth(column, columnWidth(column) + gap);
  }
}

}  // namespace velquon
