#pragma once

#include <QPointF>
#include <QRectF>
#include <functional>
#include <utility>
#include <vector>

namespace velquon {

/// Floats that a feedback buffer for n points starts with: room for the chamber's lines and for
/// each cube as six faces of four corners.
[[nodiscard]] constexpr int feedback_buffer_size(int points) {
  return points * 84 + 217;
}

/// What a drawing pass in feedback mode came to, in window coordinates with y upwards.
struct FeedbackPicture {
  std::vector<std::pair<QPointF, QPointF>> lines;
  std::vector<QRectF> cubes;  ///< bounding rectangle of each cube's visible faces
};

/// Draws in feedback mode and reads what comes back. The context must be current.
/// \param points points of the event, from which the buffer's first size follows; it grows as long
/// as
///               the drawing does not fit
/// \param draw   draws the scene, with a pass-through mark ahead of each cube
[[nodiscard]] FeedbackPicture draw_into_feedback(int points, const std::function<void()>& draw);

/// Reads the values of a feedback buffer in 3-D vertices.
/// \param values as many as the buffer holds, no more
[[nodiscard]] FeedbackPicture read_feedback(const std::vector<float>& values);

}  // namespace velquon
