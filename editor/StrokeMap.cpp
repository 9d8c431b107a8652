#include "editor/StrokeMap.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

void StrokeMap::Clear(int xPoints) {
    xPoints_ = xPoints;
    marked_.clear();
}

void StrokeMap::Press(const MousePoint& mouse) {
    const double x = RoundHalfEven(mouse.x);
    const double y = RoundHalfEven(mouse.y);
    if (!(x >= 0 && x <= xPoints_ && y >= 0 && y <= xPoints_))
        return;
    const Point point{static_cast<int>(x), static_cast<int>(y)};
    if (marked_.empty() || marked_.back() != point)
        marked_.push_back(point);
}

MousePoint StrokeMap::Move(const MousePoint& mouse) {
    const auto size = static_cast<float>(xPoints_ - 1);
    const MousePoint at{STDIO::ClampValue(0.0f, size, mouse.x),
                        STDIO::ClampValue(0.0f, size, mouse.y)};
    Press(at);
    return at;
}

std::vector<StrokeMap::Point> StrokeMap::Points(int last) const {
    std::vector<Point> points;
    const auto isWithin = [last](const Point& point) {
        return point.x >= 1 && point.x <= last && point.y >= 1 && point.y <= last;
    };
    std::ranges::copy_if(marked_, std::back_inserter(points), isWithin);
    std::ranges::sort(points);
    points.erase(std::unique(points.begin(), points.end()), points.end());
    return points;
}

}  // namespace quillbrand
