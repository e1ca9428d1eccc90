// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/whole_file.h"

#include <QFile>
#include <filesystem>
#include <span>

#include "files/atomic_file.h"

namespace velquon {

namespace {

/// The path from the root, behind symbolic links and without steps up and down again.
std::filesystem::path resolved(const QString& path) {
  std::error_code error;
  const auto absolute = std::filesystem::absolute(QFile::encodeName(path).toStdString(), error);
  const auto found = std::filesystem::weakly_canonical(absolute, error);
  return error ? absolute : found;
}

}  // namespace

std::optional<QString> write_whole_file(const QString& path, QByteArrayView bytes) {
  const auto error = write_file_atomically(
      QFile::encodeName(path).toStdString(),
      std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
  return error ? std::optional(QString::fromLocal8Bit(error.message().c_str())) : std::nullopt;
}

bool is_one_file(const QString& path, const QString& other) {
  return resolved(path) == resolved(other);
}

}  // namespace velquon
