#include "tests/support/SlowCanvas.h"

#include <cmath>
#include <cstdlib>

namespace quillbrand::SlowTwins {

namespace {

Colour Drawn(Colour old, Colour colour, DrawMode mode) {
    if (mode == DrawMode::Invert)
        return ~old & 0xffffff;
    return mode == DrawMode::NotXor ? ~(old ^ colour) & 0xffffff : colour;
}

/// Whether a disc of `width` pixels around a pixel covers the one `place` away from it.
bool InBrush(QPoint place, int width) {
    const double middle = width % 2 == 0 ? 0.5 : 0;
    return std::hypot(place.x() + middle, place.y() + middle) <= width / 2.0;
}

/// Draws on every pixel that the brush covers from any pixel of the outline; then, elsewhere, on
/// those inside.
template <typename OnOutline, typename InBrush, typename Inside>
void Draw(Picture& picture, const Pen& pen, OnOutline onOutline, InBrush inBrush, Inside inside) {
    const auto isCovered = [&](QPoint pixel) {
        for (int y = -pen.width; y <= pen.width; ++y)
            for (int x = -pen.width; x <= pen.width; ++x)
                if (inBrush(QPoint(x, y)) && onOutline(pixel - QPoint(x, y)))
                    return true;
        return false;
    };
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            const Colour old = picture.Point(x, y);
            if (isCovered({x, y}))
                picture.Row(y)[x] = PixelOf(Drawn(old, pen.colour, pen.mode));
            else if (pen.fill && inside(QPoint(x, y)))
                picture.Row(y)[x] = PixelOf(Drawn(old, *pen.fill, pen.mode));
        }
}

template <typename OnOutline, typename Inside>
void DrawClosed(Picture& picture, const Pen& pen, OnOutline onOutline, Inside inside) {
    Draw(
        picture, pen, onOutline, [&](QPoint place) { return InBrush(place, pen.width); }, inside);
}

/// Whether a pixel is the line's nearest in its step, along y if `steep`.
bool OnLine(QPoint pixel, QPoint from, QPoint to) {
    QPoint way = to - from;
    if (std::abs(way.x()) > std::abs(way.y()))
        return OnLine(pixel.transposed(), from.transposed(), to.transposed());
    if (way.y() < 0)
        return OnLine(pixel, to, from);
    if (pixel.y() < from.y() || pixel.y() > to.y())
        return false;
    // Twice the distance from the line, as a multiple of the line's height.
    const int twice = 2 * ((pixel.x() - from.x()) * way.y() - (pixel.y() - from.y()) * way.x());
    return way.y() == 0 ? pixel == from : -way.y() < twice && twice <= way.y();
}

bool InEllipse(QPoint place, double radiusX, double radiusY) {
    const auto isIn = [&](double x, double y) {
        return x <= radiusX && y <= radiusY &&
               x * x * radiusY * radiusY + y * y * radiusX * radiusX <=
                   radiusX * radiusX * radiusY * radiusY;
    };
    const int x = std::abs(place.x());
    const int y = std::abs(place.y());
    return isIn(std::max(x - 0.5, 0.0), y) || isIn(x, std::max(y - 0.5, 0.0));
}

/// Whether an odd number of lines cross the row to the left of the pixel.
bool InPolygon(QPoint pixel, std::span<const QPoint> points) {
    bool inside = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        QPoint upper = points[i];
        QPoint lower = points[(i + 1) % points.size()];
        if (upper.y() > lower.y())
            std::swap(upper, lower);
        const QPoint way = lower - upper;
        const QPoint place = pixel - upper;
        if (place.y() >= 0 && place.y() < way.y() && place.x() * way.y() > place.y() * way.x())
            inside = !inside;
    }
    return inside;
}

}  // namespace

void DrawLine(Picture& picture, QPoint from, QPoint to, const Pen& pen) {
    const QPoint way = to - from;
    const bool shallow = std::abs(way.x()) > std::abs(way.y());
    Draw(
        picture, pen, [&](QPoint pixel) { return OnLine(pixel, from, to); },
        [&](QPoint place) {
            const int across = shallow ? place.y() : place.x();
            const int along = shallow ? place.x() : place.y();
            return along == 0 && across >= -(pen.width / 2) && across < pen.width - pen.width / 2;
        },
        [](QPoint) { return false; });
}

void DrawBox(Picture& picture, QPoint one, QPoint other, const Pen& pen) {
    const auto isIn = [&](QPoint pixel, int edge) {
        return std::min(one.x(), other.x()) + edge <= pixel.x() &&
               pixel.x() <= std::max(one.x(), other.x()) - edge &&
               std::min(one.y(), other.y()) + edge <= pixel.y() &&
               pixel.y() <= std::max(one.y(), other.y()) - edge;
    };
    DrawClosed(
        picture, pen, [&](QPoint pixel) { return isIn(pixel, 0) && !isIn(pixel, 1); },
        [&](QPoint pixel) { return isIn(pixel, 0); });
}

void DrawEllipse(Picture& picture, QPoint centre, int radiusX, int radiusY, const Pen& pen) {
    const auto isIn = [&](QPoint pixel) { return InEllipse(pixel - centre, radiusX, radiusY); };
    const QPoint neighbours[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    const auto isAtEdge = [&](QPoint pixel) {
        return !std::all_of(std::begin(neighbours), std::end(neighbours),
                            [&](QPoint way) { return isIn(pixel + way); });
    };
    DrawClosed(
        picture, pen, [&](QPoint pixel) { return isIn(pixel) && isAtEdge(pixel); }, isIn);
}

void DrawPolygon(Picture& picture, std::span<const QPoint> points, const Pen& pen) {
    const auto onEdge = [&](QPoint pixel) {
        for (std::size_t i = 0; i < points.size(); ++i)
            if (OnLine(pixel, points[i], points[(i + 1) % points.size()]))
                return true;
        return false;
    };
    DrawClosed(picture, pen, onEdge, [&](QPoint pixel) { return InPolygon(pixel, points); });
}

}  // namespace quillbrand::SlowTwins
