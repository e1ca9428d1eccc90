// The chamber view on paper.

#include <GL/gl.h>

#include <QPainter>
#include <cstdio>

#include "render/chamber_scene.h"
#include "chamber/chamber_view.h"
#include "render/feedback.h"

namespace velquon {

namespace {

constexpr QPointF page_offset{-80.0, 120.0};
constexpr QPointF apology_place{120.0, 400.0};

}  // namespace

void ChamberView::printRect() {
  if (makeContextCurrent()) {
    drawForPrinting();
  }
  if (!is_rotating_ && show_values_) {
    drawValues();
  }
}

void ChamberView::drawForPrinting() {
  if (!ready_to_show_) {
    setUpView();
    ready_to_show_ = true;
  }
  if (needs_pop_) {
    popProjectionMatrix();
  }
  glViewport(0, 0, chamber_width, chamber_height);
  const auto picture = draw_into_feedback(point_number_, [this] {
    drawChamber();
    draw_solid_cubes(shownPoints(), paper_cube_side, true);
  });
  if (!picture) {
    std::fputs("velquon: the OpenGL driver does not hand the chamber's picture over for printing\n",
               stderr);
    print_text(*page_, apology_place, tr("The graphics driver did not hand the picture over."));
    return;
  }
  for (const auto& [start, end] : picture->lines) {
    page_->drawLine(start + page_offset, end + page_offset);
  }
  for (const QRectF& cube : picture->cubes) {
    page_->fillRect(cube.translated(page_offset), page_->pen().color());
  }
}

}  // namespace velquon
