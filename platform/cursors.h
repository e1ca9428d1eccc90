#pragma once

#include <QCursor>
#include <QPoint>
#include <QString>

namespace velquon {

/// A cursor of the program's own.
/// \param name     name of its image among the resources
/// \param hot_spot pixel of the image, from the top left
[[nodiscard]] QCursor cursor_named(const QString& name, QPoint hot_spot);

}  // namespace velquon
