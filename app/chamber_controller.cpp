#include "app/chamber_controller.h"

#include <QFileInfo>
#include <QMenu>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "app/choices.h"
#include "app/command_line.h"
#include "widgets/gl_panel.h"
#include "printing/print_panel.h"
#include "printing/print_view.h"
#include "chamber/chamber_view.h"
#include "events/lambda_decay.h"
#include "events/lepton_decays.h"
#include "events/neutral_pion_decay.h"
#include "widgets/view_scroll_area.h"
#include "projection/projection_view.h"
#include "ui_menus.h"

namespace velquon {

namespace {

// A title with its closing zero byte has that much room.
constexpr qsizetype title_size = 256;

void set_title(GLPanel& window, const QString& prefix, const QString& name) {
  const QString title = prefix + name;
  if (title.toUtf8().size() + 1 > title_size) {
    std::fprintf(stderr, "velquon: the name '%s' does not fit into a window's title\n",
                 qPrintable(as_one_line(name)));
    std::abort();
  }
  window.setTitle(title);
}

}  // namespace

ChamberController::ChamberController(const ChamberOutlets& outlets, QObject* parent)
    : QObject(parent),
      outlets_(outlets),
      settings_(outlets.settings),
      print_choices_(std::make_unique<PrintChoices>()) {
  connectMenus();
  connectWindows();
}

ChamberController::~ChamberController() = default;

void ChamberController::awakeFromNib() {
  constexpr ChamberValues start_up;
  chamber_on_top_ = true;
  settings_.setFieldControl(start_up.B_field);
  settings_.setSidesControl(start_up.sides_cm);
  settings_.setEnergyControl(start_up.kinetic_Mev);
  settings_.setNextChamberValues();
  setCurrentChamberValues();
  renameWindows(QStringLiteral("Empty"));
  setChamberData({});
  constexpr QPointF start_corner(10.0, 30.0);
  outlets_.projector_area->scrollPoint(start_corner);
  outlets_.chamber_area->scrollPoint(start_corner);
  setPrintView(outlets_.chamber_view);
}

void ChamberController::makeNewEvent() {
  ChamberView& chamber_view = *outlets_.chamber_view;
  const auto type = static_cast<std::size_t>(chamber_view.event_type());
  chamber_view.stopRotating();
  if (chamber_view.reset_each()) {
    chamber_view.resetOrientation();
  }
  settings_.setNextChamberValues();
  setCurrentChamberValues();
  if (type < event_types().size()) {
    runGenerator(type);
    renameWindows(QStringLiteral("Untitled Type %1 Decay").arg(type + 1));
  }
  chamber_view.setHasEvent(true);
  outlets_.projection_view->restore();
  if (chamber_view.reset_each()) {
    chamber_view.resetOrientation();
  }
  reorderWindows();
  if (chamber_view.slomo()) {
    chamber_view.replay();
  } else {
    chamber_view.display();
  }
  outlets_.projection_view->display();
}

void ChamberController::runGenerator(std::size_t type) {
  constexpr std::array<void (ChamberController::*)(), 6> generators{
      &ChamberController::makePionDecay,   &ChamberController::makePionDecay,
      &ChamberController::makePizeroDecay, &ChamberController::makeMuonDecay,
      &ChamberController::makeMuonDecay,   &ChamberController::makeLambdaDecay};
  const float field = settings_.next().B_field;
  settings_.setNextBField(event_types()[type].flips_field ? -field : field);
  (this->*generators.at(type))();
  settings_.setNextBField(field);
}

void ChamberController::makePionDecay() {
  runChain(pion_chain);
}
void ChamberController::makeMuonDecay() {
  runChain(muon_chain);
}
void ChamberController::makePizeroDecay() {
  runChain(pizero_chain);
}
void ChamberController::makeLambdaDecay() {
  runChain(lambda_chain);
}

void ChamberController::runChain(DecayChain chain) {
  TrackBuffer event;
  if (run_chain(chain, settings_.next(), event) == HandOver::yes) {
    setChamberData(event.points());
  }
}

void ChamberController::setChamberData(std::span<const PlotPoint> points) {
  outlets_.chamber_view->setData(points);
  outlets_.projection_view->setData(outlets_.chamber_view->data_ptr());
}

void ChamberController::setCurrentChamberValues() {
  // The chamber's 800 drawing units span 400 view units of the projection at zoom 1.
  constexpr double projected_side = 400.0;
  const ChamberValues& next = settings_.next();
  outlets_.chamber_view->setCurrentBField(next.B_field);
  outlets_.chamber_view->setCurrentSidesCm(next.sides_cm);
  outlets_.chamber_view->setCurrentMev(next.kinetic_Mev);
  outlets_.projection_view->setScaler(outlets_.chamber_view->sides_cm() / projected_side);
}

void ChamberController::renameWindows(const QString& name) {
  set_title(*outlets_.chamber_window, QStringLiteral("Particle Chamber: "), name);
  set_title(*outlets_.projector_window, QStringLiteral("Projector: "), name);
  shown_name_ = name;
}

void ChamberController::reorderWindows() {
  GLPanel* const window = chamber_on_top_ ? outlets_.chamber_window : outlets_.projector_window;
  window->makeKeyAndOrderFront();
}

void ChamberController::displayViews() {
  outlets_.chamber_view->display();
  outlets_.projection_view->display();
}

void ChamberController::print() {
  // The panel takes the keys from the view's window, and with them the choice of what is printed.
  Printable* const view = print_view_;
  if (view == nullptr) {
    return;
  }
  GLPanel* const window = view == static_cast<Printable*>(outlets_.chamber_view)
                              ? outlets_.chamber_window
                              : outlets_.projector_window;
  // The page shows the picture at rest, as the panel's preview does.
  outlets_.chamber_view->stopRotating();
  PrintView page(*view, window->title(), *outlets_.chamber_view);
  PrintPanel(page, QFileInfo(shown_name_).completeBaseName(), *print_choices_, *outlets_.dialogs,
             window)
      .exec();
}

void ChamberController::set_event_type(QAction* sender) {
  const auto items = outlets_.menus->event_menu->actions();
  check_only(items, sender);
  outlets_.chamber_view->setEventType(static_cast<int>(items.indexOf(sender)));
}

void ChamberController::set_monitor(QAction* sender) {
  check_only({outlets_.menus->mon_chamber, outlets_.menus->mon_projector}, sender);
  chamber_on_top_ = sender == outlets_.menus->mon_chamber;
}

void ChamberController::set_axis(QAction* sender) {
  const QList<QAction*> items{outlets_.menus->x_item, outlets_.menus->y_item,
                              outlets_.menus->z_item};
  check_only(items, sender);
  const auto index = items.indexOf(sender);
  outlets_.chamber_view->setRotationAxis(static_cast<int>(index < 0 ? items.size() : index + 1));
}

void ChamberController::set_slomo(QAction* sender) {
  outlets_.chamber_view->set_slomo(!outlets_.chamber_view->slomo());
  sender->setChecked(outlets_.chamber_view->slomo());
}

void ChamberController::set_chamber_prefs(QAction* sender) {
  ChamberView& view = *outlets_.chamber_view;
  if (sender == outlets_.menus->axes_item) {
    view.set_show_axes(!view.show_axes());
    sender->setChecked(view.show_axes());
  } else if (sender == outlets_.menus->values_item) {
    view.set_show_values(!view.show_values());
    sender->setChecked(view.show_values());
  } else {
    view.set_reset_each(!view.reset_each());
    sender->setChecked(view.reset_each());
  }
}

bool ChamberController::validateMenuItem(const QAction* item) const {
  return item != outlets_.menus->print_item || print_view_ != nullptr;
}

void ChamberController::setPrintView(Printable* view) {
  print_view_ = view;
  outlets_.menus->print_item->setEnabled(validateMenuItem(outlets_.menus->print_item));
}

void ChamberController::keyWindowChanged() {
  // A window hears that it has the keys before the other one hears that it lost them, so both look
  // at where the keys are. The turntable runs only while the chamber's window has them.
  if (outlets_.chamber_window->isActiveWindow()) {
    setPrintView(outlets_.chamber_view);
    return;
  }
  if (outlets_.chamber_view->is_rotating()) {
    outlets_.chamber_view->stopRotating();
  }
  setPrintView(outlets_.projector_window->isActiveWindow() ? outlets_.projection_view : nullptr);
}

void ChamberController::connectMenus() {
  const Ui::Menus& menus = *outlets_.menus;
  ChamberView* const view = outlets_.chamber_view;
  on_triggered({menus.new_event_item}, this, [this](QAction*) { makeNewEvent(); });
  on_triggered({menus.print_item}, this, [this](QAction*) { print(); });
  on_triggered({menus.replay_item}, this, [view](QAction*) { view->replay(); });
  on_triggered({menus.rotate_item, menus.reverse_rotate_item}, this,
               [view](QAction* sender) { view->doRotation(sender); });
  on_triggered({menus.reset_orientation_item}, this,
               [view](QAction*) { view->resetOrientation(); });
  on_triggered({menus.rotate_faster_item, menus.default_rotate_item, menus.rotate_slower_item},
               this, [view](QAction* sender) { view->setRotationRate(sender); });
  on_triggered(menus.event_menu->actions(), this,
               [this](QAction* sender) { set_event_type(sender); });
  on_triggered({menus.axes_item, menus.values_item, menus.reset_each_item}, this,
               [this](QAction* sender) { set_chamber_prefs(sender); });
  on_triggered({menus.slomo_item}, this, [this](QAction* sender) { set_slomo(sender); });
  on_triggered(menus.axis_menu->actions(), this, [this](QAction* sender) { set_axis(sender); });
  on_triggered(menus.monitor_menu->actions(), this,
               [this](QAction* sender) { set_monitor(sender); });
  view->setRotationItems({.rotate_item = menus.rotate_item,
                          .reverse_rotate_item = menus.reverse_rotate_item,
                          .rotate_faster_item = menus.rotate_faster_item,
                          .default_rotate_item = menus.default_rotate_item,
                          .rotate_slower_item = menus.rotate_slower_item});
}

void ChamberController::connectWindows() {
  for (GLPanel* const window : {outlets_.chamber_window, outlets_.projector_window}) {
    connect(window, &GLPanel::becameKey, this, &ChamberController::keyWindowChanged);
    connect(window, &GLPanel::resignedKey, this, &ChamberController::keyWindowChanged);
  }
  connect(outlets_.chamber_view, &ChamberView::windowWanted, outlets_.chamber_window,
          &GLPanel::makeKeyAndOrderFront);
}

}  // namespace velquon
