#include "app/whole_file.h"

#include <QSaveFile>

namespace velquon {

namespace {

bool write_all(QSaveFile& file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const qint64 written = file.write(bytes.data(), bytes.size());
    if (written <= 0) {
      return false;
    }
    bytes = bytes.sliced(written);
  }
  return true;
}

}  // namespace

std::optional<QString> write_whole_file(const QString& path, QByteArrayView bytes) {
  QSaveFile file(path);
  // Unbuffered, because a buffer that a full disk takes only in part counts as written.
  const bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                       write_all(file, bytes) && file.commit();
  return written ? std::nullopt : std::optional(file.errorString());
}

}  // namespace velquon
