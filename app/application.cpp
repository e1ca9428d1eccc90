#include "app/application.h"

#include <QApplication>
#include <QOpenGLContext>

#include "app/chamber_commands.h"
#include "app/chamber_controller.h"
#include "app/commands.h"
#include "app/event_documents.h"
#include "app/guide_window.h"
#include "app/menus.h"
#include "app/readable_style.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "projection/projection_view.h"
#include "projection/projector_window.h"
#include "ui_menus.h"
#include "widgets/screen_room.h"

namespace velquon {

Application::Application(std::optional<std::uint32_t> seed, UserDialogs& dialogs)
    : model_(seed),
      screen_room_(std::make_unique<ScreenRoom>()),
      menus_(std::make_unique<Menus>()),
      chamber_window_(std::make_unique<ChamberWindow>(model_)),
      projector_window_(std::make_unique<ProjectorWindow>(projector_)),
      controller_(std::make_unique<ChamberController>(model_, *chamber_window_, *projector_window_,
                                                      dialogs)),
      documents_(std::make_unique<EventDocuments>(*controller_, dialogs)),
      commands_(std::make_unique<Commands>()) {
  make_style_readable();
  const Ui::Menus& items = menus_->items();
  chamber_window_->fillToolBar({items.new_event_item, items.replay_item, items.rotate_item,
                                items.reset_orientation_item},
                               items.event_menu);
  for (GLPanel* const window : windows()) {
    menus_->installIn(*window);
  }
  addFileCommands();
  add_chamber_commands(*commands_, items, *controller_, *chamber_window_->view());
  addWindowCommands();
  addHelpCommands();
  connectDrops();
  controller_->awakeFromNib();
  commands_->refresh();
}

Application::~Application() = default;

void Application::showWindows() {
  constexpr QPoint chamber_corner(20, 20);
  constexpr int gap = 16;
  // adjustSize would leave a third of the screen free and cut the pictures on a low one.
  chamber_window_->resize(size_to_open_at(*chamber_window_));
  projector_window_->resize(size_to_open_at(*projector_window_));
  place_on_screen(*chamber_window_, chamber_corner);
  // Rather over the other window than beyond the edge of a narrow screen.
  place_on_screen(*projector_window_, chamber_corner + QPoint(chamber_window_->width() + gap, 0));
  // The keys go to the chamber's window at once, not first to the one that comes up before it.
  projector_window_->setAttribute(Qt::WA_ShowWithoutActivating);
  projector_window_->show();
  projector_window_->setAttribute(Qt::WA_ShowWithoutActivating, false);
  chamber_window_->makeKeyAndOrderFront();
}

bool Application::viewsCanDraw() const {
  // What the views draw into came with version 2.
  const auto can_draw = [](const QOpenGLWidget& view) {
    return view.isValid() && view.context()->format().majorVersion() >= 2;
  };
  return can_draw(*chamber_window_->view()) && can_draw(*projector_window_->view());
}

std::vector<GLPanel*> Application::windows() const {
  return {chamber_window_.get(), projector_window_.get()};
}

void Application::addFileCommands() {
  const Ui::Menus& items = menus_->items();
  EventDocuments* const documents = documents_.get();
  commands_->add(
      {{.item = items.open_item, .run = [=] { documents->open_event_file(false); }},
       {.item = items.import_item, .run = [=] { documents->open_event_file(true); }},
       {.item = items.save_item, .run = [=] { documents->save_event_file(); }},
       // Not quit(): that would first ask the windows to close, and they only hide.
       {.item = items.quit_item, .run = [] { QCoreApplication::exit(); }}});
}

void Application::addWindowCommands() {
  const Ui::Menus& items = menus_->items();
  commands_->add({{.item = items.chamber_window_item,
                   .run = [this] { chamber_window_->makeKeyAndOrderFront(); }},
                  {.item = items.projector_window_item,
                   .run = [this] { projector_window_->makeKeyAndOrderFront(); }}});
}

void Application::addHelpCommands() {
  const Ui::Menus& items = menus_->items();
  commands_->add(
      {{.item = items.guide_item, .run = [this] { showGuide(); }},
       {.item = items.about_item, .run = [] { show_about(QApplication::activeWindow()); }}});
}

void Application::connectDrops() {
  for (GLPanel* const window : windows()) {
    // Queued: the program that the file comes from waits for the drop's end, not for an alert's.
    connect(window, &GLPanel::fileDropped, documents_.get(), &EventDocuments::application_openFile,
            Qt::QueuedConnection);
    // A file may be dropped where and when one may be opened.
    connect(menus_->items().open_item, &QAction::enabledChanged, window, &GLPanel::setTakesFiles);
  }
}

void Application::showGuide() {
  if (!guide_window_) {
    guide_window_ = std::make_unique<GuideWindow>();
  }
  guide_window_->show();
  guide_window_->raise();
  guide_window_->activateWindow();
}

}  // namespace velquon
