// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/partial_folder.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <string>

namespace velquon {

std::filesystem::path partial_folder(const std::filesystem::path& folder) {
  std::filesystem::path name(".");
  name += folder.filename();
  name += ".partial";
  return folder.parent_path() / name;
}

FolderInTheMaking::FolderInTheMaking(const std::filesystem::path& folder)
    : folder_(folder), partial_(partial_folder(folder)) {}

FolderInTheMaking::~FolderInTheMaking() {
  std::error_code ignored;
  std::filesystem::remove_all(partial_, ignored);
}

std::error_code FolderInTheMaking::begin() {
  std::error_code error;
  std::filesystem::remove_all(partial_, error);
  if (!error) {
    std::filesystem::create_directory(partial_, error);
  }
  return error;
}

std::error_code FolderInTheMaking::commit() {
  if (::rename(partial_.c_str(), folder_.c_str()) == 0) {
    return {};
  }
  if (errno != ENOTEMPTY && errno != EEXIST) {
    return {errno, std::generic_category()};
  }
  // The two change places, so that there is a complete folder at every moment.
  if (::renameat2(AT_FDCWD, partial_.c_str(), AT_FDCWD, folder_.c_str(), RENAME_EXCHANGE) != 0) {
    return {errno, std::generic_category()};
  }
  return {};
}

}  // namespace velquon
