// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/environment.h"

namespace velquon::test {

EnvironmentVariable::EnvironmentVariable(const char* name, const QByteArray& value)
    : name_(name), was_set_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
  qputenv(name, value);
}

EnvironmentVariable::~EnvironmentVariable() {
  if (was_set_) {
    qputenv(name_, before_);
  } else {
    qunsetenv(name_);
  }
}

}  // namespace velquon::test
