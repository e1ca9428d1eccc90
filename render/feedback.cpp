// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/feedback.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace velquon {

namespace {

constexpr std::size_t vertex_values = 3;

/// A value as the whole number it stands for; 0 for one that stands for none. Nothing in a feedback
/// buffer counts further than its length, let alone an int.
int whole_number(float value) {
  constexpr float limit = 1.0e9F;
  return std::fabs(value) < limit ? static_cast<int>(value) : 0;
}

/// Walks over the values of a feedback buffer, never beyond their end.
class FeedbackReader {
 public:
  explicit FeedbackReader(const std::vector<float>& values) : values_(values) {}

  FeedbackPicture read() {
    while (index_ < values_.size()) {
      read_token(whole_number(values_[index_++]));
    }
    finish_cube();
    return std::move(picture_);
  }

 private:
  void read_token(int token) {
    switch (token) {
      case GL_PASS_THROUGH_TOKEN:
        finish_cube();
        in_cube_ = true;
        ++index_;
        break;
      case GL_LINE_TOKEN:
      case GL_LINE_RESET_TOKEN:
        read_line();
        break;
      case GL_POLYGON_TOKEN:
        read_polygon();
        break;
      case GL_POINT_TOKEN:
      case GL_BITMAP_TOKEN:
      case GL_DRAW_PIXEL_TOKEN:
      case GL_COPY_PIXEL_TOKEN:
        index_ += vertex_values;
        break;
      default:
        break;
    }
  }

  std::optional<QPointF> next_vertex() {
    if (index_ + vertex_values > values_.size()) {
      index_ = values_.size();
      return std::nullopt;
    }
    const QPointF vertex(static_cast<qreal>(values_[index_]),
                         static_cast<qreal>(values_[index_ + 1]));
    index_ += vertex_values;
    return vertex;
  }

  void read_line() {
    const auto start = next_vertex();
    const auto end = next_vertex();
    if (start && end && can_be_on_paper(*start) && can_be_on_paper(*end)) {
      picture_.lines.emplace_back(*start, *end);
    }
  }

  void read_polygon() {
    if (index_ >= values_.size()) {
      return;
    }
    const int vertices = whole_number(values_[index_++]);
    for (int i = 0; i < vertices && index_ < values_.size(); ++i) {
      if (const auto vertex = next_vertex()) {
        extend_cube(*vertex);
      }
    }
  }

  void extend_cube(QPointF vertex) {
    if (!in_cube_ || !can_be_on_paper(vertex)) {
      return;
    }
    if (!cube_has_vertices_) {
      low_ = high_ = vertex;
      cube_has_vertices_ = true;
    }
    low_ = {std::min(low_.x(), vertex.x()), std::min(low_.y(), vertex.y())};
    high_ = {std::max(high_.x(), vertex.x()), std::max(high_.y(), vertex.y())};
  }

  void finish_cube() {
    if (cube_has_vertices_) {
      picture_.cubes.emplace_back(low_, high_);
    }
    in_cube_ = false;
    cube_has_vertices_ = false;
  }

  const std::vector<float>& values_;
  std::size_t index_ = 0;
  FeedbackPicture picture_;
  bool in_cube_ = false;
  bool cube_has_vertices_ = false;
  QPointF low_;
  QPointF high_;
};

}  // namespace

std::optional<FeedbackPicture> draw_into_feedback(int points, const std::function<void()>& draw) {
  std::vector<float> buffer(static_cast<std::size_t>(feedback_buffer_size(points)));
  for (int doublings = 0; doublings <= most_feedback_doublings; ++doublings) {
    glFeedbackBuffer(static_cast<GLsizei>(buffer.size()), GL_3D, buffer.data());
    glRenderMode(GL_FEEDBACK);
    draw();
    const GLint written = glRenderMode(GL_RENDER);
    if (written >= 0) {
      buffer.resize(static_cast<std::size_t>(written));
      return read_feedback(buffer);
    }
    buffer.assign(buffer.size() * 2, 0.0F);
  }
  return std::nullopt;
}

bool can_be_on_paper(QPointF place) {
  constexpr double limit = 1.0e6;  // points; some 350 metres
  return std::fabs(place.x()) < limit && std::fabs(place.y()) < limit;
}

FeedbackPicture read_feedback(const std::vector<float>& values) {
  return FeedbackReader(values).read();
}

}  // namespace velquon
