// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <string_view>

namespace velquon {

/// A text that the layers below mark by MODEL_TEXT, in the user's language; any other as it is.
/// \param text UTF-8
[[nodiscard]] QString model_text(std::string_view text);

/// The name of an event as windows show it. "Empty" and the names of events which have no file yet
/// are in the user's language, with the number behind if there is one; a file's name is as it is.
/// \param name UTF-8, such as "Untitled Type 5 Decay"
[[nodiscard]] QString event_name_text(std::string_view name);

}  // namespace velquon
