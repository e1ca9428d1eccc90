#include "track/track_panel.h"

#include <QAction>

#include "model/track_model.h"
#include "track/new_track_view.h"
#include "ui_track_panel.h"
#include "widgets/number_text.h"

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
  NewTrackView* view = ui_->track_view;
  view->setModel(model);
  view->awakeFromNib();
  connect(ui_->vSlider, &ValueSlider::moved, view,
          [this] { track_view()->setMagField(vSlider()); });
  model_.changed.add([this] { showModel(); });
}

TrackPanel::~TrackPanel() = default;

void TrackPanel::setItems(QAction* inject_item, QAction* clear_item) {
  make_stand_for(ui_->inject_button, inject_item, ui_->track_view);
  make_stand_for(ui_->clear_button, clear_item, ui_->track_view);
}

void TrackPanel::showModel() {
  const double field = model_.simulation().settings.B_field;
  const std::optional<double> reading = model_.reading();
  ui_->field_text->setText(QStringLiteral("B = %1").arg(fixed_text(field, 0, 2)));
  ui_->tape_box->setText(reading ? QStringLiteral("D = %1").arg(fixed_text(*reading, 5, 2))
                                 : QString());
}

NewTrackView* TrackPanel::track_view() const {
  return ui_->track_view;
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
