// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/input.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>

namespace velquon::test {

void press(QWidget& widget, QPoint place, Qt::MouseButton button) {
  QTest::mousePress(&widget, button, {}, place);
}

void move_pressed(QWidget& widget, QPoint place, Qt::MouseButton button) {
  QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, button,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &move);
}

void release(QWidget& widget, QPoint place, Qt::MouseButton button) {
  QTest::mouseRelease(&widget, button, {}, place);
}

void drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button) {
  constexpr int steps = 4;
  press(widget, from, button);
  for (int i = 1; i <= steps; ++i) {
    move_pressed(widget, from + (to - from) * i / steps, button);
  }
  release(widget, to, button);
}

void turn_wheel(QWidget& widget, int notches) {
  constexpr int notch = 120;
  const QPointF place = widget.rect().center();
  QWheelEvent turn(place, widget.mapToGlobal(place), {}, QPoint(0, notches * notch), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &turn);
}

QPoint knob_of(const QSlider& slider) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.subControls = QStyle::SC_All;
  option.orientation = slider.orientation();
  option.minimum = slider.minimum();
  option.maximum = slider.maximum();
  option.tickPosition = slider.tickPosition();
  option.tickInterval = slider.tickInterval();
  option.sliderPosition = slider.sliderPosition();
  option.sliderValue = slider.value();
  option.singleStep = slider.singleStep();
  option.pageStep = slider.pageStep();
  option.state |= QStyle::State_Horizontal;
  return slider.style()
      ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
      .center();
}

}  // namespace velquon::test
