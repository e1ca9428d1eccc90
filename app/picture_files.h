// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QSize>
#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "printing/picture_caption.h"
#include "printing/picture_file.h"
#include "printing/picture_panel.h"
#include "printing/projection_drawing.h"

namespace velquon {

class ChamberController;
class ChamberView;
class ProjectionView;
class UserDialogs;

/// Pictures of the chamber and of the projector in files and on the clipboard, drawn for their sizes.
/// A file is written whole or not at all; a failure leaves one of that name as it was and is told in
/// an alert.
class PictureFiles : public QObject {
  Q_OBJECT

 public:
  PictureFiles(ChamberController& controller, ChamberView& chamber, ProjectionView& projection,
               UserDialogs& dialogs);

  /// Whether the window in front has a view that pictures are made of.
  [[nodiscard]] bool hasView() const;

  /// Asks how and under what name, and saves a picture of the view in front.
  /// \param event_name name and number of the shown event, which the file tells; or empty
  void savePicture(const std::string& event_name);
  /// Puts the picture of the view in front on the clipboard, as it is on the screen.
  void copyPicture();

 private:
  enum class View : std::uint8_t { chamber, projection };

  [[nodiscard]] std::optional<View> viewInFront() const;
  [[nodiscard]] QString titleOf(View view) const;
  [[nodiscard]] QSize sizeOf(View view) const;
  [[nodiscard]] bool hasEvent() const;
  [[nodiscard]] std::vector<LegendLine> legendOf(View view, PictureFormat format) const;
  [[nodiscard]] PictureOffer offerFor(View view) const;
  [[nodiscard]] PictureCaption captionOf(View view, const PictureChoices& choices) const;
  [[nodiscard]] ProjectionDrawing drawing(const PictureChoices& choices) const;
  [[nodiscard]] QSize sizeOfFile(View view, const PictureChoices& choices) const;
  [[nodiscard]] PictureTexts textsOf(View view, const std::string& event_name) const;
  /// The bytes of a file; nothing when the picture cannot be drawn.
  [[nodiscard]] std::optional<QByteArray> bytesOf(View view, const PictureChoices& choices,
                                                  const std::string& event_name) const;
  [[nodiscard]] QString askForName(View view, PictureFormat format);
  void tellTooLarge(QSize size);

  ChamberController& controller_;
  ChamberView& chamber_;
  ProjectionView& projection_;
  UserDialogs& dialogs_;
  PictureChoices choices_;
};

}  // namespace velquon
