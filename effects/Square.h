#pragma once

#include <algorithm>
#include <cstdint>

#include "effects/QBFilter.h"

namespace quillbrand::QBFilter {

/// A rectangle of grid points, both ends included.
struct Square {
    int x0, x1, y0, y1;

    bool IsEmpty() const { return x0 > x1 || y0 > y1; }
    int Columns() const { return x1 - x0 + 1; }
    int Rows() const { return y1 - y0 + 1; }
};

/// The square of `extent` from the area's start, cut to a grid with the last index `last`.
inline Square CutToGrid(const Area& area, int extent, int last) {
    const auto end = [&](int start) {
        return static_cast<int>(std::min<std::int64_t>(std::int64_t{start} + extent, last));
    };
    return {std::max(area.startX, 0), end(area.startX), std::max(area.startY, 0), end(area.startY)};
}

/// True when all of that square lies in the grid.
inline bool LiesInGrid(const Area& area, int extent, int last) {
    return area.startX >= 0 && area.startY >= 0 && std::int64_t{area.startX} + extent <= last &&
           std::int64_t{area.startY} + extent <= last;
}

}  // namespace quillbrand::QBFilter
