#pragma once

#include <QPoint>
#include <QRect>
#include <span>

#include "base/Spans.h"

namespace quillbrand {

/// How far from the raster's origin the pixels of shapes may lie: what is farther away is moved
/// here, so that no sum or product overflows.
constexpr int farthestPixel = 1 << 29;

/// The shapes of a raster, as the pixels that they cover; those outside `window` may be left out,
/// and cost nothing. Nothing here knows a width: outlines are one pixel wide.
/// Requires: every coordinate and radius within farthestPixel.

/// A straight line, both ends included. Along the axis on which it is longer it has one pixel in
/// each step (along y where both are as long), the one nearest to the true line, of two as near
/// the one to the right or below. It is the same from either end.
Spans LineTrace(QPoint from, QPoint to, const QRect& window);

/// The lines from each point to the next, and from the last to the first.
Spans PolygonTrace(std::span<const QPoint> points, const QRect& window);

/// What lies inside of a polygon: a row's pixels between its first and second crossing of the
/// lines, between its third and fourth, and so on. Lowest points and lines along a row are left to
/// the outline.
Spans PolygonInside(std::span<const QPoint> points, const QRect& window);

/// A box with these two corners, in any order.
Spans BoxTrace(QPoint one, QPoint other, const QRect& window);
Spans BoxInside(QPoint one, QPoint other, const QRect& window);

/// An ellipse around a pixel: every pixel that lies in it, or no more than half a pixel beyond its
/// curve upwards, downwards or to a side. So it is symmetric, and reaches as far as its radius in
/// each direction. Requires: radii of 0 or more.
Spans EllipseInside(QPoint centre, int radiusX, int radiusY, const QRect& window);

/// Those of its pixels that have a neighbour to the left, right, above or below which is not.
Spans EllipseTrace(QPoint centre, int radiusX, int radiusY, const QRect& window);

}  // namespace quillbrand
