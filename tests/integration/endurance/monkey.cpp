// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/integration/endurance/monkey.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <array>
#include <cmath>

#include "app/menus.h"
#include "tests/support/windows/application_fixture.h"
#include "ui_menus.h"
#include "widgets/gl_panel.h"

namespace velquon::test {

namespace {

constexpr std::array monkey_keys{
    Qt::Key_Return, Qt::Key_Escape,   Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space,
    Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,     Qt::Key_Down,    Qt::Key_PageUp,
    Qt::Key_Home,   Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_End,     Qt::Key_Backspace,
    Qt::Key_F1,     Qt::Key_F3,       Qt::Key_F11,    Qt::Key_0,       Qt::Key_1,
    Qt::Key_2,      Qt::Key_3,        Qt::Key_A,      Qt::Key_C,       Qt::Key_E,
    Qt::Key_F,      Qt::Key_G,        Qt::Key_J,      Qt::Key_K,       Qt::Key_L,
    Qt::Key_M,      Qt::Key_N,        Qt::Key_R,      Qt::Key_S,       Qt::Key_T,
    Qt::Key_X,      Qt::Key_Y,        Qt::Key_Z,      Qt::Key_Plus,    Qt::Key_Minus};
constexpr std::array modifiers{
    Qt::KeyboardModifiers(Qt::NoModifier),      Qt::KeyboardModifiers(Qt::NoModifier),
    Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
    Qt::KeyboardModifiers(Qt::AltModifier),     Qt::ControlModifier | Qt::ShiftModifier};
constexpr std::array buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                             Qt::MiddleButton};
constexpr std::array texts{"5", "0", "-1", "1e308", "nan", "2.5", "1,5", "9999999999", "", "kink"};

QString name_of(const QWidget& widget) {
  return QLatin1String(widget.metaObject()->className()) + QLatin1Char(' ') + widget.objectName();
}

}  // namespace

Monkey::Monkey(std::uint32_t seed) : chance_(seed), dialogs_(chance_) {}

Monkey::~Monkey() = default;

int Monkey::play(int seconds) {
  over_ = false;
  QElapsedTimer since;
  since.start();
  QTimer end;
  end.setSingleShot(true);
  end.callOnTimeout(this, [this] {
    over_ = true;
    // Dialogs that are up end first, each loop in its turn.
    while (QWidget* const modal = QApplication::activeModalWidget()) {
      modal->close();
      if (modal->isVisible()) {
        modal->hide();
      }
    }
    while (QWidget* const popup = QApplication::activePopupWidget()) {
      popup->close();
    }
    // Not quit: the windows would be asked, and stay.
    QCoreApplication::exit();
  });
  end.start(seconds * 1000);
  while (!over_) {
    start();
    QTimer::singleShot(0, this, &Monkey::act);
    QApplication::exec();
    note(QStringLiteral("the program has ended"));
    application_.reset();
  }
  return count_;
}

void Monkey::start() {
  application_ =
      std::make_unique<Application>(static_cast<std::uint32_t>(chance_.below(1000)), dialogs_);
  application_->showWindows();
}

void Monkey::act() {
  if (over_ || application_ == nullptr) {
    return;
  }
  // First, as what is done may open a dialog with an event loop of its own.
  QTimer::singleShot(2, this, &Monkey::act);
  ++count_;
  using Act = void (Monkey::*)();
  constexpr std::array<Act, 14> acts{
      &Monkey::clickOrDrag, &Monkey::clickOrDrag, &Monkey::clickOrDrag, &Monkey::clickOrDrag,
      &Monkey::pressKey,    &Monkey::pressKey,    &Monkey::pressKey,    &Monkey::pressKey,
      &Monkey::chooseItem,  &Monkey::chooseItem,  &Monkey::writeText,   &Monkey::turnWheel,
      &Monkey::workWindow,  &Monkey::dropFile};
  (this->*chance_.oneOf(acts))();
  checkState();
}

void Monkey::checkState() {
  if (application_ == nullptr) {
    return;
  }
  const ChamberValues& next = application_->model().next();
  for (const float value : {next.B_field, next.sides_cm, next.kinetic_Mev}) {
    EXPECT_TRUE(std::isfinite(value)) << lastDone();
  }
  EXPECT_GT(next.sides_cm, 0.0F) << lastDone();
  EXPECT_GE(next.kinetic_Mev, 0.0F) << lastDone();
}

QWidget* Monkey::target() {
  if (QWidget* const popup = QApplication::activePopupWidget()) {
    return popup;
  }
  QWidget* top = QApplication::activeModalWidget();
  if (top == nullptr) {
    QList<QWidget*> shown;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
      if (window->isVisible() && !window->isMinimized()) {
        shown << window;
      }
    }
    top = shown.isEmpty() ? nullptr : chance_.oneOf(shown);
  }
  if (top == nullptr) {
    return nullptr;
  }
  QList<QWidget*> inside{top};
  const auto widgets = top->findChildren<QWidget*>();
  for (QWidget* const widget : widgets) {
    if (widget->isVisible() && widget->window() == top && widget->width() > 0 &&
        widget->height() > 0) {
      inside << widget;
    }
  }
  return chance_.oneOf(inside);
}

