// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <unistd.h>

#include <utility>

namespace velquon {

/// Owner of an open file's number; -1 is none.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int number) : number_(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : number_(other.release()) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
      close();
      number_ = other.release();
    }
    return *this;
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() { close(); }

  [[nodiscard]] int number() const { return number_; }
  [[nodiscard]] bool is_open() const { return number_ >= 0; }
  [[nodiscard]] int release() { return std::exchange(number_, -1); }
  /// \return what `close` says; 0 when nothing is open
  int close() { return is_open() ? ::close(release()) : 0; }

 private:
  int number_ = -1;
};

}  // namespace velquon
