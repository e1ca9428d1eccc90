// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/measurement_columns.h"

#include <QLocale>
#include <QRegularExpression>
#include <array>
#include <cmath>

#include "widgets/model_text.h"

namespace velquon {

namespace {

constexpr std::array column_titles{
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Event"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Quantity"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Plane"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Value"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Error"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Unit"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Field (kG)"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Track"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "At most (cm)"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "Note"),
    QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "File"),
};

constexpr std::array<std::pair<MeasurementColumn, const char*>, 4> tips{{
    {MeasurementColumn::error,
     QT_TRANSLATE_NOOP("velquon::MeasurementColumns", "One standard deviation")},
    {MeasurementColumn::ending,
     QT_TRANSLATE_NOOP("velquon::MeasurementColumns",
                       "Whether the track decayed or left the chamber. One that left counts in the "
                       "exponential with its length so far. Double-click or F2 to edit")},
    {MeasurementColumn::longest,
     QT_TRANSLATE_NOOP("velquon::MeasurementColumns",
                       "The longest length that could have been seen in the chamber. Double-click "
                       "or F2 to edit")},
    {MeasurementColumn::note, QT_TRANSLATE_NOOP("velquon::MeasurementColumns",
                                                "Your own words. Double-click or F2 to edit")},
}};

bool is_number_column(MeasurementColumn column) {
  return column == MeasurementColumn::value || column == MeasurementColumn::error ||
         column == MeasurementColumn::field || column == MeasurementColumn::longest;
}

bool is_editable(MeasurementColumn column) {
  return column == MeasurementColumn::ending || column == MeasurementColumn::longest ||
         column == MeasurementColumn::note;
}

/// Takes an edit into a row.
/// \return whether it is one of the kind
bool edit(Measurement& row, MeasurementColumn column, const QString& text) {
  if (column == MeasurementColumn::note) {
    row.note = text.toStdString();
    return true;
  }
  if (column == MeasurementColumn::ending) {
    const auto ending = ending_texts().indexOf(text);
    row.ending = ending < 0 ? row.ending : static_cast<Ending>(ending);
    return ending >= 0;
  }
  // A comma is a decimal point here, too, and never parts thousands.
  const QString trimmed = text.trimmed().replace(QLatin1Char(','), QLatin1Char('.'));
  bool is_number = false;
  const double longest = QLocale::c().toDouble(trimmed, &is_number);
  if (trimmed.isEmpty()) {
    row.longest_cm = unknown_number;
    return true;
  }
  if (!is_number || !(longest > 0.0) || !std::isfinite(longest)) {
    return false;
  }
  row.longest_cm = longest;
  return true;
}

}  // namespace

QString number_text(double number) {
  constexpr int digits = 5;
  return std::isnan(number) ? QString() : QString::number(number, 'g', digits);
}

QStringList ending_texts() {
  return {QString(), MeasurementColumns::tr("decayed"), MeasurementColumns::tr("left")};
}

MeasurementColumns::MeasurementColumns(Measurements& measurements, QObject* parent)
    : QAbstractTableModel(parent),
      measurements_(measurements),
      shown_rows_(static_cast<int>(measurements.rows().size())) {}

int MeasurementColumns::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_rows_;
}

int MeasurementColumns::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(column_titles.size());
}

QVariant MeasurementColumns::data(const QModelIndex& index, int role) const {
  // QAbstractItemView copies the data of its current index, which is invalid while no cell is current.
  if (!index.isValid()) {
    return {};
  }
  const auto column = static_cast<MeasurementColumn>(index.column());
  if (role == Qt::DisplayRole || role == Qt::EditRole) {
    return text(measurements_.rows()[static_cast<std::size_t>(index.row())], column);
  }
  if (role == Qt::TextAlignmentRole && is_number_column(column)) {
    return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

QVariant MeasurementColumns::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  }
  // Assistive programs ask for columns that there are not.
  if (section < 0 || section >= columnCount()) {
    return {};
  }
  if (role == Qt::DisplayRole) {
    return tr(column_titles.at(static_cast<std::size_t>(section)));
  }
  if (role == Qt::ToolTipRole) {
    for (const auto& [column, tip] : tips) {
      if (static_cast<int>(column) == section) {
        return tr(tip);
      }
    }
  }
  return {};
}

Qt::ItemFlags MeasurementColumns::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
  return is_editable(static_cast<MeasurementColumn>(index.column())) ? usual | Qt::ItemIsEditable
                                                                     : usual;
}

bool MeasurementColumns::setData(const QModelIndex& index, const QVariant& value, int role) {
  const auto place = static_cast<std::size_t>(index.row());
  if (role != Qt::EditRole || place >= measurements_.rows().size()) {
    return false;
  }
  Measurement row = measurements_.rows()[place];
  if (!edit(row, static_cast<MeasurementColumn>(index.column()), value.toString())) {
    return false;
  }
  measurements_.change(place, std::move(row));
  return true;
}

QString MeasurementColumns::linesOf(const std::vector<std::size_t>& rows) const {
  // In a note these would begin another cell or row.
  const QRegularExpression separators(QStringLiteral("[\\t\\r\\n]"));
  const QString space(QLatin1Char(' '));
  QStringList lines;
  for (const std::size_t row : rows) {
    QStringList cells;
    for (int column = 0; column < columnCount(); ++column) {
      cells << index(static_cast<int>(row), column).data().toString().replace(separators, space);
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  return lines.join(QLatin1Char('\n'));
}

void MeasurementColumns::refresh() {
  const auto rows = static_cast<int>(measurements_.rows().size());
  if (rows < shown_rows_) {
    beginResetModel();
    shown_rows_ = rows;
    endResetModel();
    return;
  }
  if (rows > shown_rows_) {
    beginInsertRows({}, shown_rows_, rows - 1);
    shown_rows_ = rows;
    endInsertRows();
  }
  if (rows > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
  }
}

QString MeasurementColumns::text(const Measurement& row, MeasurementColumn column) const {
  const QuantityName& names = name_of(row.quantity);
  switch (column) {
    case MeasurementColumn::event:
      return event_name_text(row.event);
    case MeasurementColumn::quantity:
      return model_text(names.name);
    case MeasurementColumn::plane:
      return QString::fromUtf8(row.plane);
    case MeasurementColumn::value:
      return number_text(row.value);
    case MeasurementColumn::error:
      return number_text(row.error);
    case MeasurementColumn::unit:
      return model_text(names.unit);
    case MeasurementColumn::field:
      return number_text(row.field_kG);
    case MeasurementColumn::ending:
      return ending_texts().at(static_cast<int>(row.ending));
    case MeasurementColumn::longest:
      return number_text(row.longest_cm);
    case MeasurementColumn::note:
      return QString::fromUtf8(row.note);
    case MeasurementColumn::file:
      return QString::fromUtf8(row.file);
  }
  return {};
}

}  // namespace velquon
