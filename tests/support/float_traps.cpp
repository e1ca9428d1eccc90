// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/float_traps.h"

#include <cfenv>

namespace velquon::test {

FloatTraps::FloatTraps() {
  std::feclearexcept(FE_ALL_EXCEPT);
  ::feenableexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
}

FloatTraps::~FloatTraps() {
  ::fedisableexcept(FE_ALL_EXCEPT);
}

}  // namespace velquon::test
