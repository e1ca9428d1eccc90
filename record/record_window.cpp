// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/record_window.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/event_rows.h"
#include "record/record_tree.h"

namespace velquon {

RecordWindow::RecordWindow(ChamberModel& model)
    : model_(model),
      message_(new QLabel(this)),
      tree_(new RecordTree(this)),
      hide_box_(new QCheckBox(tr("H&ide answers"), this)),
      reveal_button_(new QPushButton(tr("Re&veal"), this)) {
  setTitle(tr("Event Record"));
  layOut();
  connectControls();
  changes_ = model_.changed.add([this] { refresh(); });
  refresh();
}

void RecordWindow::layOut() {
  message_->setObjectName(QStringLiteral("record_message"));
  message_->setWordWrap(true);
  message_->setTextFormat(Qt::PlainText);
  tree_->setObjectName(QStringLiteral("record_tree"));
  tree_->setAccessibleName(tr("Particles of the event"));
  hide_box_->setObjectName(QStringLiteral("hide_answers_box"));
  hide_box_->setToolTip(tr("Show only what is seen of an event, to measure it first"));
  reveal_button_->setObjectName(QStringLiteral("reveal_button"));
  reveal_button_->setToolTip(tr("Show what happened in this event"));

  auto* const controls = new QHBoxLayout;
  controls->addWidget(hide_box_);
  controls->addStretch();
  controls->addWidget(reveal_button_);
  auto* const content = new QWidget(this);
  auto* const layout = new QVBoxLayout(content);
  layout->addWidget(message_);
  layout->addWidget(tree_);
  layout->addLayout(controls);
  setCentralWidget(content);
  setTabOrder(tree_, hide_box_);
  setTabOrder(hide_box_, reveal_button_);
  tree_->setFocus();
  constexpr QSize window_size(1140, 340);  // all columns
  resize(window_size);
}

void RecordWindow::connectControls() {
  connect(tree_, &RecordTree::itemSelectionChanged, this,
          [this] { model_.mark(tree_->chosenPoints()); });
  connect(hide_box_, &QCheckBox::toggled, this, [this](bool hide) {
    ChamberPreferences preferences = model_.preferences();
    preferences.hide_answers = hide;
    model_.setPreferences(preferences);
  });
  connect(reveal_button_, &QPushButton::clicked, this, [this] { model_.revealAnswers(); });
}

void RecordWindow::refresh() {
  hide_box_->setChecked(model_.preferences().hide_answers);
  reveal_button_->setEnabled(!model_.answersShown() && model_.shown()->tracks->record.has_value());
  message_->setText(message());
  if (tracks_ == model_.shown()->tracks && answers_shown_ == model_.answersShown()) {
    return;
  }
  tracks_ = model_.shown()->tracks;
  answers_shown_ = model_.answersShown();
  showTracks();
  // The rows that the marks belonged to are gone.
  model_.mark({});
}

void RecordWindow::showTracks() {
  if (!hasRecord()) {
    tree_->showTracks(visible_tracks(tracks_->points), TrackDetails::code_and_points);
  } else if (answers_shown_) {
    tree_->showParticles(event_rows(*tracks_->record, tracks_->values));
  } else {
    tree_->showTracks(visible_tracks(tracks_->points), TrackDetails::none);
  }
}

QString RecordWindow::message() const {
  const ShownEvent& shown = *model_.shown();
  if (!shown.has_event) {
    return tr("There is no event yet.");
  }
  if (!shown.tracks->record) {
    return tr(
        "This event comes from a file, which does not tell what happened in it. These are its "
        "tracks.");
  }
  if (!model_.answersShown()) {
    return tr("These tracks are seen. Reveal tells what happened.");
  }
  return tr("Made with %1. Choose rows to mark their tracks in the other windows.")
      .arg(QString::fromStdString(values_text(shown.tracks->values)));
}

bool RecordWindow::hasRecord() const {
  return tracks_->record.has_value();
}

void RecordWindow::closeEvent(QCloseEvent* event) {
  tree_->clearSelection();
  GLPanel::closeEvent(event);
}

}  // namespace velquon
