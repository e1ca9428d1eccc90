// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Makes every OpenGL view get a compatibility context of version 2.1, which the fixed-function
/// drawing of the views needs. To be called before the application object is made.
void use_compatibility_contexts();

}  // namespace velquon
