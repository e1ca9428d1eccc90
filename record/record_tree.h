// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTreeWidget>
#include <cstddef>
#include <span>
#include <vector>

#include "model/event_rows.h"

namespace velquon {

/// What of an opened or hidden event is told beside its tracks' colours.
enum class TrackDetails : bool { none, code_and_points };

/// An event as a table: its particles, each below the one that it comes from, or just its tracks.
/// Any number of rows can be chosen; Escape chooses none.
class RecordTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit RecordTree(QWidget* parent = nullptr);

  /// Show other rows, of which none is chosen; no signal tells so.
  void showParticles(const std::vector<EventRow>& rows);
  void showTracks(const std::vector<VisibleTrack>& tracks, TrackDetails details);

  /// The points of all chosen rows, rising.
  [[nodiscard]] std::vector<std::size_t> chosenPoints() const;

 private:
  void begin(const QStringList& titles);
  /// Adds a row below another one, or at the top without one.
  QTreeWidgetItem* addRow(QTreeWidgetItem* parent, const QStringList& texts,
                          std::span<const std::size_t> points);
  void finish();

  std::vector<std::vector<std::size_t>> points_;  ///< of each row, in the order added
};

}  // namespace velquon
