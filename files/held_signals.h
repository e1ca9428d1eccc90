// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <csignal>

namespace velquon {

/// The signals that end this program from outside: hang-up, interrupt, quit and terminate, but for
/// those that it ignores.
[[nodiscard]] sigset_t ending_signals();
[[nodiscard]] sigset_t all_signals();

/// While one lives, signals to this thread wait.
class HeldSignals {
 public:
  explicit HeldSignals(const sigset_t& held);
  ~HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  HeldSignals(HeldSignals&&) = delete;
  HeldSignals& operator=(HeldSignals&&) = delete;

  /// True when an ending signal has come and waits for nothing but this object's end.
  [[nodiscard]] bool end_waits() const;

 private:
  sigset_t before_{};
};

}  // namespace velquon
