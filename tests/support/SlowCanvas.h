#pragma once

#include <QPoint>
#include <optional>
#include <span>

#include "base/Canvas.h"

/// The shapes of a Canvas, found by asking every pixel of the picture whether they cover it.
/// Places and radii are in pixels.
namespace quillbrand::SlowTwins {

struct Pen {
    int width = 1;
    DrawMode mode = DrawMode::Copy;
    Colour colour = 0;
    std::optional<Colour> fill;  ///< of closed shapes
};

void DrawLine(Picture& picture, QPoint from, QPoint to, const Pen& pen);
void DrawBox(Picture& picture, QPoint one, QPoint other, const Pen& pen);
void DrawEllipse(Picture& picture, QPoint centre, int radiusX, int radiusY, const Pen& pen);

/// With one point, a point.
void DrawPolygon(Picture& picture, std::span<const QPoint> points, const Pen& pen);

}  // namespace quillbrand::SlowTwins
