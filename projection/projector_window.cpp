// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/projector_window.h"

#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

#include "projection/projection_view.h"
#include "projection/readings_text.h"
#include "ui_projector_window.h"
#include "widgets/designed_form.h"
#include "widgets/number_text.h"
#include "widgets/palette_icon.h"
#include "widgets/view_scroll_area.h"
#include "wording/told_event.h"

namespace velquon {

namespace {

/// Calls something once whenever a button of a group is chosen: by a click, which may choose the same
/// button again, or by a screen reader, which toggles without a click.
template <typename Choose>
void on_chosen(QAbstractButton* button, Choose choose) {
  const auto chosen_by_toggle = std::make_shared<bool>(false);
  QObject::connect(button, &QAbstractButton::pressed, button,
                   [chosen_by_toggle] { *chosen_by_toggle = false; });
  QObject::connect(button, &QAbstractButton::toggled, button, [=](bool on) {
    if (on) {
      *chosen_by_toggle = true;
      choose();
    }
  });
  QObject::connect(button, &QAbstractButton::clicked, button, [=] {
    if (!*chosen_by_toggle) {
      choose();
    }
  });
}

/// The buttons of a group, and what each chooses.
template <typename Value>
using Choices = std::vector<std::pair<QAbstractButton*, Value>>;

Choices<ProjectionPlane> plane_choices(const Ui::ProjectorWindow& ui) {
  return {{ui.xy_button, ProjectionPlane::xy},
          {ui.xz_button, ProjectionPlane::xz},
          {ui.yz_button, ProjectionPlane::yz}};
}

/// By rising zoom.
Choices<float> zoom_choices(const Ui::ProjectorWindow& ui) {
  return {{ui.zoom_1, 1.0F}, {ui.zoom_2, 2.0F}, {ui.zoom_3, 3.0F}};
}

Choices<ProjectorTool> tool_choices(const Ui::ProjectorWindow& ui) {
  return {{ui.tape_tool, ProjectorTool::tape},
          {ui.grab_tool, ProjectorTool::grab},
          {ui.curve_tool, ProjectorTool::curve},
          {ui.angle_tool, ProjectorTool::angle}};
}

/// Makes each button of a group choose its value by an operation of the view.
template <typename Value>
void connect_choices(ProjectionView* view, void (ProjectionView::*choose)(Value),
                     const Choices<Value>& choices) {
  for (const auto& [button, value] : choices) {
    on_chosen(button, [=, value = value] { (view->*choose)(value); });
  }
}

/// Checks the button of the present value, whoever has chosen that.
template <typename Value>
void show_choice(const Choices<Value>& choices, Value present) {
  for (const auto& [button, value] : choices) {
    if (value == present && !button->isChecked()) {
      const QSignalBlocker chosen_elsewhere(button);
      button->setChecked(true);
    }
  }
}

}  // namespace

ProjectorWindow::ProjectorWindow(Projector& projector)
    : ui_(set_up_form<Ui::ProjectorWindow>(*this)),
      projector_(projector),
      view_(new ProjectionView(projector, ui_->projector_area->viewport())) {
  view_->setObjectName(QStringLiteral("projection_view"));
  for (const auto& [button, icon] : {std::pair{ui_->tape_tool, "tape"},
                                     {ui_->grab_tool, "grab"},
                                     {ui_->curve_tool, "curve"},
                                     {ui_->angle_tool, "angle"}}) {
    button->setIcon(palette_icon(QLatin1String(icon)));
  }
  view_->setAccessibleName(tr("Projection"));
  ui_->projector_area->setAccessibleName(tr("Part of the projection that is seen"));
  ui_->tape_text->setMinimumWidth(
      ui_->tape_text->fontMetrics().horizontalAdvance(QStringLiteral("D = 9999.99 cm")));
  // Room for two lines, whatever is read: the window keeps its size.
  for (QWidget* const label :
       {static_cast<QWidget*>(ui_->tape_text), static_cast<QWidget*>(ui_->readings_text)}) {
    label->setMinimumHeight(2 * label->fontMetrics().lineSpacing());
  }
  ui_->projector_area->setView(view_, {projection_width, projection_height});
  ui_->projector_focus_line->watch(view_);
  ui_->projector_legend->setRoomFor(usual_legend(TrackColoring::by_code), projection_width);
  makeRoomForStatus(long_status());
  connectButtons();
  connectKeys();
  changes_ = projector_.changed.add([this] {
    showChoices();
    showReading();
  });
  showChoices();
  showReading();
  setContent(takeCentralWidget());
}

ProjectorWindow::~ProjectorWindow() = default;

ViewScrollArea* ProjectorWindow::area() const {
  return ui_->projector_area;
}

QString ProjectorWindow::shownReadings() const {
  QString readings = ui_->readings_text->text();
  return readings.isEmpty() ? ui_->tape_text->text()
                            : readings.replace(QStringLiteral("   "), QStringLiteral("\n"));
}

void ProjectorWindow::connectButtons() {
  connect_choices(view_, &ProjectionView::setProjection, plane_choices(*ui_));
  connect_choices(view_, &ProjectionView::setZoom, zoom_choices(*ui_));
  connect_choices(view_, &ProjectionView::setTool, tool_choices(*ui_));
  connect(ui_->snap_button, &QAbstractButton::toggled, this,
          [this](bool on) { projector_.setSnaps(on); });
  connect(view_, &ProjectionView::zoomTurned, this, &ProjectorWindow::zoomBy);
  connect(ui_->record_button, &QAbstractButton::clicked, this, &ProjectorWindow::recordAsked);
}

void ProjectorWindow::zoomBy(ZoomTurn turn) {
  const auto choices = zoom_choices(*ui_);
  const auto present =
      std::ranges::find(choices, projector_.zoom(), &Choices<float>::value_type::second) -
      choices.begin();
  const auto next = static_cast<std::size_t>(turn == ZoomTurn::in ? present + 1 : present - 1);
  // Beyond either end nothing is chosen again, which would take the tape away.
  if (next < choices.size()) {
    choices.at(next).first->click();
  }
}

void ProjectorWindow::showChoices() {
  show_choice(plane_choices(*ui_), projector_.plane());
  show_choice(zoom_choices(*ui_), projector_.zoom());
  show_choice(tool_choices(*ui_), projector_.tool());
  ui_->snap_button->setChecked(projector_.snaps());
}

void ProjectorWindow::connectKeys() {
  const std::initializer_list<std::pair<QKeySequence, QAbstractButton*>> keys{
      {Qt::Key_Z, ui_->xy_button},
      {Qt::Key_Y, ui_->xz_button},
      {Qt::Key_X, ui_->yz_button},
      {Qt::Key_1, ui_->zoom_1},
      {Qt::Key_2, ui_->zoom_2},
      {Qt::Key_3, ui_->zoom_3},
      {Qt::Key_T, ui_->tape_tool},
      {Qt::Key_G, ui_->grab_tool},
      {Qt::Key_C, ui_->curve_tool},
      {Qt::Key_A, ui_->angle_tool},
      {Qt::Key_S, ui_->snap_button},
      {QKeySequence(Qt::CTRL | Qt::Key_Return), ui_->record_button},
      {QKeySequence(Qt::CTRL | Qt::Key_Enter), ui_->record_button}};
  for (const auto& [key, button] : keys) {
    auto* const shortcut = new QShortcut(key, this);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
  }
}

void ProjectorWindow::showReading() {
  ui_->tape_text->setText(QStringLiteral("D = %1 cm").arg(fixed_text(projector_.reading(), 5, 2)));
  const QString readings = shown_readings(projector_);
  // What to do next may take both lines in some languages; readings have lines of their own.
  ui_->readings_text->setWordWrap(projector_.readings().empty());
  ui_->readings_text->setText(readings);
  ui_->readings_text->setVisible(!readings.isEmpty());
  ui_->tape_text->setVisible(readings.isEmpty());
  ui_->record_button->setEnabled(!projector_.readings().empty());
  describePicture();
}

void ProjectorWindow::tell(const ToldEvent& event) {
  ui_->projector_legend->setLegend(event.legend, event.spoken_legend);
  ui_->projector_status->tell(event.status);
  event_in_words_ = event.spoken;
  describePicture();
}

void ProjectorWindow::showLegend(bool show) {
  ui_->projector_legend->setVisible(show);
}

void ProjectorWindow::makeRoomForStatus(const QString& longest) {
  ui_->projector_status->setRoomFor(longest, projection_width);
}

void ProjectorWindow::describePicture() {
  // A screen reader tells a description that changes while the view has the focus.
  // While one measures, each step is told alone.
  const bool is_measuring = projector_.tape().visible ||
                            !projector_.curve().points.places().empty() ||
                            !projector_.angle().points.places().empty();
  QString spoken = spoken_readings(projector_);
  if (!is_measuring && !event_in_words_.isEmpty()) {
    spoken = event_in_words_ + QLatin1Char(' ') + spoken;
  }
  if (spoken != view_->accessibleDescription()) {
    view_->setAccessibleDescription(spoken);
  }
}

}  // namespace velquon
