// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/measurements_window.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "record/histogram_panel.h"
#include "record/make_events_dialog.h"
#include "record/measurement_columns.h"
#include "record/measurement_files.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

/// Edits an ending by a pop-up of its words.
class EndingDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& /*index*/) const override {
    auto* const popup = new QComboBox(parent);
    popup->setObjectName(QStringLiteral("ending_popup"));
    popup->setAccessibleName(MeasurementsWindow::tr("What became of the track"));
    popup->addItems(ending_texts());
    return popup;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    static_cast<QComboBox*>(editor)->setCurrentText(index.data(Qt::EditRole).toString());
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    model->setData(index, static_cast<QComboBox*>(editor)->currentText());
  }
};

}  // namespace

MeasurementsWindow::MeasurementsWindow(Measurements& measurements, MeasurementFiles& files,
                                       const ChamberModel& model, UserDialogs& dialogs)
    : measurements_(measurements),
      files_(files),
      model_(model),
      dialogs_(dialogs),
      menu_(new QMenu(tr("&Measurements"), this)),
      tool_bar_(new QToolBar(tr("Measurements"), this)),
      columns_(new MeasurementColumns(measurements, this)),
      table_(new QTableView(this)),
      histogram_(new HistogramPanel(measurements, this)),
      message_(new QLabel(this)) {
  setTitle(tr("Measurements"));
  menu_->setObjectName(QStringLiteral("measurements_menu"));
  addItems();
  layOut();
  changes_ = measurements_.changed.add([this] { refresh(); });
  refresh();
}

void MeasurementsWindow::insertMenu(QAction* before) {
  menuBar()->insertMenu(before, menu_);
}

void MeasurementsWindow::tell(const QString& message) {
  message_->setText(message);
  message_->setVisible(!message.isEmpty());
}

void MeasurementsWindow::addRowItems() {
  const auto has_rows = [this] { return !measurements_.rows().empty(); };
  QAction* const record = addItem(
      "record_item", tr("&Record"),
      {.keys = QKeySequence(Qt::CTRL | Qt::Key_Return), .run = [this] { Q_EMIT recordAsked(); }});
  record->setToolTip(tr("Note what the projector's tool reads (Ctrl+Return)"));
  QAction* const copy =
      addItem("copy_rows_item", tr("&Copy Rows"),
              {.keys = QKeySequence::Copy, .run = [this] { copyRows(); }, .is_enabled = has_rows});
  copy->setShortcuts(QKeySequence::Copy);
  QAction* const remove = addItem("delete_item", tr("&Delete Rows"),
                                  {.keys = QKeySequence(Qt::Key_Delete),
                                   .run = [this] { deleteRows(); },
                                   .is_enabled = has_rows});
  // Where an editor or another control has the focus, these keys are its own.
  for (QAction* const item : {copy, remove}) {
    item->setShortcutContext(Qt::WidgetShortcut);
    table_->addAction(item);
  }
  menu_->addSeparator();
  QAction* const undo = addItem("undo_item", tr("&Undo"),
                                {.keys = QKeySequence(Qt::CTRL | Qt::Key_Z),
                                 .run = [this] { measurements_.undo(); },
                                 .is_enabled = [this] { return measurements_.canUndo(); }});
  QAction* const redo = addItem("redo_item", tr("Red&o"),
                                {.keys = QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                                 .run = [this] { measurements_.redo(); },
                                 .is_enabled = [this] { return measurements_.canRedo(); }});
  tool_bar_->addActions({record, remove, undo, redo});
}

void MeasurementsWindow::addFileItems() {
  addItem("open_measurements_item", tr("O&pen Measurements…"),
          {.keys = QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_O), .run = [this] { files_.open(); }});
  QAction* const add = addItem(
      "add_files_item", tr("&Add Files…"),
      {.keys = QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_A), .run = [this] { files_.addFiles(); }});
  add->setToolTip(tr("Append the rows of files, such as those of a class"));
  QAction* const save = addItem("save_measurements_item", tr("&Save Measurements…"),
                                {.keys = QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_S),
                                 .run = [this] { files_.save(); },
                                 .is_enabled = [this] { return !measurements_.rows().empty(); }});
  tool_bar_->addActions({add, save});
}

void MeasurementsWindow::addEventItems() {
  QAction* const make = addItem(
      "make_events_item", tr("&Make Events…"),
      {.keys = QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_M), .run = [this] { makeEvents(); }});
  make->setToolTip(tr("Have many events made and note one quantity of each"));
  QAction* const save_plot = addItem("save_plot_item", tr("Save P&lot…"),
                                     {.keys = QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_P),
                                      .run = [this] { savePlot(); },
                                      .is_enabled = [this] { return histogram_->canBeSaved(); }});
  tool_bar_->addActions({make, save_plot});
}

QAction* MeasurementsWindow::addItem(const char* name, const QString& text, const Item& item) {
  QAction* const action = menu_->addAction(text);
  action->setObjectName(QLatin1String(name));
  action->setShortcut(item.keys);
  commands_.add({.item = action, .run = item.run, .is_enabled = item.is_enabled});
  return action;
}

void MeasurementsWindow::finishEdit() {
  // A change of the rows would put the old text into the editor, which hands on what is typed when it
  // loses the focus.
  if (table_->isAncestorOf(focusWidget())) {
    table_->setFocus();
  }
}

