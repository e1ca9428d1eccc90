// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QStringList>

#include "printing/picture_panel.h"
#include "tests/support/documents/documents_fixture.h"

namespace velquon::test {

inline constexpr PictureChoices plain_picture{.scale = 1, .values = false, .legend = false};

/// An event of a file, with a point of each colour, whose pictures are saved and copied by keys and the
/// panel.
class PictureFilesFixture : public DocumentsFixture {
 protected:
  void SetUp() override;

  /// Opens the file of the event.
  void showTracks();
  /// Saves a picture of a window's view by its shortcut and the panel.
  /// \return what the panel told of its size
  QString save(QWidget& window, const PictureChoices& choices, const QString& name);
  /// Saves a picture as a PNG file, and expects that no alert comes and that the panel told its size.
  QImage saved(QWidget& window, const PictureChoices& choices);
  /// Copies the picture of a window's view by the keys.
  QImage copied(QWidget& window);
  /// The names of all files beside that of the event.
  QStringList files();
};

}  // namespace velquon::test
