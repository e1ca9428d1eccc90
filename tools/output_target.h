// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <system_error>

#include "files/atomic_file.h"
#include "files/byte_output.h"

namespace velquon {

/// Where the bytes of a run go: a stream, or a file that takes its name only when it is complete.
class OutputTarget {
 public:
  /// Begins with a stream, called standard output in messages; it is not closed.
  void use(std::FILE* stream);
  /// Begins a file; arguments as for `AtomicFile::open`.
  [[nodiscard]] std::error_code open(const std::filesystem::path& path,
                                     const std::string& temporary = {});

  /// The name for messages.
  [[nodiscard]] const std::string& name() const { return name_; }

  /// Takes bytes for as long as this object lives.
  [[nodiscard]] ByteOutput bytes();
  /// Writes over what a file holds; a stream cannot do that.
  /// \param offset from the beginning of the file
  [[nodiscard]] std::error_code overwrite(std::uint64_t offset, std::span<const std::byte> bytes);
  /// Gives a file up when a signal waits to end the program, which ends it then.
  [[nodiscard]] std::error_code heedSignals();
  /// Has a file take its name.
  [[nodiscard]] std::error_code commit();

 private:
  std::FILE* stream_ = nullptr;
  AtomicFile file_;
  std::string name_;
};

}  // namespace velquon
