// The chamber view on paper.

#include <GL/gl.h>

#include <QPainter>

#include "chamber/chamber_scene.h"
#include "chamber/chamber_view.h"
#include "chamber/feedback.h"

namespace velquon {

namespace {

constexpr QPointF page_offset{-80.0, 120.0};

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
  const FeedbackPicture picture = draw_into_feedback(point_number_, [this] {
    drawChamber();
    draw_solid_cubes(shownPoints(), paper_cube_side, true);
  });
  for (const auto& [start, end] : picture.lines) {
    page_->drawLine(start + page_offset, end + page_offset);
  }
  for (const QRectF& cube : picture.cubes) {
    page_->fillRect(cube.translated(page_offset), page_->pen().color());
  }
}

}  // namespace velquon
