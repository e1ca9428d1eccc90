// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Whether a decay chain hands its event over to be shown. A chain whose last, stable particle
/// decays does not, and the event shown before stays.
enum class HandOver : bool { no = false, yes = true };

}  // namespace velquon
