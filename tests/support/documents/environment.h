// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

namespace velquon::test {

/// Sets a variable of the environment and puts it back.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const QByteArray& value);
  ~EnvironmentVariable();
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  EnvironmentVariable(EnvironmentVariable&&) = delete;
  EnvironmentVariable& operator=(EnvironmentVariable&&) = delete;

 private:
  const char* name_;
  bool was_set_;
  QByteArray before_;
};

}  // namespace velquon::test
