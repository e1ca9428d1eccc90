#include "track/track_panel.h"

#include <QAction>

#include "widgets/number_text.h"
#include "track/new_track_view.h"
#include "ui_track_window.h"

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

TrackPanel::TrackPanel(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::track_panel>()) {
  ui_->setupUi(this);
  NewTrackView* view = ui_->track_view;
  view->awakeFromNib();
  view->setTapeBox(ui_->tape_box);
  connect(ui_->vSlider, &ValueSlider::moved, view,
          [this] { track_view()->setMagField(vSlider()); });
  connect(view, &NewTrackView::fieldTaken, ui_->field_text, [this](double field) {
    ui_->field_text->setText(QStringLiteral("B = %1").arg(fixed_text(field, 0, 2)));
  });
}

TrackPanel::~TrackPanel() = default;

void TrackPanel::setItems(QAction* inject_item, QAction* clear_item) {
  NewTrackView* view = ui_->track_view;
  connect(inject_item, &QAction::triggered, view,
          [view, inject_item] { view->injectParticle(inject_item); });
  connect(clear_item, &QAction::triggered, view,
          [view, clear_item] { view->clearScreen(clear_item); });
  make_stand_for(ui_->inject_button, inject_item, view);
  make_stand_for(ui_->clear_button, clear_item, view);
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