void MeasurementsWindow::addItems() {
  tool_bar_->setObjectName(QStringLiteral("measurements_tool_bar"));
  tool_bar_->setMovable(false);
  tool_bar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  addToolBar(tool_bar_);
  addRowItems();
  menu_->addSeparator();
  tool_bar_->addSeparator();
  addFileItems();
  menu_->addSeparator();
  addEventItems();
  // Return in the table records; while a cell is edited the editor has it.
  connect(new QShortcut(QKeySequence(Qt::Key_Return), table_, nullptr, nullptr, Qt::WidgetShortcut),
          &QShortcut::activated, this, &MeasurementsWindow::recordAsked);
  connect(&commands_, &Commands::aboutToRun, this, &MeasurementsWindow::finishEdit);
  connect(histogram_, &HistogramPanel::sampleChanged, &commands_, &Commands::refresh);
  commands_.refreshOn(measurements_.changed);
}

void MeasurementsWindow::layOut() {
  table_->setObjectName(QStringLiteral("measurements_table"));
  table_->setAccessibleName(tr("Measurements"));
  table_->setModel(columns_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAlternatingRowColors(true);
  table_->setWordWrap(false);
  table_->setItemDelegateForColumn(static_cast<int>(MeasurementColumn::ending),
                                   new EndingDelegate(table_));
  // Tab leads on to the histogram; the arrow keys go from cell to cell.
  table_->setTabKeyNavigation(false);
  table_->horizontalHeader()->setStretchLastSection(true);
  // Rows beyond those that are seen that the widths of columns go by.
  constexpr int rows_that_count = 100;
  table_->horizontalHeader()->setResizeContentsPrecision(rows_that_count);
  message_->setObjectName(QStringLiteral("measurements_message"));
  message_->setWordWrap(true);
  message_->setTextFormat(Qt::PlainText);
  message_->hide();

  auto* const left = new QWidget(this);
  auto* const left_layout = new QVBoxLayout(left);
  left_layout->setContentsMargins(0, 0, 0, 0);
  left_layout->addWidget(table_, 1);
  left_layout->addWidget(message_);
  auto* const splitter = new QSplitter(this);
  splitter->setObjectName(QStringLiteral("measurements_splitter"));
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(left);
  splitter->addWidget(histogram_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  auto* const content = new QWidget(this);
  auto* const layout = new QVBoxLayout(content);
  layout->addWidget(splitter);
  setCentralWidget(content);
  table_->setFocus();
  fitColumns(false);
  constexpr QSize window_size(1080, 480);
  resize(window_size);
}

void MeasurementsWindow::refresh() {
  const int rows_before = columns_->rowCount();
  columns_->refresh();
  const int rows = columns_->rowCount();
  if (rows > rows_before) {
    table_->scrollToBottom();
    fitColumns(rows_before == 0);
  }
  histogram_->refresh();
  tell({});
}

void MeasurementsWindow::fitColumns(bool may_shrink) {
  constexpr int widest = 300;
  for (int column = 0; column < columns_->columnCount(); ++column) {
    const int before = may_shrink ? 0 : table_->columnWidth(column);
    table_->resizeColumnToContents(column);
    const int wanted = std::min(table_->columnWidth(column), widest);
    table_->setColumnWidth(column, std::max(before, wanted));
  }
}

std::vector<std::size_t> MeasurementsWindow::chosenRows() const {
  std::vector<std::size_t> places;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
    places.push_back(static_cast<std::size_t>(index.row()));
  }
  std::ranges::sort(places);
  return places;
}

void MeasurementsWindow::copyRows() {
  const std::vector<std::size_t> places = chosenRows();
  if (places.empty()) {
    tell(tr("Choose the rows to copy."));
    return;
  }
  QGuiApplication::clipboard()->setText(columns_->linesOf(places));
  tell({});
}

void MeasurementsWindow::deleteRows() {
  const std::vector<std::size_t> places = chosenRows();
  if (places.empty()) {
    tell(tr("Choose the rows to delete."));
    return;
  }
  measurements_.remove(places);
  // The row that took the place of the first one, so that one can go on by the keys.
  const int next = std::min(static_cast<int>(places.front()), columns_->rowCount() - 1);
  table_->setCurrentIndex(columns_->index(next, 0));
}

void MeasurementsWindow::makeEvents() {
  if (make_events_dialog_ != nullptr) {
    return;
  }
  auto* const dialog = new MakeEventsDialog(static_cast<std::size_t>(model_.event_type()),
                                            model_.chosen(), dialogs_, this);
  make_events_dialog_ = dialog;
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    MeasurementTable rows = dialog->takeRows();
    const auto noted = rows.size();
    measurements_.add(std::move(rows));
    tell(tr("Events made: %1. Rows noted: %2.").arg(dialog->events()).arg(noted));
  });
  dialog->open();
}

void MeasurementsWindow::savePlot() {
  const QString path =
      dialogs_.fileToSave(tr("Save Plot"), QStringLiteral("histogram"),
                          tr("PNG pictures (*.png);;PDF documents (*.pdf)"), QStringLiteral("png"));
  if (path.isEmpty()) {
    return;
  }
  const bool is_pdf = path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
  write_or_tell(dialogs_, path, is_pdf ? histogram_->asPdf() : histogram_->asPng());
}

}  // namespace velquon
