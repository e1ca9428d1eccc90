// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Lets the application's style draw the marks of sliders, the frame of chosen buttons and the
/// buttons at the ends of bars so that they stand out from what is around them in any palette. To be
/// called again does nothing.
void make_style_readable();

}  // namespace velquon
