// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace velquon::test {

/// Runs something in a child process that the rights of files and folders hold for, even when the
/// tests run as the superuser; programs that it starts have no more rights.
/// \return what `body` returns, 0 to 255; -1 when the child ends otherwise
[[nodiscard]] int with_plain_rights(const std::function<int()>& body);

}  // namespace velquon::test
