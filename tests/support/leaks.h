// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon::test {

/// Looks for leaks, in a build with AddressSanitizer, while the graphics driver is loaded: at the
/// program's end it is no longer, and what it never frees would be taken for a leak.
void look_for_leaks();

}  // namespace velquon::test
