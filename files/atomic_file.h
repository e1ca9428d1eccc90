// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <system_error>

#include "files/file_descriptor.h"
#include "files/held_signals.h"
#include "files/save_target.h"

namespace velquon {

/// A file that is written piece by piece and takes its name only when it is complete and on the
/// disk. Until then, and after any failure, what stood under the name is as it was. A file that is
/// replaced keeps its mode.
///
/// The file has no name while it is written, so a program that is killed leaves nothing of it.
/// Where the file system has no files without a name (a network's, a memory stick's) it is called
/// `.velquon-` and eight characters, or as the caller wishes: there the signals that end a program
/// of one thread wait until that name is gone, and only a killed program leaves it behind.
class AtomicFile {
 public:
  AtomicFile() = default;
  /// Discards what has not been committed.
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  AtomicFile(AtomicFile&&) = delete;
  AtomicFile& operator=(AtomicFile&&) = delete;

  /// Begins a file. Refused are a symbolic link that leads nowhere, what may not be written, and
  /// what is no regular file: a folder, a named pipe, a device, a socket.
  /// \param temporary what the file is called while it is written, if it needs a name and this one is
  ///                  free; see `remove_temporary`
  [[nodiscard]] std::error_code open(const std::filesystem::path& path,
                                     const std::string& temporary = {});

  /// Appends bytes. After an error nothing more can be written or committed.
  [[nodiscard]] std::error_code write(std::span<const std::byte> bytes);

  /// Gives the file up when a signal waits to end the program, which ends it then. `write` does so
  /// too; this is for a long time without one.
  [[nodiscard]] std::error_code heedSignals();

  /// Writes over bytes that have been written, for what is known only at the end.
  /// \param offset from the beginning of the file
  [[nodiscard]] std::error_code overwrite(std::uint64_t offset, std::span<const std::byte> bytes);

  /// Has the file take its name, once all of it is on the disk, and writes the folder to the disk.
  /// An error of that last step comes too late for the former file: the new one is in its place,
  /// whole, but its name may not outlast a power failure.
  [[nodiscard]] std::error_code commit();

 private:
  std::error_code begin(std::string temporary);
  std::error_code finish();
  std::error_code take_name();
  std::error_code replace_target();
  void discard();
  /// Passes an outcome on; an error is kept and ends the writing.
  std::error_code done(std::error_code error);

  SaveTarget target_;
  std::string name_;  ///< of the target in its folder
  FileDescriptor folder_;
  FileDescriptor file_;
  std::string temporary_;  ///< name of the file while it is written; empty for none
  std::optional<HeldSignals> held_;
  std::error_code failure_;
};

/// Removes what a program that was killed has left of a file that it had begun with these arguments
/// of `AtomicFile::open`.
void remove_temporary(const std::filesystem::path& path, const std::string& temporary);

/// Writes a file whole or not at all, as `AtomicFile` does.
[[nodiscard]] std::error_code write_file_atomically(const std::filesystem::path& path,
                                                    std::span<const std::byte> bytes);

}  // namespace velquon
