// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/output_target.h"

namespace velquon {

void OutputTarget::use(std::FILE* stream) {
  stream_ = stream;
  name_ = "standard output";
}

std::error_code OutputTarget::open(const std::filesystem::path& path,
                                   const std::string& temporary) {
  stream_ = nullptr;
  name_ = path.string();
  return file_.open(path, temporary);
}

ByteOutput OutputTarget::bytes() {
  if (stream_ != nullptr) {
    return output_to(stream_);
  }
  return [this](std::span<const std::byte> bytes) { return file_.write(bytes); };
}

std::error_code OutputTarget::overwrite(std::uint64_t offset, std::span<const std::byte> bytes) {
  return stream_ != nullptr ? std::make_error_code(std::errc::invalid_seek)
                            : file_.overwrite(offset, bytes);
}

std::error_code OutputTarget::heedSignals() {
  return stream_ != nullptr ? std::error_code() : file_.heedSignals();
}

std::error_code OutputTarget::commit() {
  return stream_ != nullptr ? std::error_code() : file_.commit();
}

}  // namespace velquon
