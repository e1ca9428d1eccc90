#include "chamber/chamber_window.h"

#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <algorithm>

#include "app/form.h"
#include "render/chamber_scene.h"
#include "chamber/chamber_view.h"
#include "widgets/wheel_guard.h"
#include "ui_chamber_window.h"
#include "ui_menus.h"

namespace velquon {

namespace {

/// A button that shows the chosen kind of event and opens the menu of all.
QToolButton* make_event_type_button(QMenu* event_menu) {
  auto* const button = new QToolButton;
  button->setObjectName(QStringLiteral("event_type_button"));
  button->setPopupMode(QToolButton::InstantPopup);
  button->setMenu(event_menu);
  button->setToolTip(ChamberWindow::tr("Kind of the next event"));
  const auto show_choice = [button, event_menu] {
    const auto items = event_menu->actions();
    const auto chosen = std::ranges::find_if(items, &QAction::isChecked);
    if (chosen != items.end()) {
      button->setText((*chosen)->text().remove(QLatin1Char('&')));
      button->setEnabled((*chosen)->isEnabled());
    }
  };
  for (QAction* const item : event_menu->actions()) {
    QObject::connect(item, &QAction::changed, button, show_choice);
  }
  show_choice();
  return button;
}

/// Gives a label room for a text; a value beyond all sense in a file does not widen the window.
void give_room_for(QLabel& label, const QString& text) {
  label.setMinimumWidth(label.fontMetrics().horizontalAdvance(text));
  label.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

}  // namespace

ChamberWindow::ChamberWindow(std::optional<std::uint32_t> seed, const Ui::Menus& menus)
    : ui_(make_form<Ui::ChamberWindow>(*this)),
      view_(new ChamberView(seed, ui_->chamber_area->viewport())) {
  view_->setObjectName(QStringLiteral("chamber_view"));
  view_->setAccessibleName(tr("Particle chamber"));
  ui_->chamber_area->setAccessibleName(tr("Part of the chamber that is seen"));
  ui_->chamber_area->setView(view_, {chamber_width, chamber_height});
  give_room_for(*ui_->magfield_text, QStringLiteral("B = 10.000 kG"));
  give_room_for(*ui_->sides_text, QStringLiteral("L = 10.000 m"));
  give_room_for(*ui_->kinetic_energy_text, QStringLiteral("T = 10000.0 MeV"));
  take_wheel_only_with_focus(*ui_->efactor_popup);
  fillToolBar(menus);
  setContent(takeCentralWidget());
}

ChamberWindow::~ChamberWindow() = default;

ViewScrollArea* ChamberWindow::area() const {
  return ui_->chamber_area;
}

ChamberSettingsOutlets ChamberWindow::settings() const {
  return {.efactor_popup = ui_->efactor_popup,
          .energy_slider = ui_->energy_slider,
          .kinetic_energy_text = ui_->kinetic_energy_text,
          .magfield_slider = ui_->magfield_slider,
          .magfield_text = ui_->magfield_text,
          .size_slider = ui_->size_slider,
          .sides_text = ui_->sides_text};
}

void ChamberWindow::fillToolBar(const Ui::Menus& menus) {
  QToolBar& bar = *ui_->chamber_tool_bar;
  bar.addAction(menus.new_event_item);
  bar.addWidget(make_event_type_button(menus.event_menu));
  bar.addSeparator();
  bar.addAction(menus.replay_item);
  bar.addAction(menus.rotate_item);
  bar.addAction(menus.reset_orientation_item);
  const auto items = bar.actions();
  for (QAction* const action : items) {
    if (auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(action))) {
      button->setFocusPolicy(Qt::TabFocus);
    }
  }
}

}  // namespace velquon
