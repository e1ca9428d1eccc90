// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace velquon {

/// Brings a window to the front and activates it, whether it is hidden,
/// minimized or behind others. A maximized window stays so.
void bring_to_front(QWidget& window);

}  // namespace velquon
