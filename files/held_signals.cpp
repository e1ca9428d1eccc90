// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/held_signals.h"

namespace velquon {

namespace {

constexpr int from_outside[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

bool is_ignored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

sigset_t ending_signals() {
  sigset_t signals;
  ::sigemptyset(&signals);
  for (const int signal : from_outside) {
    if (!is_ignored(signal)) {
      ::sigaddset(&signals, signal);
    }
  }
  return signals;
}

sigset_t all_signals() {
  sigset_t signals;
  ::sigfillset(&signals);
  return signals;
}

HeldSignals::HeldSignals(const sigset_t& held) {
  ::pthread_sigmask(SIG_BLOCK, &held, &before_);
}

HeldSignals::~HeldSignals() {
  ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool HeldSignals::end_waits() const {
  sigset_t waiting;
  ::sigpending(&waiting);
  const sigset_t ending = ending_signals();
  for (const int signal : from_outside) {
    if (::sigismember(&ending, signal) == 1 && ::sigismember(&waiting, signal) == 1 &&
        ::sigismember(&before_, signal) == 0) {
      return true;
    }
  }
  return false;
}

}  // namespace velquon
