// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

namespace velquon {

/// Writes a file whole or not at all: a failure leaves a file of that name as it was.
/// \return why it could not be written, or nothing
[[nodiscard]] std::optional<QString> write_whole_file(const QString& path, QByteArrayView bytes);

/// Whether two names lead to one file, be it there already or not.
[[nodiscard]] bool is_one_file(const QString& path, const QString& other);

}  // namespace velquon
