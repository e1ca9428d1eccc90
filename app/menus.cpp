#include "app/menus.h"

#include <QMainWindow>
#include <QMenuBar>

#include "ui_menus.h"

namespace velquon {

Menus::Menus() : owner_(std::make_unique<QMenuBar>()), ui_(std::make_unique<Ui::Menus>()) {
  ui_->setupUi(owner_.get());
}

Menus::~Menus() = default;

void Menus::installIn(QMainWindow& window) const {
  for (QAction* const menu : owner_->actions()) {
    window.menuBar()->addMenu(menu->menu());
  }
}

}  // namespace velquon
