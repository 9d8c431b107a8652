#pragma once

#include <vector>

namespace quillbrand {

/// A rectangle on the height picture in grid units, with the fractions that the mouse gave it.
/// While it is drawn its right may lie left of its left.
struct Frame {
    float left;
    float top;
    float right;
    float bottom;
};

/// Where the corner that the mouse moves comes to lie, on either axis: odd whole numbers and
/// fractions go up by 1. The corner where the drag began stays as it is.
float MovingCorner(float mouse);

/// Puts the sides in their order. Where two fall together, the right or the lower one goes up by 1.
void convertFrameData(float& left, float& top, float& right, float& bottom);

/// One of the lines of a frame: they lie 1 apart, from its left or top side on.
struct FrameLine {
    int cell;   ///< its column or row of the grid
    double at;  ///< its exact place
};

/// The lines `low`, `low` + 1 ... that do not lie beyond `high` and round to 0..last. Sides that
/// lie half-way between points meet every other point, and these twice.
std::vector<FrameLine> LinesOf(float low, float high, int last);

}  // namespace quillbrand
