// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace velquon {

/// Lets a control turn by the wheel only while it has the focus, so that scrolling past it changes
/// nothing.
void take_wheel_only_with_focus(QWidget& control);

}  // namespace velquon
