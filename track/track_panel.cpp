// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_panel.h"

#include <QAction>

#include "model/track_model.h"
#include "track/new_track_view.h"
#include "ui_track_panel.h"
#include "widgets/number_text.h"
#include "widgets/view_scroll_area.h"

namespace velquon {

namespace {

constexpr const char* had_keys = "had_keys";

/// Makes a button do what an item does. While it is disabled the keys go to another control instead
/// of the next one, which does something else; they come back with it.
void make_stand_for(QAbstractButton* button, QAction* item, QWidget* keys_meanwhile) {
  const auto follow = [button, item, keys_meanwhile] {
    const bool enabled = item->isEnabled();
    const auto has_keys = [](const QWidget* control) {
      return control->window()->focusWidget() == control;
    };
    if (!enabled && has_keys(button)) {
      keys_meanwhile->setFocus();
      button->setProperty(had_keys, true);
    }
    button->setEnabled(enabled);
    if (enabled && button->property(had_keys).toBool()) {
      button->setProperty(had_keys, false);
      if (has_keys(keys_meanwhile)) {
        button->setFocus();
      }
    }
  };
  QObject::connect(button, &QAbstractButton::clicked, item, &QAction::trigger);
  QObject::connect(item, &QAction::changed, button, follow);
  follow();
}

}  // namespace

TrackPanel::TrackPanel(TrackModel& model, QWidget* parent)
    : QWidget(parent), model_(model), ui_(std::make_unique<Ui::track_panel>()) {
  ui_->setupUi(this);
  view_ = new NewTrackView(ui_->track_area->viewport());
  view_->setObjectName(QStringLiteral("track_view"));
  view_->setAccessibleName(tr("Track"));
  view_->setAccessibleDescription(tr("The particle's track. Drag with the mouse to measure it."));
  view_->setModel(model);
  view_->awakeFromNib();
  ui_->track_area->setAccessibleName(tr("Part of the track that is seen"));
  ui_->track_area->setView(view_, {track_area_width, track_area_height});
  connect(ui_->vSlider, &ValueSlider::moved, view_, [this] { view_->setMagField(vSlider()); });
  model_.changed.add([this] { showModel(); });
}

TrackPanel::~TrackPanel() = default;

void TrackPanel::setItems(QAction* inject_item, QAction* clear_item) {
  make_stand_for(ui_->inject_button, inject_item, view_);
  make_stand_for(ui_->clear_button, clear_item, view_);
}

void TrackPanel::showModel() {
  const double field = model_.simulation().settings.B_field;
  const std::optional<double> reading = model_.reading();
  ui_->field_text->setText(QStringLiteral("B = %1").arg(fixed_text(field, 0, 2)));
  ui_->tape_box->setText(reading ? QStringLiteral("D = %1").arg(fixed_text(*reading, 5, 2))
                                 : QString());
}

ViewScrollArea* TrackPanel::track_area() const {
  return ui_->track_area;
}

QString TrackPanel::shownReadings() const {
  return QStringList{ui_->field_text->text(), ui_->tape_box->text()}.join(u'\n');
}

ValueSlider* TrackPanel::vSlider() const {
  return ui_->vSlider;
}

QLabel* TrackPanel::field_text() const {
  return ui_->field_text;
}

QLabel* TrackPanel::tape_box() const {
  return ui_->tape_box;
}

QAbstractButton* TrackPanel::inject_button() const {
  return ui_->inject_button;
}

QAbstractButton* TrackPanel::clear_button() const {
  return ui_->clear_button;
}

}  // namespace velquon
