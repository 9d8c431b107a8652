#include "base/Shapes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace quillbrand {

namespace {

/// Requires: divisor > 0.
std::int64_t FloorOf(std::int64_t number, std::int64_t divisor) {
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

/// A line's place on one axis at `step` of the other, on which it runs from `first` to `last`.
int PlaceAt(int step, int first, int last, int firstPlace, int lastPlace) {
    if (first == last)
        return firstPlace;
    const std::int64_t length = last - first;
    const std::int64_t rise = lastPlace - firstPlace;
    return firstPlace + static_cast<int>(FloorOf(2 * rise * (step - first) + length, 2 * length));
}

void AddSteep(Spans& spans, QPoint from, QPoint to, const QRect& window) {
    if (from.y() > to.y())
        std::swap(from, to);
    const int last = std::min(to.y(), window.bottom());
    for (int y = std::max(from.y(), window.top()); y <= last; ++y) {
        const int x = PlaceAt(y, from.y(), to.y(), from.x(), to.x());
        spans.push_back({y, x, x});
    }
}

void AddShallow(Spans& spans, QPoint from, QPoint to, const QRect& window) {
    if (from.x() > to.x())
        std::swap(from, to);
    const int last = std::min(to.x(), window.right());
    const std::size_t before = spans.size();
    for (int x = std::max(from.x(), window.left()); x <= last; ++x) {
        const int y = PlaceAt(x, from.x(), to.x(), from.y(), to.y());
        if (spans.size() > before && spans.back().y == y)
            spans.back().right = x;
        else
            spans.push_back({y, x, x});
    }
}

/// One run of a row within the window's columns, if anything of it is.
void AddRun(Spans& spans, const QRect& window, int y, int left, int right) {
    left = std::max(left, window.left());
    right = std::min(right, window.right());
    if (left <= right)
        spans.push_back({y, left, right});
}

void AddLine(Spans& spans, QPoint from, QPoint to, const QRect& window) {
    if (from.y() == to.y()) {
        if (from.y() >= window.top() && from.y() <= window.bottom())
            AddRun(spans, window, from.y(), std::min(from.x(), to.x()), std::max(from.x(), to.x()));
        return;
    }
    if (std::abs(to.y() - from.y()) >= std::abs(to.x() - from.x()))
        AddSteep(spans, from, to, window);
    else
        AddShallow(spans, from, to, window);
}

QRect BoxOf(QPoint one, QPoint other) {
    return {QPoint(std::min(one.x(), other.x()), std::min(one.y(), other.y())),
            QPoint(std::max(one.x(), other.x()), std::max(one.y(), other.y()))};
}

/// Half the width of an ellipse `height` above its centre. Requires: height <= radiusY.
double HalfWidthAt(double radiusX, double radiusY, double height) {
    if (height == 0)
        return radiusX;
    return radiusX / radiusY * std::sqrt((radiusY - height) * (radiusY + height));
}

/// How far the pixels of the row `rise` above or below its centre go to either side; -1 for none.
int Reach(int radiusX, int radiusY, int rise) {
    if (rise > radiusY)
        return -1;
    const double below = HalfWidthAt(radiusX, radiusY, std::max(rise - 0.5, 0.0));
    const double beside = HalfWidthAt(radiusX, radiusY, rise) + 0.5;
    return static_cast<int>(std::max(below, beside));
}

/// Calls `row` with y and its distance from the centre, for each of an ellipse's rows in `window`.
template <typename Row>
void ForRowsOf(QPoint centre, int radiusY, const QRect& window, Row row) {
    const int last = std::min(centre.y() + radiusY, window.bottom());
    for (int y = std::max(centre.y() - radiusY, window.top()); y <= last; ++y)
        row(y, std::abs(y - centre.y()));
}

}  // namespace

Spans LineTrace(QPoint from, QPoint to, const QRect& window) {
    Spans spans;
    AddLine(spans, from, to, window);
    return spans;
}

Spans PolygonTrace(std::span<const QPoint> points, const QRect& window) {
    Spans spans;
    for (std::size_t i = 0; i < points.size(); ++i)
        AddLine(spans, points[i], points[(i + 1) % points.size()], window);
    return spans;
}

Spans PolygonInside(std::span<const QPoint> points, const QRect& window) {
    Spans spans;
    if (points.empty())
        return spans;
    const auto [highest, lowest] = std::minmax_element(
        points.begin(), points.end(), [](QPoint a, QPoint b) { return a.y() < b.y(); });
    std::vector<int> crossings;
    const int last = std::min(lowest->y(), window.bottom());
    for (int y = std::max(highest->y(), window.top()); y <= last; ++y) {
        crossings.clear();
        for (std::size_t i = 0; i < points.size(); ++i) {
            QPoint from = points[i];
            QPoint to = points[(i + 1) % points.size()];
            if (from.y() > to.y())
                std::swap(from, to);
            if (from.y() <= y && y < to.y())
                crossings.push_back(PlaceAt(y, from.y(), to.y(), from.x(), to.x()));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
            AddRun(spans, window, y, crossings[i], crossings[i + 1]);
    }
    return spans;
}

Spans BoxTrace(QPoint one, QPoint other, const QRect& window) {
    const QRect box = BoxOf(one, other);
    const QPoint corners[] = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
    return PolygonTrace(corners, window);
}

Spans BoxInside(QPoint one, QPoint other, const QRect& window) {
    const QRect box = BoxOf(one, other) & window;
    Spans spans;
    for (int y = box.top(); y <= box.bottom(); ++y)
        spans.push_back({y, box.left(), box.right()});
    return spans;
}

Spans EllipseInside(QPoint centre, int radiusX, int radiusY, const QRect& window) {
    Spans spans;
    ForRowsOf(centre, radiusY, window, [&](int y, int rise) {
        const int reach = Reach(radiusX, radiusY, rise);
        AddRun(spans, window, y, centre.x() - reach, centre.x() + reach);
    });
    return spans;
}

Spans EllipseTrace(QPoint centre, int radiusX, int radiusY, const QRect& window) {
    Spans spans;
    ForRowsOf(centre, radiusY, window, [&](int y, int rise) {
        const int reach = Reach(radiusX, radiusY, rise);
        const int inner = std::min(reach, Reach(radiusX, radiusY, rise + 1) + 1);
        AddRun(spans, window, y, centre.x() - reach, centre.x() - inner);
        AddRun(spans, window, y, centre.x() + inner, centre.x() + reach);
    });
    return spans;
}

}  // namespace quillbrand
