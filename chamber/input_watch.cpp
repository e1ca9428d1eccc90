// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chamber/input_watch.h"

#include <QGuiApplication>
#include <QWidget>
#include <cstring>

// The X library's names are common words, so it comes last.
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/XI2.h>
#include <X11/extensions/XI2proto.h>
#include <X11/extensions/record.h>
#include <X11/keysym.h>

namespace velquon {

namespace {

/// A connection to the X server of the windows.
class Connection {
 public:
  explicit Connection(const char* name) : display_(XOpenDisplay(name)) {}
  ~Connection() {
    if (display_ != nullptr) {
      XCloseDisplay(display_);
    }
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  Connection(Connection&&) = delete;
  Connection& operator=(Connection&&) = delete;

  [[nodiscard]] Display* display() const { return display_; }

 private:
  Display* display_;
};

const char* display_name() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr ? DisplayString(x11->display()) : nullptr;
}

bool is_wheel(unsigned button) {
  constexpr unsigned first_of_wheel = 4;
  constexpr unsigned last_of_wheel = 7;
  return button >= first_of_wheel && button <= last_of_wheel;
}

/// Whether a key has a meaning in any of the keyboard's layouts, shift apart.
bool key_means(Display* display, unsigned keycode, KeySym meaning) {
  for (int group = 0; group < XkbNumKbdGroups; ++group) {
    if (XkbKeycodeToKeysym(display, static_cast<KeyCode>(keycode), group, 0) == meaning) {
      return true;
    }
  }
  return false;
}

}  // namespace

/// What the X server delivers to the program, recorded over connections of its own.
class InputWatch::Record {
 public:
  Record(const char* name, XID window) : control_(name), data_(name) {
    Display* const control = control_.display();
    int major = 0;
    int minor = 0;
    if (control == nullptr || data_.display() == nullptr ||
        XRecordQueryVersion(control, &major, &minor) == 0) {
      return;
    }
    int unused = 0;
    XQueryExtension(control, "XInputExtension", &input_extension_, &unused, &unused);
    delete_window_ = XInternAtom(control, "WM_DELETE_WINDOW", False);
    XRecordRange* range = XRecordAllocRange();
    range->delivered_events.first = KeyPress;
    range->delivered_events.last = GenericEvent;
    XRecordClientSpec client = window;
    context_ = XRecordCreateContext(control, 0, &client, 1, &range, 1);
    XFree(range);
    XSync(control, False);
    if (XRecordEnableContextAsync(data_.display(), context_, &Record::take,
                                  reinterpret_cast<XPointer>(this)) == 0) {
      XRecordFreeContext(control, context_);
      context_ = 0;
    }
  }

  ~Record() {
    if (context_ != 0) {
      XRecordDisableContext(control_.display(), context_);
      XSync(control_.display(), False);
      look();
      XRecordFreeContext(control_.display(), context_);
    }
  }

  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  Record(Record&&) = delete;
  Record& operator=(Record&&) = delete;

  /// Takes what has been recorded by now.
  void look() {
    if (context_ != 0) {
      XRecordProcessReplies(data_.display());
    }
  }

  [[nodiscard]] bool end_is_wanted() const { return end_is_wanted_; }
  [[nodiscard]] std::optional<std::uint32_t> last_press() const { return last_press_; }

 private:
  // A callback of the X library's.
  // NOLINTNEXTLINE(readability-non-const-parameter)
  static void take(XPointer record, XRecordInterceptData* data) {
    xEvent event{};
    constexpr std::size_t unit = 4;  // bytes of data_len
    if (data->category == XRecordFromServer && data->data_len * unit >= sizeof event) {
      std::memcpy(&event, data->data, sizeof event);
      reinterpret_cast<Record*>(record)->takeEvent(event);
    }
    XRecordFreeData(data);
  }

  void takeEvent(const xEvent& event) {
    constexpr unsigned sent_by_a_client = 0x80;
    switch (event.u.u.type & ~sent_by_a_client) {
      case KeyPress:
        takeKey(event.u.u.detail, event.u.keyButtonPointer.state);
        last_press_ = event.u.keyButtonPointer.time;
        break;
      case ButtonPress:
        takeButton(event.u.u.detail, event.u.keyButtonPointer.time);
        break;
      case GenericEvent:
        takeGenericEvent(event);
        break;
      case ClientMessage:
        end_is_wanted_ |= static_cast<Atom>(event.u.clientMessage.u.l.longs0) == delete_window_;
        break;
      default:
        break;
    }
  }

  void takeGenericEvent(const xEvent& event) {
    xXIDeviceEvent device{};
    std::memcpy(&device, &event, sizeof event);
    if (device.extension == input_extension_ && device.evtype == XI_ButtonPress) {
      takeButton(device.detail, device.time);
    }
  }

  void takeKey(unsigned keycode, unsigned modifiers) {
    Display* const display = control_.display();
    const unsigned held = modifiers & (ControlMask | Mod1Mask);
    end_is_wanted_ |= held == 0 && key_means(display, keycode, XK_Escape);
    end_is_wanted_ |= held == ControlMask && key_means(display, keycode, XK_q);
  }

  void takeButton(unsigned button, std::uint32_t time) {
    if (!is_wheel(button)) {
      end_is_wanted_ = true;
      last_press_ = time;
    }
  }

  Connection control_;
  Connection data_;
  XRecordContext context_ = 0;
  int input_extension_ = 0;
  Atom delete_window_ = 0;
  bool end_is_wanted_ = false;
  std::optional<std::uint32_t> last_press_;
};

InputWatch::InputWatch(const QWidget& widget) {
  const char* const name = display_name();
  if (name != nullptr && widget.window()->internalWinId() != 0) {
    record_ = std::make_unique<Record>(name, widget.window()->internalWinId());
  }
}

InputWatch::~InputWatch() = default;

bool InputWatch::endIsWanted() {
  if (record_ == nullptr) {
    return false;
  }
  record_->look();
  return record_->end_is_wanted();
}

std::optional<std::uint32_t> InputWatch::lastPress() {
  if (record_ == nullptr) {
    return std::nullopt;
  }
  record_->look();
  return record_->last_press();
}

}  // namespace velquon
