#pragma once

#include <cstdint>
#include <vector>

#include "editor/Pen.h"

namespace quillbrand {

/// The points that a stroke of a tool has marked, 0..XPoints in both directions. A fast mouse
/// leaves gaps: nothing is marked between two places of it.
class StrokeMap {
  public:
    struct Point {
        int x;
        int y;
        auto operator<=>(const Point&) const = default;
    };

    /// A press of any button: all points are free again, on a grid of `xPoints` points.
    void Clear(int xPoints);

    /// The point nearest to a press of the left button; outside the map nothing is marked.
    void Press(const MousePoint& mouse);

    /// The point nearest to the mouse as it moves with the left button held, or to the nearest
    /// place of the terrain. Returns that place, where the red trail is drawn.
    MousePoint Move(const MousePoint& mouse);

    /// The marked points within 1..last in both directions, once each, by x, then by y.
    std::vector<Point> Points(int last) const;

  private:
    int xPoints_ = 0;
    std::vector<Point> marked_;  ///< in the order of the marking, some more than once
};

}  // namespace quillbrand
