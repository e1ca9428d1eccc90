#include "tests/gui/support/screen_pixels.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace velquon::test {

namespace {

int count_pixels(XImage& image, unsigned long color) {
  constexpr unsigned long rgb = 0xFFFFFF;
  int count = 0;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      count += (XGetPixel(&image, x, y) & rgb) == color ? 1 : 0;
    }
  }
  return count;
}

}  // namespace

int count_screen_pixels(const ScreenArea& area, unsigned long color) {
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) {
    return -1;
  }
  int count = -1;
  XImage* const image = XGetImage(display, XDefaultRootWindow(display), area.x, area.y, area.width,
                                  area.height, XAllPlanes(), ZPixmap);
  if (image != nullptr) {
    count = count_pixels(*image, color);
    XDestroyImage(image);
  }
  XCloseDisplay(display);
  return count;
}

}  // namespace velquon::test
