// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Starts GLUT unless it has started; what calls a GLUT operation calls this first. It opens a
/// connection to the X display, on which the driver starts once more, and leaves the current OpenGL
/// context and the locale as they are. It ends the program where there is no X display with OpenGL.
void need_glut();

}  // namespace velquon
