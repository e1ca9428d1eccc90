#include "projection/projector_window.h"

#include <memory>

#include "app/form.h"
#include "widgets/palette_icon.h"
#include "projection/projection_view.h"
#include "ui_projector_window.h"

namespace velquon {

namespace {

/// Calls an operation of the view once whenever a button of a group is chosen: by a click, which
/// may choose the same button again, or by a screen reader, which toggles without a click.
void connect_choice(QAbstractButton* button, ProjectionView* view,
                    void (ProjectionView::*choose)(QAbstractButton*)) {
  const auto chosen_by_toggle = std::make_shared<bool>(false);
  QObject::connect(button, &QAbstractButton::pressed, view,
                   [chosen_by_toggle] { *chosen_by_toggle = false; });
  QObject::connect(button, &QAbstractButton::toggled, view, [=](bool on) {
    if (on) {
      *chosen_by_toggle = true;
      (view->*choose)(button);
    }
  });
  QObject::connect(button, &QAbstractButton::clicked, view, [=] {
    if (!*chosen_by_toggle) {
      (view->*choose)(button);
    }
  });
}

}  // namespace

ProjectorWindow::ProjectorWindow()
    : ui_(make_form<Ui::ProjectorWindow>(*this)),
      view_(new ProjectionView(ui_->projector_area->viewport())) {
  view_->setObjectName(QStringLiteral("projection_view"));
  ui_->tape_tool->setIcon(palette_icon(QStringLiteral("tape")));
  ui_->grab_tool->setIcon(palette_icon(QStringLiteral("grab")));
  view_->setAccessibleName(tr("Projection"));
  ui_->projector_area->setAccessibleName(tr("Part of the projection that is seen"));
  ui_->tape_text->setMinimumWidth(
      ui_->tape_text->fontMetrics().horizontalAdvance(QStringLiteral("D = 9999.99 cm")));
  ui_->projector_area->setView(view_, {projection_width, projection_height});
  connectButtons();
  setContent(takeCentralWidget());
}

ProjectorWindow::~ProjectorWindow() = default;

ViewScrollArea* ProjectorWindow::area() const {
  return ui_->projector_area;
}

void ProjectorWindow::connectButtons() {
  view_->setOutlets({.xy_button = ui_->xy_button,
                     .xz_button = ui_->xz_button,
                     .yz_button = ui_->yz_button,
                     .zoom_1 = ui_->zoom_1,
                     .zoom_2 = ui_->zoom_2,
                     .zoom_3 = ui_->zoom_3,
                     .tape_tool = ui_->tape_tool,
                     .grab_tool = ui_->grab_tool,
                     .tape_text = ui_->tape_text});
  for (QAbstractButton* const button : {ui_->xy_button, ui_->xz_button, ui_->yz_button}) {
    connect_choice(button, view_, &ProjectionView::setProjection);
  }
  for (QAbstractButton* const button : {ui_->zoom_1, ui_->zoom_2, ui_->zoom_3}) {
    connect_choice(button, view_, &ProjectionView::setZoom);
  }
  for (QAbstractButton* const button : {ui_->tape_tool, ui_->grab_tool}) {
    connect_choice(button, view_, &ProjectionView::setTool);
  }
}

}  // namespace velquon
