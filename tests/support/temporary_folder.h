// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace velquon::test {

/// A fresh folder that goes, with all it holds, when this object does.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  /// Names of what it holds, sorted.
  [[nodiscard]] std::vector<std::string> names() const;

 private:
  std::filesystem::path path_;
};

/// The bytes of a file, or none when it cannot be read.
[[nodiscard]] std::vector<std::byte> file_bytes(const std::filesystem::path& path);
[[nodiscard]] std::string file_text(const std::filesystem::path& path);

}  // namespace velquon::test
