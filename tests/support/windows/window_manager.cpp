// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/window_manager.h"

#include <QGuiApplication>
#include <chrono>
#include <memory>
#include <thread>

// The X library's names are common words, so it comes last.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace velquon::test {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds longest_wait{15'000};
constexpr milliseconds pause{1};

struct CloseDisplay {
  void operator()(Display* display) const { XCloseDisplay(display); }
};

bool has_property(Display* display, Window window, const char* name) {
  Atom type = None;
  int format = 0;
  unsigned long items = 0;
  unsigned long rest = 0;
  unsigned char* bytes = nullptr;
  XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 1, False,
                     AnyPropertyType, &type, &format, &items, &rest, &bytes);
  if (bytes != nullptr) {
    XFree(bytes);
  }
  return type != None;
}

/// Asks the window manager how wide the frame of a window would be: it answers by a property of the
/// window, after all that it was asked before.
void ask_for_frame(Display* display, Window window) {
  XEvent question{};
  question.xclient.type = ClientMessage;
  question.xclient.window = window;
  question.xclient.message_type = XInternAtom(display, "_NET_REQUEST_FRAME_EXTENTS", False);
  question.xclient.format = 32;
  XSendEvent(display, DefaultRootWindow(display), False,
             SubstructureNotifyMask | SubstructureRedirectMask, &question);
  XSync(display, False);
}

/// What the server has sent the program so far reaches its event queue.
void sync_program() {
  auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  XSync(x11->display(), False);
}

}  // namespace

bool wait_for_window_manager() {
  sync_program();
  const std::unique_ptr<Display, CloseDisplay> display(XOpenDisplay(nullptr));
  if (display == nullptr) {
    return false;
  }
  const Window root = DefaultRootWindow(display.get());
  if (!has_property(display.get(), root, "_NET_SUPPORTING_WM_CHECK")) {
    return true;
  }
  const Window window = XCreateSimpleWindow(display.get(), root, 0, 0, 1, 1, 0, 0, 0);
  ask_for_frame(display.get(), window);
  const auto end = std::chrono::steady_clock::now() + longest_wait;
  while (!has_property(display.get(), window, "_NET_FRAME_EXTENTS")) {
    if (std::chrono::steady_clock::now() > end) {
      return false;
    }
    std::this_thread::sleep_for(pause);
  }
  sync_program();
  return true;
}

}  // namespace velquon::test
