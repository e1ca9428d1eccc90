// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/screen_pixels.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>

namespace velquon::test {

namespace {

std::vector<std::uint32_t> pixels_of(XImage& image) {
  constexpr unsigned long rgb = 0xFFFFFF;
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      pixels.push_back(static_cast<std::uint32_t>(XGetPixel(&image, x, y) & rgb));
    }
  }
  return pixels;
}

/// FNV-1a over the pixels.
std::uint64_t digest_of(const std::vector<std::uint32_t>& pixels) {
  std::uint64_t digest = 0xCBF29CE484222325;
  for (const std::uint32_t pixel : pixels) {
    digest = (digest ^ pixel) * 0x100000001B3;
  }
  return digest;
}

}  // namespace

ScreenArea area_of_window(unsigned long window) {
  ScreenArea area;
  if (Display* const display = XOpenDisplay(nullptr); display != nullptr) {
    XWindowAttributes attributes{};
    XGetWindowAttributes(display, window, &attributes);
    area.width = static_cast<unsigned>(attributes.width);
    area.height = static_cast<unsigned>(attributes.height);
    Window child = 0;
    XTranslateCoordinates(display, window, attributes.root, 0, 0, &area.x, &area.y, &child);
    XCloseDisplay(display);
  }
  return area;
}

std::vector<std::uint32_t> read_screen(const ScreenArea& area) {
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) {
    return {};
  }
  std::vector<std::uint32_t> pixels;
  XImage* const image = XGetImage(display, XDefaultRootWindow(display), area.x, area.y, area.width,
                                  area.height, XAllPlanes(), ZPixmap);
  if (image != nullptr) {
    pixels = pixels_of(*image);
    XDestroyImage(image);
  }
  XCloseDisplay(display);
  return pixels;
}

ScreenLook look_at_screen(const ScreenArea& area, std::uint32_t color) {
  const auto pixels = read_screen(area);
  if (pixels.empty()) {
    return {};
  }
  return {static_cast<int>(std::ranges::count(pixels, color)), digest_of(pixels)};
}

int count_screen_pixels(const ScreenArea& area, std::uint32_t color) {
  return look_at_screen(area, color).count;
}

}  // namespace velquon::test
