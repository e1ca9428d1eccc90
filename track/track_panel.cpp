// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_panel.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <iterator>

#include "model/track_model.h"
#include "track/new_track_view.h"
#include "ui_track_panel.h"
#include "widgets/designed_form.h"
#include "widgets/number_text.h"
#include "widgets/view_scroll_area.h"
#include "widgets/wheel_guard.h"

namespace velquon {

namespace {

constexpr const char* had_focus = "had_focus";

// What the choices are of, in the order of the items of their controls.
constexpr std::array particles{TrackParticle::e_minus, TrackParticle::e_plus};
constexpr std::array directions{TrackDirection::left_to_right, TrackDirection::right_to_left};
constexpr std::array speeds{1, 2, 3};

/// Enables a control or disables it. While it is disabled another control gets the focus instead of
/// the next one, which does something else; they come back with it.
void enable(QWidget* control, bool enabled, QWidget* focused_meanwhile) {
  const auto has_focus = [](const QWidget* widget) {
    return widget->window()->focusWidget() == widget;
  };
  if (!enabled && has_focus(control)) {
    focused_meanwhile->setFocus();
    control->setProperty(had_focus, true);
  }
  control->setEnabled(enabled);
  if (enabled && control->property(had_focus).toBool()) {
    control->setProperty(had_focus, false);
    if (has_focus(focused_meanwhile)) {
      control->setFocus();
    }
  }
}

/// Makes a control choose one of some values, and follow who else chooses one.
template <typename Values, typename Choose>
void connect_choice(QComboBox* popup, const Values& values, Choose choose) {
  take_wheel_only_with_focus(*popup);
  QObject::connect(popup, &QComboBox::currentIndexChanged, popup, [&values, choose](int index) {
    choose(values.at(static_cast<std::size_t>(index)));
  });
}

template <typename Values, typename Value>
void show_choice(QComboBox* popup, const Values& values, Value present) {
  const QSignalBlocker chosen_elsewhere(popup);
  const auto place = std::ranges::find(values, present) - values.begin();
  popup->setCurrentIndex(static_cast<int>(place));
}

}  // namespace

TrackPanel::TrackPanel(TrackModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      ui_(set_up_form<Ui::track_panel>(*this)),
      view_(new NewTrackView(ui_->track_area->viewport())) {
  view_->setObjectName(QStringLiteral("track_view"));
  view_->setAccessibleName(tr("Track"));
  view_->setAccessibleDescription(tr("The particle's track. Drag with the mouse to measure it."));
  view_->setModel(model);
  view_->awakeFromNib();
  ui_->track_area->setAccessibleName(tr("Part of the track that is seen"));
  ui_->track_area->setView(view_, {track_area_width, track_area_height});
  connect(ui_->vSlider, &ValueSlider::moved, view_, [this] { view_->setMagField(vSlider()); });
  connect(ui_->inject_button, &QAbstractButton::clicked, view_, &NewTrackView::injectParticle);
  connect(ui_->clear_button, &QAbstractButton::clicked, view_, &NewTrackView::clearScreen);
  connectChoices();
  makeRoomForReadings();
  changes_ = model_.changed.add([this] { showModel(); });
  showModel();
}

TrackPanel::~TrackPanel() = default;

void TrackPanel::connectChoices() {
  connect_choice(ui_->particle_popup, particles,
                 [this](TrackParticle particle) { model_.setParticle(particle); });
  connect_choice(ui_->direction_popup, directions,
                 [this](TrackDirection direction) { model_.setDirection(direction); });
  connect_choice(ui_->velocity_popup, speeds, [this](int speed) { model_.setSpeed(speed); });
}

void TrackPanel::makeRoomForReadings() {
  // The window keeps its size, whatever is read.
  const auto make_room = [](QLabel* label, const QString& widest) {
    label->setText(widest);
    label->setMinimumWidth(label->sizeHint().width());
  };
  make_room(ui_->field_text, QStringLiteral("B = -0.88"));
  make_room(ui_->tape_box, QStringLiteral("D = 66.94"));
  make_room(ui_->tape_unit, tr("units"));
}

void TrackPanel::showModel() {
  const double field = model_.simulation().settings.B_field;
  const std::optional<double> reading = model_.reading();
  ui_->field_text->setText(QStringLiteral("B = %1").arg(fixed_text(field, 0, 2)));
  ui_->tape_box->setText(reading ? QStringLiteral("D = %1").arg(fixed_text(*reading, 5, 2))
                                 : QString());
  ui_->tape_unit->setText(reading ? tr("units") : QString());
  show_choice(ui_->particle_popup, particles, model_.particle());
  show_choice(ui_->direction_popup, directions, model_.direction());
  show_choice(ui_->velocity_popup, speeds, model_.speed());
  for (QComboBox* const popup : {ui_->particle_popup, ui_->direction_popup, ui_->velocity_popup}) {
    enable(popup, model_.isEnabled(TrackItem::choice), view_);
  }
  enable(ui_->inject_button, model_.isEnabled(TrackItem::inject), view_);
  enable(ui_->clear_button, model_.isEnabled(TrackItem::clear), view_);
}

ViewScrollArea* TrackPanel::track_area() const {
  return ui_->track_area;
}

QString TrackPanel::shownReadings() const {
  const QString space(u' ');
  return (ui_->field_text->text() + space + ui_->field_unit->text() + u'\n' +
          ui_->tape_box->text() + space + ui_->tape_unit->text())
      .trimmed();
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
