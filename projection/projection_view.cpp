#include "projection/projection_view.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <QAbstractButton>
#include <QPainter>
#include <algorithm>
#include <array>

namespace velquon {

namespace {

constexpr double default_offset_up = 420.0;
constexpr double default_offset_across = 470.0;
constexpr QPointF page_offset{20.0, 100.0};
constexpr double half_square = 0.5;
constexpr QColor frame_gray(128, 128, 128);

/// \param dot length of a dot and of a gap, device pixels
void draw_dotted_frame(const QRectF& frame, int dot) {
  glEnable(GL_LINE_STIPPLE);
  glLineStipple(dot, 0xAAAA);
  glBegin(GL_LINE_LOOP);
  glVertex2d(frame.left(), frame.top());
  glVertex2d(frame.right(), frame.top());
  glVertex2d(frame.right(), frame.bottom());
  glVertex2d(frame.left(), frame.bottom());
  glEnd();
  glDisable(GL_LINE_STIPPLE);
}

}  // namespace

ProjectionView::ProjectionView(QWidget* parent) : GLView(parent) {
  resetOffsets();
  makeCursors();
  // A screen of another ratio gives the view another framebuffer, and this signal.
  connect(this, &QOpenGLWidget::resized, this, &ProjectionView::makeCursors);
}

void ProjectionView::setOutlets(const ProjectionOutlets& outlets) {
  outlets_ = outlets;
  showReading(0.0);
}

void ProjectionView::setData(std::span<const PlotPoint> points) {
  event_data_ = points;
  makeDisplayPoints();
}

void ProjectionView::setProjection(QAbstractButton* selected_cell) {
  const std::array<std::pair<QAbstractButton*, ProjectionPlane>, 3> planes{
      {{outlets_.xy_button, ProjectionPlane::xy},
       {outlets_.xz_button, ProjectionPlane::xz},
       {outlets_.yz_button, ProjectionPlane::yz}}};
  hideTape();
  for (const auto& [button, plane] : planes) {
    if (button == selected_cell) {
      projection_plane_ = plane;
    }
  }
  makeDisplayPoints();
  resetOffsets();
  display();
}

void ProjectionView::setZoom(QAbstractButton* sender) {
  const std::array<std::pair<QAbstractButton*, float>, 3> zooms{
      {{outlets_.zoom_1, 1.0F}, {outlets_.zoom_2, 2.0F}, {outlets_.zoom_3, 3.0F}}};
  hideTape();
  for (const auto& [button, zoom] : zooms) {
    if (button == sender) {
      zoom_factor_ = zoom;
    }
  }
  display();
}

void ProjectionView::resetOffsets() {
  OffV_ = default_offset_up;
  OffH_ = default_offset_across;
}

void ProjectionView::restore() {
  resetOffsets();
  hideTape();
}

ProjectionMapping ProjectionView::mapping() const {
  return {.zoom = static_cast<double>(zoom_factor_),
          .offset_across = OffH_,
          .offset_up = OffV_,
          .view_height = pictureHeight()};
}

double ProjectionView::pictureHeight() const {
  return page_ != nullptr ? projection_height : std::max<double>(projection_height, height());
}

void ProjectionView::makeDisplayPoints() {
  display_points_.resize(event_data_.size());
  std::ranges::transform(event_data_, display_points_.begin(), [this](const PlotPoint& point) {
    return project(point, projection_plane_);
  });
}

void ProjectionView::drawRect() {
  const QRectF seen = visibleRect();
  const double ratio = devicePixelRatioF();
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  glClear(GL_COLOR_BUFFER_BIT);
  glViewport(0, 0, qRound(seen.width() * ratio), qRound(seen.height() * ratio));
  gluOrtho2D(0.0, seen.width(), 0.0, seen.height());
  glTranslated(-seen.x(), -seen.y(), 0.0);
  // OpenGL counts the width of lines and the length of dots in device pixels.
  glLineWidth(static_cast<GLfloat>(ratio));
  drawTracks();
  if (tape_visible_) {
    glColor3f(1.0F, 0.0F, 0.0F);
    glBegin(GL_LINE_STRIP);
    glVertex2d(tape_start_point_.x(), tape_start_point_.y());
    glVertex2d(tape_end_point_.x(), tape_end_point_.y());
    glEnd();
  }
  glFlush();
}

void ProjectionView::drawTracks() {
  const ProjectionMapping mapping = this->mapping();
  glColor3f(1.0F, 1.0F, 1.0F);
  draw_dotted_frame(mapping.frame(), std::max(qRound(devicePixelRatioF()), 1));
  for (const QPointF& point : display_points_) {
    const QPointF place = mapping.map(point);
    glRectd(place.x() - half_square, place.y() - half_square, place.x() + half_square,
            place.y() + half_square);
  }
}

void ProjectionView::printRect() {
  const QRectF frame = mapping().frame().translated(page_offset);
  const std::vector<QRectF> squares = printedSquares();
  const QLineF tape = printedTape();
  const auto reaches_header = [](double top) { return top > page_picture.bottom(); };
  const bool is_clipped =
      reaches_header(frame.bottom()) || reaches_header(std::max(tape.y1(), tape.y2())) ||
      std::ranges::any_of(squares,
                          [&](const QRectF& square) { return reaches_header(square.bottom()); });
  if (is_clipped) {
    page_->save();
    page_->setClipRect(page_picture, Qt::IntersectClip);
  }
  printFrame(frame);
  for (const QRectF& square : squares) {
    page_->fillRect(square, Qt::black);
  }
  if (!tape.isNull()) {
    page_->drawLine(tape);
  }
  if (is_clipped) {
    page_->restore();
  }
}

void ProjectionView::printFrame(const QRectF& frame) {
  const QPen pen = page_->pen();
  QPen gray_pen = pen;
  gray_pen.setColor(frame_gray);
  page_->setPen(gray_pen);
  page_->drawLine(frame.topLeft(), frame.topRight());
  page_->drawLine(frame.topRight(), frame.bottomRight());
  page_->drawLine(frame.bottomRight(), frame.bottomLeft());
  page_->drawLine(frame.bottomLeft(), frame.topLeft());
  page_->setPen(pen);
}

std::vector<QRectF> ProjectionView::printedSquares() const {
  const ProjectionMapping mapping = this->mapping();
  std::vector<QRectF> squares;
  squares.reserve(display_points_.size());
  for (const QPointF& point : display_points_) {
    const QPointF corner = mapping.map(point) - QPointF(half_square, half_square);
    if (can_be_on_paper(corner)) {
      squares.emplace_back(corner + page_offset, QSizeF(1.0, 1.0));
    }
  }
  return squares;
}

QLineF ProjectionView::printedTape() const {
  if (!tape_visible_) {
    return {};
  }
  const QPointF from_screen(0.0, pictureHeight() - shown_height_);
  return {tape_start_point_ + from_screen + page_offset,
          tape_end_point_ + from_screen + page_offset};
}

void ProjectionView::reshape() {
  glClear(GL_COLOR_BUFFER_BIT);
  // The tape stays on what it measured.
  const QPointF moved(0.0, pictureHeight() - shown_height_);
  tape_start_point_ += moved;
  tape_end_point_ += moved;
  last_grab_ += moved;
  shown_height_ = pictureHeight();
}

}  // namespace velquon
