// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace velquon {

/// Whether a place can be written into a page: both coordinates finite and not far beyond any paper.
[[nodiscard]] bool can_be_on_paper(QPointF place);

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

/// How many times a feedback buffer is doubled at most: to 64 times what the cubes need as faces of
/// four corners, of which drivers make a few polygons more.
inline constexpr int most_feedback_doublings = 6;

/// Draws in feedback mode and reads what comes back. The context must be current.
/// \param points points of the event, from which the buffer's first size follows; while the drawing
///               does not fit it is doubled and the scene drawn again
/// \param draw   draws the scene, with a pass-through mark ahead of each cube
/// \return nothing when the driver finds no buffer large enough
[[nodiscard]] std::optional<FeedbackPicture> draw_into_feedback(int points,
                                                                const std::function<void()>& draw);

/// Reads the values of a feedback buffer in 3-D vertices.
/// \param values as many as the buffer holds, no more
[[nodiscard]] FeedbackPicture read_feedback(const std::vector<float>& values);

}  // namespace velquon
