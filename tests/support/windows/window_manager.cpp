// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/window_manager.h"

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <chrono>
#include <memory>
#include <thread>

#include "tests/support/windows/waiting.h"

// The X library's names are common words, so it comes last.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace velquon::test {

namespace {

using std::chrono::milliseconds;

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

Display* display_of_program() {
  return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->display();
}

/// A message that the program sends itself by way of the server: it comes after all that the server
/// sent the program before.
class MessageToSelf : public QAbstractNativeEventFilter {
 public:
  MessageToSelf()
      : window_(XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
    XEvent message{};
    message.xclient.type = ClientMessage;
    message.xclient.window = window_;
    message.xclient.message_type = XInternAtom(display_, "_VELQUON_TEST_MESSAGE", False);
    message.xclient.format = 32;
    XSendEvent(display_, window_, False, NoEventMask, &message);
    XFlush(display_);
  }
  ~MessageToSelf() override { XDestroyWindow(display_, window_); }
  MessageToSelf(const MessageToSelf&) = delete;
  MessageToSelf& operator=(const MessageToSelf&) = delete;
  MessageToSelf(MessageToSelf&&) = delete;
  MessageToSelf& operator=(MessageToSelf&&) = delete;

  [[nodiscard]] bool has_come() const { return has_come_; }

  bool nativeEventFilter(const QByteArray& /*kind*/, void* message, qintptr* /*result*/) override {
    constexpr unsigned sent_by_program = 0x80;
    const auto* const event = static_cast<const xcb_client_message_event_t*>(message);
    const auto type = event->response_type & ~sent_by_program;
    has_come_ = has_come_ || (type == XCB_CLIENT_MESSAGE && event->window == window_);
    return false;
  }

 private:
  Display* display_ = display_of_program();
  Window window_;
  bool has_come_ = false;
};

}  // namespace

bool handle_what_server_sent() {
  const MessageToSelf message;
  return wait_until([&] { return message.has_come(); });
}

bool wait_for_window_manager() {
  XSync(display_of_program(), False);
  const std::unique_ptr<Display, CloseDisplay> display(XOpenDisplay(nullptr));
  if (display == nullptr) {
    return false;
  }
  const Window root = DefaultRootWindow(display.get());
  if (!has_property(display.get(), root, "_NET_SUPPORTING_WM_CHECK")) {
    return handle_what_server_sent();
  }
  const Window window = XCreateSimpleWindow(display.get(), root, 0, 0, 1, 1, 0, 0, 0);
  ask_for_frame(display.get(), window);
  const auto end = std::chrono::steady_clock::now() + milliseconds(longest_wait);
  while (!has_property(display.get(), window, "_NET_FRAME_EXTENTS")) {
    if (std::chrono::steady_clock::now() > end) {
      return false;
    }
    std::this_thread::sleep_for(pause);
  }
  return handle_what_server_sent();
}

}  // namespace velquon::test
