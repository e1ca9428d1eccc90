// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/event_file.h"

#include "files/event_layout.h"
#include "files/pc_layout.h"

namespace velquon {

ReadResult read_event_file(std::span<const std::byte> bytes) {
  if (bytes.empty()) {
    return Refusal::wrong_format;
  }
  switch (bytes.front()) {
    case event_tag:
      return read_event_layout(bytes);
    case pc_tag:
      return readWinData(1, bytes);
    default:
      return Refusal::wrong_format;
  }
}

}  // namespace velquon
