// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon::test {

/// Runs the tests that are chosen, then, in a build with AddressSanitizer, looks for leaks while the
/// graphics driver is loaded: at the program's end it is no longer, and what it never frees would be
/// taken for a leak.
/// \return the program's status: other than 0 also when no test is chosen
[[nodiscard]] int run_tests();

}  // namespace velquon::test
