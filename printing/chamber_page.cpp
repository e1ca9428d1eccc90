// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/chamber_page.h"

#include <QCoreApplication>
#include <QPainter>
#include <cstdio>

#include "printing/page.h"
#include "render/chamber_scene.h"
#include "render/off_screen.h"

namespace velquon {

namespace {

constexpr QPointF chamber_page_offset{-80.0, 120.0};
constexpr QPointF apology_place{120.0, 400.0};

std::optional<FeedbackPicture> picture_for_page(std::span<const PlotPoint> points,
                                                const Camera& camera, bool axes) {
  const OffScreenContext context;
  if (!context.isValid()) {
    return std::nullopt;
  }
  ChamberScene scene;
  scene.setPoints(points);
  return scene.drawForPrinting(camera, axes);
}

}  // namespace

void paint_chamber(QPainter& page, std::span<const PlotPoint> points, const Camera& camera,
                   bool axes) {
  const auto picture = picture_for_page(points, camera, axes);
  if (!picture) {
    std::fputs("velquon: the OpenGL driver does not hand the chamber's picture over for printing\n",
               stderr);
    print_text(page, apology_place,
               QCoreApplication::translate("velquon::ChamberView",
                                           "The graphics driver did not hand the picture over."));
    return;
  }
  for (const auto& [start, end] : picture->lines) {
    page.drawLine(start + chamber_page_offset, end + chamber_page_offset);
  }
  for (const QRectF& cube : picture->cubes) {
    page.fillRect(cube.translated(chamber_page_offset), page.pen().color());
  }
}

}  // namespace velquon
