// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <span>

#include "engine/event_record.h"
#include "model/projector.h"
#include "printing/picture_caption.h"

namespace velquon {

/// The projection as a file of lines, drawn as a page has it: black on white, with its foot and a
/// caption below the picture.
struct ProjectionDrawing {
  std::span<const PlotPoint> points;
  const Projector& projector;
  QSize picture;  ///< part of the projection that is drawn, from its upper left corner, view units
  double scale = 1.0;  ///< points of the file per view unit
  QString title;       ///< which the file tells of itself
  PictureCaption caption;
};

/// Size of the whole drawing, points.
[[nodiscard]] QSize size_of_drawing(const ProjectionDrawing& drawing);

[[nodiscard]] QByteArray svg_of(const ProjectionDrawing& drawing);
[[nodiscard]] QByteArray pdf_of(const ProjectionDrawing& drawing);

}  // namespace velquon