void Monkey::clickOrDrag() {
  QWidget* const chosen = target();
  if (chosen == nullptr) {
    return;
  }
  // What is done to it may be its end.
  const QPointer<QWidget> widget = chosen;
  const QSize size = chosen->size();
  const auto place = [&] {
    return QPoint(chance_.below(size.width()), chance_.below(size.height()));
  };
  const Qt::MouseButton button = chance_.oneOf(buttons);
  const Qt::KeyboardModifiers held = chance_.oneIn(5) ? chance_.oneOf(modifiers) : Qt::NoModifier;
  note(QStringLiteral("mouse on ") + name_of(*chosen));
  QTest::mousePress(widget, button, held, place());
  for (int i = chance_.below(4); i > 0 && widget != nullptr; --i) {
    QTest::mouseMove(widget, place());
  }
  if (widget != nullptr) {
    QTest::mouseRelease(widget, button, held, place());
  }
  if (widget != nullptr && chance_.oneIn(6)) {
    QTest::mouseDClick(widget, button, held, place());
  }
}

void Monkey::pressKey() {
  QWidget* const focused = QApplication::focusWidget();
  QWidget* const widget = focused != nullptr && chance_.oneIn(2) ? focused : target();
  if (widget == nullptr) {
    return;
  }
  const Qt::Key key = chance_.oneOf(monkey_keys);
  const Qt::KeyboardModifiers held = chance_.oneOf(modifiers);
  note(QStringLiteral("key %1 on %2").arg(QKeySequence(key | held).toString(), name_of(*widget)));
  QTest::keyClick(widget, key, held);
}

void Monkey::writeText() {
  QWidget* const widget = QApplication::focusWidget();
  if (widget == nullptr) {
    return;
  }
  const QString text = QLatin1String(chance_.oneOf(texts));
  note(QStringLiteral("text %1 into %2").arg(text, name_of(*widget)));
  for (const QChar letter : text) {
    if (QApplication::focusWidget() == widget) {
      QTest::keyClick(widget, letter.toLatin1());
    }
  }
}

void Monkey::chooseItem() {
  // Menus cannot be reached while a dialog is up.
  if (QApplication::activeModalWidget() != nullptr) {
    return;
  }
  const QList<QAction*> items = items_of(application_->menus().menus());
  QAction* const item = chance_.oneOf(items);
  const bool ends = item == application_->menus().items().quit_item;
  if (!item->isEnabled() || (ends && !chance_.oneIn(20))) {
    return;
  }
  note(QStringLiteral("item ") + item->text());
  item->trigger();
}

void Monkey::turnWheel() {
  QWidget* const widget = target();
  if (widget == nullptr) {
    return;
  }
  note(QStringLiteral("wheel on ") + name_of(*widget));
  const QPointF place(chance_.below(widget->width()), chance_.below(widget->height()));
  QWheelEvent turn(place, widget->mapToGlobal(place), {}, {0, 15 * (chance_.below(33) - 16)},
                   Qt::NoButton, chance_.oneOf(modifiers), Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &turn);
}

void Monkey::workWindow() {
  QWidget* const widget = target();
  if (widget == nullptr) {
    return;
  }
  QWidget* const window = widget->window();
  note(QStringLiteral("window ") + name_of(*window));
  switch (chance_.below(6)) {
    case 0:
      window->close();
      break;
    case 1:
      window->showMinimized();
      break;
    case 2:
      window->showMaximized();
      break;
    case 3:
      window->showNormal();
      break;
    default:
      window->resize(100 + chance_.below(1200), 100 + chance_.below(900));
      break;
  }
}

void Monkey::dropFile() {
  if (QApplication::activeModalWidget() != nullptr) {
    return;
  }
  const QString path = dialogs_.anyPath();
  note(QStringLiteral("drop ") + path);
  GLPanel* const window = GLPanel::inFront();
  if (window != nullptr && window->takesFiles()) {
    Q_EMIT window->fileDropped(path);
  }
}

void Monkey::note(const QString& what) {
  constexpr std::size_t kept = 40;
  done_.push_back(QStringLiteral("%1 %2").arg(count_).arg(what));
  if (done_.size() > kept) {
    done_.pop_front();
  }
}

std::string Monkey::lastDone() const {
  std::string lines;
  for (const QString& line : done_) {
    lines += line.toStdString() + '\n';
  }
  return lines;
}

}  // namespace velquon::test
