#pragma once

#include <algorithm>
#include <cstdint>

namespace quillbrand {

/// A rectangle of grid points: the columns x0..x1 and the rows y0..y1, both ends included. It is
/// empty where an end lies before its start, as without values.
struct GridRect {
    int x0 = 0;
    int y0 = 0;
    int x1 = -1;
    int y1 = -1;

    /// The part of x0..x1, y0..y1 that lies in `grid`, however far out the ends are.
    static GridRect Cut(std::int64_t x0, std::int64_t y0, std::int64_t x1, std::int64_t y1,
                        const GridRect& grid) {
        x0 = std::max<std::int64_t>(x0, grid.x0);
        y0 = std::max<std::int64_t>(y0, grid.y0);
        x1 = std::min<std::int64_t>(x1, grid.x1);
        y1 = std::min<std::int64_t>(y1, grid.y1);
        if (x0 > x1 || y0 > y1)
            return {};
        return {static_cast<int>(x0), static_cast<int>(y0), static_cast<int>(x1),
                static_cast<int>(y1)};
    }

    /// The points that lie in both.
    GridRect CutTo(const GridRect& other) const { return Cut(x0, y0, x1, y1, other); }

    bool IsEmpty() const { return x0 > x1 || y0 > y1; }
    int Columns() const { return std::max(x1 - x0 + 1, 0); }
    int Rows() const { return std::max(y1 - y0 + 1, 0); }

    bool Contains(int x, int y) const { return x0 <= x && x <= x1 && y0 <= y && y <= y1; }

    /// True for an empty one too.
    bool Contains(const GridRect& other) const {
        return other.IsEmpty() || (Contains(other.x0, other.y0) && Contains(other.x1, other.y1));
    }

    bool operator==(const GridRect&) const = default;
};

}  // namespace quillbrand
