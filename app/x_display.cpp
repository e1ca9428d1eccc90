// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/x_display.h"

#include <X11/Xlib.h>

#include <cstdlib>

namespace velquon {

namespace {

bool has_opengl(Display* display) {
  int major_opcode = 0;
  int first_event = 0;
  int first_error = 0;
  return XQueryExtension(display, "GLX", &major_opcode, &first_event, &first_error) == True;
}

}  // namespace

std::string missing_for_windows() {
  const char* const name = std::getenv("DISPLAY");
  if (name == nullptr || *name == '\0') {
    return "there is no X display to show windows on (DISPLAY is not set)";
  }
  const std::string the_display = "the X display '" + std::string(name) + "' ";
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) {
    return the_display + "does not answer";
  }
  const bool complete = has_opengl(display);
  const int depth = XDefaultDepth(display, XDefaultScreen(display));
  XCloseDisplay(display);
  if (!complete) {
    return the_display + "has no OpenGL (GLX)";
  }
  // On a screen of 16 bits the views stay black.
  constexpr int least_depth = 24;
  if (depth < least_depth) {
    return the_display + "has only " + std::to_string(depth) + " bits of colour a pixel, not " +
           std::to_string(least_depth);
  }
  return {};
}

}  // namespace velquon
