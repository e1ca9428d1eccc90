// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <Qt>

class QSlider;
class QWidget;

namespace velquon::test {

// What a person does with the mouse, sent to one widget. Places are in the widget, from its top
// left corner.

void press(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void move_pressed(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void release(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
/// Presses, moves to the end in a few steps and releases.
void drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton);

/// Turns the wheel by notches, away from the person when positive.
void turn_wheel(QWidget& widget, int notches);

/// The middle of a slider's knob.
QPoint knob_of(const QSlider& slider);

}  // namespace velquon::test
