// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <system_error>

namespace velquon {

/// A folder that is filled under a name of its own, `.NAME.partial`, and takes its name when it is
/// complete. A folder of that name before is replaced; so is what is left of a filling that was
/// killed.
class FolderInTheMaking {
 public:
  explicit FolderInTheMaking(const std::filesystem::path& folder);
  /// Removes what has not been committed.
  ~FolderInTheMaking();
  FolderInTheMaking(const FolderInTheMaking&) = delete;
  FolderInTheMaking& operator=(const FolderInTheMaking&) = delete;
  FolderInTheMaking(FolderInTheMaking&&) = delete;
  FolderInTheMaking& operator=(FolderInTheMaking&&) = delete;

  /// Makes the folder to fill.
  [[nodiscard]] std::error_code begin();
  /// The folder to fill.
  [[nodiscard]] const std::filesystem::path& path() const { return partial_; }
  /// Gives the folder its name.
  [[nodiscard]] std::error_code commit();

 private:
  std::filesystem::path folder_;
  std::filesystem::path partial_;
};

/// The folder that a `FolderInTheMaking` fills, to be removed when its process was killed.
[[nodiscard]] std::filesystem::path partial_folder(const std::filesystem::path& folder);

}  // namespace velquon
