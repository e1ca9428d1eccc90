// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

/// Marks a text of the layers without Qt that the windows show in the user's language: it is
/// collected with theirs by scripts/translate. The value is the English text itself, which is what
/// files hold; widgets/model_text.h gives its translation.
/// \param context "velquon::Model", in full: the collector reads it here
// A macro, because the collector reads calls with literals only, and costs no call.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage)
#define MODEL_TEXT(context, text) text
