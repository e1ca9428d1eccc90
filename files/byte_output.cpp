// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/byte_output.h"

#include <cerrno>

namespace velquon {

ByteOutput output_to(std::FILE* stream) {
  return [stream](std::span<const std::byte> bytes) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size() &&
                         std::fflush(stream) == 0;
    return written ? std::error_code() : std::error_code(errno, std::generic_category());
  };
}

}  // namespace velquon
