// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include <QApplication>
#include <QEvent>
#include <QOpenGLContext>
#include <algorithm>

#include "app/chamber_commands.h"
#include "app/chamber_controller.h"
#include "app/chamber_tool_bar.h"
#include "app/event_documents.h"
#include "app/event_exports.h"
#include "app/event_telling.h"
#include "app/help_commands.h"
#include "app/menus.h"
#include "app/picture_commands.h"
#include "app/picture_files.h"
#include "app/presentations.h"
#include "app/track_commands.h"
#include "app/worksheet_commands.h"
#include "chamber/chamber_settings.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "model/measurement_of_event.h"
#include "projection/projection_view.h"
#include "projection/projector_window.h"
#include "record/measurement_files.h"
#include "record/measurements_window.h"
#include "record/record_window.h"
#include "track/new_track_view.h"
#include "track/track_controller.h"
#include "track/track_panel.h"
#include "track/track_window.h"
#include "ui_menus.h"
#include "widgets/commands.h"
#include "widgets/screen_ratio.h"
#include "widgets/screen_room.h"
#include "wording/legend_text.h"

namespace velquon {

namespace {

TrackColoring coloring_of_projector(const ChamberModel& model) {
  return model.preferences().colored_projector ? TrackColoring::by_code : TrackColoring::white;
}

}  // namespace

Application::Application(std::optional<std::uint32_t> seed, UserDialogs& dialogs)
    : model_(seed),
      screen_room_(std::make_unique<ScreenRoom>()),
      screen_ratio_(std::make_unique<ScreenRatio>()),
      menus_(std::make_unique<Menus>()),
      chamber_window_(std::make_unique<ChamberWindow>(model_)),
      projector_window_(std::make_unique<ProjectorWindow>(projector_)),
      controller_(std::make_unique<ChamberController>(model_, projector_, *chamber_window_,
                                                      *projector_window_, dialogs)),
      documents_(std::make_unique<EventDocuments>(*controller_, dialogs)),
      exports_(std::make_unique<EventExports>(model_, dialogs)),
      pictures_(std::make_unique<PictureFiles>(*controller_, *chamber_window_->view(),
                                               *projector_window_->view(), dialogs)),
      measurement_files_(std::make_unique<MeasurementFiles>(measurements_, dialogs)),
      help_(std::make_unique<HelpCommands>(
          // The bar that holds a menu besides those of all windows.
          *menus_, [this] { return measurementsWindow().menuBar()->actions(); })),
      dialogs_(dialogs),
      presentations_(std::make_unique<Presentations>()),
      commands_(std::make_unique<Commands>()) {
  const Ui::Menus& items = menus_->items();
  fill_chamber_tool_bar(*chamber_window_->toolBar(), items);
  join(*chamber_window_);
  join(*projector_window_);
  connect(projector_window_.get(), &ProjectorWindow::recordAsked, this,
          &Application::recordReadings);
  addFileCommands();
  add_picture_commands(*commands_, items, *pictures_, [this] { return numbering_->nameOfShown(); });
  add_worksheet_command(*commands_, items, model_, dialogs);
  add_chamber_commands(*commands_, items, *controller_, *chamber_window_->view());
  addTrackCommands();
  addWindowCommands();
  help_->addTo(*commands_);
  connect(commands_.get(), &Commands::aboutToRun, this, &Application::finishTyping);
  controller_->awakeFromNib();
  numbering_ = std::make_unique<EventNumbering>(model_);
  telling_ =
      std::make_unique<EventTelling>(model_, *numbering_, *chamber_window_, *projector_window_);
  telling_->setSeed(seed);
  telling_->setBeginKey(items.new_event_item->shortcut());
  telling_->refresh();
  // Hears of changes after those that bring the windows' texts up to date.
  addPresentation();
  commands_->refresh();
}

Application::~Application() {
  // Before what it tells of: windows that go change the state of what they showed.
  commands_.reset();
  presentations_.reset();
  record_window_.reset();
  measurements_window_.reset();
}

void Application::showWindows() {
  constexpr QPoint chamber_corner(20, 20);
  constexpr int gap = 16;
  // adjustSize would leave a third of the screen free and cut the pictures on a low one.
  chamber_window_->resize(size_to_open_at(*chamber_window_));
  projector_window_->resize(size_to_open_at(*projector_window_));
  place_on_screen(*chamber_window_, chamber_corner);
  // Rather over the other window than beyond the edge of a narrow screen.
  place_on_screen(*projector_window_, chamber_corner + QPoint(chamber_window_->width() + gap, 0));
  // The chamber's window gets the focus at once, not first the one that comes up before it.
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

TrackWindow& Application::trackWindow() {
  if (!track_window_) {
    track_window_ = std::make_unique<TrackWindow>(track_model_);
    join(*track_window_);
    track_window_->tellStatusIn(*chamber_window_);
    track_window_->tellStatusIn(*projector_window_);
    track_window_->awakeFromNib();
    presentations_->add({.window = track_window_.get(),
                         .area = track_window_->panel().track_area(),
                         .texts = [this] {
                           return PresentedTexts{
                               .title = track_window_->title(),
                               .readings = track_window_->panel().shownReadings()};
                         }});
  }
  return *track_window_;
}

RecordWindow& Application::recordWindow() {
  if (!record_window_) {
    record_window_ = std::make_unique<RecordWindow>(model_);
    join(*record_window_);
  }
  return *record_window_;
}

MeasurementsWindow& Application::measurementsWindow() {
  if (!measurements_window_) {
    measurements_window_ =
        std::make_unique<MeasurementsWindow>(measurements_, *measurement_files_, model_, dialogs_);
    join(*measurements_window_);
    measurements_window_->insertMenu(menus_->items().window_menu->menuAction());
    connect(measurements_window_.get(), &MeasurementsWindow::recordAsked, this,
            &Application::recordReadings);
  }
  return *measurements_window_;
}

void Application::recordReadings() {
  const std::vector<Reading> readings = projector_.readings();
  MeasurementsWindow& window = measurementsWindow();
  if (!window.isVisible()) {
    // The window in which one measures stays active.
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.show();
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (QWidget* const active = QApplication::activeWindow()) {
      active->raise();
    }
  }
  if (readings.empty()) {
    window.tell(tr("Nothing is measured: lay out a tool of the projector first."));
    return;
  }
  measurements_.add(
      rows_of_readings(readings, projector_.plane(), *model_.shown(), numbering_->nameOfShown()));
}

bool Application::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close) {
    const auto windows = QApplication::topLevelWidgets();
    const bool is_last = std::ranges::none_of(windows, [watched](const QWidget* window) {
      return window != watched && qobject_cast<const GLPanel*>(window) != nullptr &&
             window->isVisible();
    });
    if (is_last && !mayEnd()) {
      event->ignore();
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

void Application::finishTyping() {
  chamber_window_->settings().finishTyping();
  if (measurements_window_) {
    measurements_window_->finishEdit();
  }
}

bool Application::mayEnd() {
  finishTyping();
  return measurement_files_->mayDiscard();
}

void Application::quit() {
  if (mayEnd()) {
    // Not QCoreApplication::quit: that would first ask the windows to close, and they only hide.
    QCoreApplication::exit();
  }
}

void Application::join(GLPanel& window) {
  menus_->installIn(window);
  window.installEventFilter(this);
  // Queued: the program that the file comes from waits for the drop's end, not for an alert's.
  connect(&window, &GLPanel::fileDropped, documents_.get(), &EventDocuments::application_openFile,
          Qt::QueuedConnection);
  // A file may be dropped where and when one may be opened.
  window.takeFilesWhile([this] { return track_model_.isEnabled(TrackItem::rest_of_program); });
}

void Application::addTrackCommands() {
  const Ui::Menus& items = menus_->items();
  add_track_commands(
      *commands_, items, track_model_,
      [this]() -> TrackController& { return trackWindow().controller(); },
      [this] { return track_window_ ? track_window_->panel().track_view() : nullptr; });
  // After the track's own command, which may have hidden the last window.
  commands_->add({.item = items.activate_item, .run = [this] {
                    if (!GLPanel::anyOnScreen()) {
                      chamber_window_->makeKeyAndOrderFront();
                    }
                  }});
}

void Application::addFileCommands() {
  const Ui::Menus& items = menus_->items();
  EventDocuments* const documents = documents_.get();
  commands_->add({{.item = items.open_item, .run = [=] { documents->open_event_file(false); }},
                  {.item = items.import_item, .run = [=] { documents->open_event_file(true); }},
                  {.item = items.save_item, .run = [=] { documents->save_event_file(); }},
                  {.item = items.export_points_item,
                   .run = [this] { exports_->exportPoints(); },
                   .is_enabled = [this] { return exports_->hasPoints(); }},
                  {.item = items.export_record_item,
                   .run = [this] { exports_->exportRecord(); },
                   .is_enabled = [this] { return exports_->hasRecord(); }},
                  {.item = items.quit_item, .run = [this] { quit(); }}});
}

void Application::addWindowCommands() {
  const Ui::Menus& items = menus_->items();
  commands_->add(
      {{.item = items.chamber_window_item,
        .run = [this] { chamber_window_->makeKeyAndOrderFront(); }},
       {.item = items.projector_window_item,
        .run = [this] { projector_window_->makeKeyAndOrderFront(); }},
       {.item = items.track_window_item, .run = [this] { trackWindow().makeKeyAndOrderFront(); }},
       {.item = items.event_record_item, .run = [this] { recordWindow().makeKeyAndOrderFront(); }},
       {.item = items.measurements_item,
        .run = [this] { measurementsWindow().makeKeyAndOrderFront(); }}});
}

void Application::addPresentation() {
  commands_->add({.item = menus_->items().presentation_item,
                  .run = [this] { presentations_->toggle(); },
                  .is_checked = [this] { return presentations_->isOn(); }});
  connect(presentations_.get(), &Presentations::changed, commands_.get(), &Commands::refresh);
  const auto legend = [this](TrackColoring coloring) {
    return legend_lines(legend_of(*model_.shown()->tracks, model_.answersShown()), coloring);
  };
  // A picture without tracks does not tell that there is an event.
  const auto title = [this](const GLPanel& window) {
    const ShownEvent& event = *model_.shown();
    const bool is_empty = event.has_event && event.points().empty();
    return is_empty ? window.title() + QLatin1Char('\n') + chamber_window_->shownStatus()
                    : window.title();
  };
  presentations_->add(
      {.window = chamber_window_.get(),
       .area = chamber_window_->area(),
       .texts =
           [this, legend, title] {
             return PresentedTexts{.title = title(*chamber_window_),
                                   .legend = legend(TrackColoring::by_code)};
           },
       // An Escape that ends a replay ends nothing else.
       .takes_key = [this] { return chamber_window_->view()->handlesLateInput(); }});
  presentations_->add({.window = projector_window_.get(),
                       .area = projector_window_->area(),
                       .texts = [this, legend, title] {
                         return PresentedTexts{.title = title(*projector_window_),
                                               .legend = legend(coloring_of_projector(model_)),
                                               .readings = projector_window_->shownReadings()};
                       }});
  for (Listeners* const changes : {&model_.changed, &projector_.changed, &track_model_.changed}) {
    presentations_->refreshOn(*changes);
  }
}

}  // namespace velquon
