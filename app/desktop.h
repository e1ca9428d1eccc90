// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Chooses the windowing system and the kind of OpenGL context. Before the application object.
void prepare_desktop();

/// Settles what the application object has changed or left open: the decimal point of numbers in C,
/// the icon, the style, and what screen readers see of the program's own controls.
void finish_desktop();

}  // namespace velquon
