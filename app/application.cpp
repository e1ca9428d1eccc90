#include "app/application.h"

#include <QApplication>
#include <QOpenGLContext>

#include "app/chamber_controller.h"
#include "chamber/chamber_window.h"
#include "app/choices.h"
#include "app/event_documents.h"
#include "app/guide_window.h"
#include "app/menus.h"
#include "projection/projector_window.h"
#include "track/track_window.h"
#include "chamber/chamber_view.h"
#include "app/readable_style.h"
#include "widgets/screen_room.h"
#include "projection/projection_view.h"
#include "ui_menus.h"

namespace velquon {

Application::Application(std::optional<std::uint32_t> seed, UserDialogs& dialogs)
    : screen_room_(std::make_unique<ScreenRoom>()),
      menus_(std::make_unique<Menus>()),
      chamber_window_(std::make_unique<ChamberWindow>(seed, menus_->items())),
      projector_window_(std::make_unique<ProjectorWindow>()),
      track_window_(std::make_unique<TrackWindow>(menus_->items())) {
  make_style_readable();
  for (GLPanel* const window : windows()) {
    menus_->installIn(*window);
  }
  track_window_->tellStatusIn(*chamber_window_);
  track_window_->tellStatusIn(*projector_window_);
  controller_ = std::make_unique<ChamberController>(
      ChamberOutlets{.chamber_window = chamber_window_.get(),
                     .projector_window = projector_window_.get(),
                     .chamber_view = chamber_window_->view(),
                     .projection_view = projector_window_->view(),
                     .chamber_area = chamber_window_->area(),
                     .projector_area = projector_window_->area(),
                     .menus = &menus_->items(),
                     .dialogs = &dialogs,
                     .settings = chamber_window_->settings()});
  documents_ = std::make_unique<EventDocuments>(*controller_, *chamber_window_->view(), dialogs);
  connectDocuments();
  connectWindowMenu();
  connectHelpMenu();
  controller_->awakeFromNib();
  track_window_->awakeFromNib();
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

std::array<GLPanel*, 3> Application::windows() const {
  return {chamber_window_.get(), projector_window_.get(), track_window_.get()};
}

void Application::connectDocuments() {
  const Ui::Menus& items = menus_->items();
  EventDocuments* const documents = documents_.get();
  on_triggered({items.open_item, items.import_item}, this, [&items, documents](QAction* sender) {
    documents->open_event_file(sender != items.open_item);
  });
  on_triggered({items.save_item}, this, [documents](QAction*) { documents->save_event_file(); });
  for (GLPanel* const window : windows()) {
    // Queued: the program that the file comes from waits for the drop's end, not for an alert's.
    connect(window, &GLPanel::fileDropped, documents, &EventDocuments::application_openFile,
            Qt::QueuedConnection);
    // A file may be dropped where and when one may be opened.
    connect(items.open_item, &QAction::enabledChanged, window, &GLPanel::setTakesFiles);
  }
}

void Application::connectWindowMenu() {
  const Ui::Menus& items = menus_->items();
  on_triggered({items.chamber_window_item}, this,
               [this](QAction*) { chamber_window_->makeKeyAndOrderFront(); });
  on_triggered({items.projector_window_item}, this,
               [this](QAction*) { projector_window_->makeKeyAndOrderFront(); });
  // Connected after the track controller's own action, which may have hidden the last window.
  on_triggered({items.activate_item}, this, [this](QAction*) {
    if (!GLPanel::anyOnScreen()) {
      chamber_window_->makeKeyAndOrderFront();
    }
  });
  on_triggered({items.quit_item}, this, [](QAction*) {
    // Not quit(): that would first ask the windows to close, and they only hide.
    QCoreApplication::exit();
  });
}

void Application::connectHelpMenu() {
  const Ui::Menus& items = menus_->items();
  on_triggered({items.guide_item}, this, [this](QAction*) { showGuide(); });
  on_triggered({items.about_item}, this,
               [](QAction*) { show_about(QApplication::activeWindow()); });
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
