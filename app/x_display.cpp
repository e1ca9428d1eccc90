#include "app/x_display.h"

#include <X11/Xlib.h>

#include <cstdlib>

namespace velquon {

std::string missing_for_windows() {
  Display* const display = XOpenDisplay(nullptr);
  if (display != nullptr) {
    XCloseDisplay(display);
    return {};
  }
  const char* const name = std::getenv("DISPLAY");
  if (name == nullptr || *name == '\0') {
    return "there is no X display to show windows on (DISPLAY is not set)";
  }
  return "the X display '" + std::string(name) + "' does not answer";
}

}  // namespace velquon
