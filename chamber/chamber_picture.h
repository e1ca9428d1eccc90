// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <cstddef>
#include <optional>
#include <span>

#include "engine/event_record.h"
#include "render/camera.h"
#include "render/chamber_scene.h"

namespace velquon {

/// Draws the chamber as its view does, at a size of its own, without a window.
/// \param points  of the event, as many as are shown
/// \param scale   pixels per view unit; at 1 the picture is that of the screen to the pixel, in
///                others the values are written in letters of their size
/// \return nothing when the graphics driver makes no picture of that size
[[nodiscard]] std::optional<QImage> chamber_picture(std::span<const PlotPoint> points,
                                                    const Camera& camera, double scale,
                                                    const SceneOptions& options);

}  // namespace velquon
