// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Lets screen readers see the real numbers of every ValueSlider and set them as the user would, and
/// see every GLView as a picture. To be called once, with the application object there.
void install_accessible_controls();

}  // namespace velquon
