// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon::test {

/// While one lives, an invalid operation, a division by zero or an overflow in floating point ends
/// the test program (SIGFPE). Not for walks that need a NaN.
class FloatTraps {
 public:
  FloatTraps();
  ~FloatTraps();
  FloatTraps(const FloatTraps&) = delete;
  FloatTraps& operator=(const FloatTraps&) = delete;
};

}  // namespace velquon::test
