// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Starts a program and says how long it takes until its two windows show their pictures, and how
// much memory it needs:
//
//   first_picture PROGRAM [ARGUMENT...]     prints "MILLISECONDS KILOBYTES PROCESSOR"
//
// It looks at the screen and not into the program. The pictures are there when a line of pixels
// through the middle of each window is mostly black, as an OpenGL view cleared to black makes it;
// the screen behind and the controls of a window are not black. The memory is the largest resident
// size, a second later; the last figure is the processor time until then, in milliseconds of all
// threads. The program is ended with SIGTERM.

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t expected_windows = 2;
constexpr std::chrono::milliseconds poll_interval(2);
constexpr std::chrono::seconds longest_wait(30);
constexpr std::chrono::seconds settling_time(1);

/// A window can go away while it is looked at.
int ignore_error(Display* /*display*/, XErrorEvent* /*error*/) {
  return 0;
}

/// The programs' windows, as the window manager lists them.
std::vector<Window> client_windows(Display* display) {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* data = nullptr;
  const Atom list = XInternAtom(display, "_NET_CLIENT_LIST", False);
  if (XGetWindowProperty(display, DefaultRootWindow(display), list, 0, 64, False, XA_WINDOW, &type,
                         &format, &count, &rest, &data) != Success ||
      data == nullptr) {
    return {};
  }
  const auto* const windows = reinterpret_cast<const Window*>(data);
  std::vector<Window> found(windows, windows + (type == XA_WINDOW ? count : 0));
  XFree(data);
  return found;
}

bool shows_picture(Display* display, Window window) {
  XWindowAttributes attributes;
  if (XGetWindowAttributes(display, window, &attributes) == 0 ||
      attributes.map_state != IsViewable) {
    return false;
  }
  const auto width = static_cast<unsigned>(attributes.width);
  XImage* const line =
      XGetImage(display, window, 0, attributes.height / 2, width, 1, AllPlanes, ZPixmap);
  if (line == nullptr) {
    return false;
  }
  unsigned black = 0;
  for (unsigned x = 0; x < width; ++x) {
    black += (XGetPixel(line, static_cast<int>(x), 0) & 0xFFFFFFU) == 0 ? 1U : 0U;
  }
  XDestroyImage(line);
  return 2 * black > width;
}

bool all_pictures_shown(Display* display) {
  std::size_t shown = 0;
  for (const Window window : client_windows(display)) {
    shown += shows_picture(display, window) ? 1U : 0U;
  }
  return shown >= expected_windows;
}

/// Makes the screen behind the windows white.
void whiten_screen(Display* display) {
  const Window root = DefaultRootWindow(display);
  XSetWindowBackground(display, root, WhitePixel(display, DefaultScreen(display)));
  XClearWindow(display, root);
  XSync(display, False);
}

double milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
}

[[noreturn]] void become(char** command) {
  const int nowhere = open("/dev/null", O_WRONLY);
  dup2(nowhere, STDOUT_FILENO);
  execvp(command[0], command);
  std::perror(command[0]);
  _exit(127);
}

}  // namespace

int main(int argc, char** argv) {
  Display* const display = XOpenDisplay(nullptr);
  if (argc < 2 || display == nullptr) {
    std::fputs(argc < 2 ? "first_picture: no program given\n" : "first_picture: no X display\n",
               stderr);
    return 2;
  }
  XSetErrorHandler(ignore_error);
  whiten_screen(display);

  const auto start = Clock::now();
  const pid_t program = fork();
  if (program == 0) {
    become(argv + 1);
  }
  bool ended = program < 0;
  bool shown = false;
  while (!shown && !ended && Clock::now() - start < longest_wait) {
    std::this_thread::sleep_for(poll_interval);
    shown = all_pictures_shown(display);
    ended = !shown && waitpid(program, nullptr, WNOHANG) != 0;
  }
  const std::chrono::duration<double, std::milli> time = Clock::now() - start;
  if (ended) {
    std::fputs("first_picture: the program ended before it showed its pictures\n", stderr);
    return 1;
  }
  if (shown) {
    std::this_thread::sleep_for(settling_time);
  }
  kill(program, SIGTERM);
  rusage used{};
  wait4(program, nullptr, 0, &used);
  // The next program must not find this one's windows in the list.
  while (shown && !client_windows(display).empty() && Clock::now() - start < 2 * longest_wait) {
    std::this_thread::sleep_for(poll_interval);
  }
  XCloseDisplay(display);
  if (!shown) {
    std::fputs("first_picture: no two pictures came up on the screen\n", stderr);
    return 1;
  }
  std::printf("%.1f %ld %.1f\n", time.count(), used.ru_maxrss,
              milliseconds(used.ru_utime) + milliseconds(used.ru_stime));
  return 0;
}
