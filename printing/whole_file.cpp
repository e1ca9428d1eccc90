// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/whole_file.h"

#include <QFile>
#include <span>

#include "files/atomic_file.h"

namespace velquon {

std::optional<QString> write_whole_file(const QString& path, QByteArrayView bytes) {
  const auto error = write_file_atomically(
      QFile::encodeName(path).toStdString(),
      std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
  return error ? std::optional(QString::fromLocal8Bit(error.message().c_str())) : std::nullopt;
}

}  // namespace velquon
