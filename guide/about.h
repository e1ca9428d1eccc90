// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace velquon {

/// Tells what this program is, over a window.
void show_about(QWidget* parent);

}  // namespace velquon
