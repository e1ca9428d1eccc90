// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <variant>

#include "files/event_file.h"

namespace velquon::test {

/// Whether a layout's reader refused the bytes that it was given.
[[nodiscard]] inline bool refused(const ReadResult& result) {
  const auto* refusal = std::get_if<Refusal>(&result);
  return refusal != nullptr && *refusal == Refusal::bad_data;
}

}  // namespace velquon::test
