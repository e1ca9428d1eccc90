#include "app/application.h"

#include <QCoreApplication>

#include "app/chamber_controller.h"
#include "app/chamber_window.h"
#include "app/choices.h"
#include "app/menus.h"
#include "app/projector_window.h"
#include "chamber/chamber_view.h"
#include "projection/projection_view.h"
#include "ui_menus.h"

namespace velquon {

Application::Application(std::optional<std::uint32_t> seed)
    : menus_(std::make_unique<Menus>()),
      chamber_window_(std::make_unique<ChamberWindow>(seed, menus_->items())),
      projector_window_(std::make_unique<ProjectorWindow>()) {
  menus_->installIn(*chamber_window_);
  menus_->installIn(*projector_window_);
  controller_ = std::make_unique<ChamberController>(
      ChamberOutlets{.chamber_window = chamber_window_.get(),
                     .projector_window = projector_window_.get(),
                     .chamber_view = chamber_window_->view(),
                     .projection_view = projector_window_->view(),
                     .chamber_area = chamber_window_->area(),
                     .projector_area = projector_window_->area(),
                     .menus = &menus_->items(),
                     .settings = chamber_window_->settings()});
  connectWindowMenu();
  controller_->awakeFromNib();
}

Application::~Application() = default;

void Application::showWindows() {
  constexpr QPoint chamber_corner(20, 20);
  constexpr int gap = 16;
  chamber_window_->adjustSize();
  projector_window_->adjustSize();
  chamber_window_->move(chamber_corner);
  projector_window_->move(chamber_corner + QPoint(chamber_window_->width() + gap, 0));
  projector_window_->show();
  chamber_window_->makeKeyAndOrderFront();
}

void Application::connectWindowMenu() {
  const Ui::Menus& items = menus_->items();
  on_triggered({items.chamber_window_item}, this,
               [this](QAction*) { chamber_window_->makeKeyAndOrderFront(); });
  on_triggered({items.projector_window_item}, this,
               [this](QAction*) { projector_window_->makeKeyAndOrderFront(); });
  on_triggered({items.quit_item}, this, [](QAction*) {
    // Not quit(): that would first ask the windows to close, and they only hide.
    QCoreApplication::exit();
  });
}

}  // namespace velquon
