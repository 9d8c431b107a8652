#pragma once

#include <algorithm>
#include <span>

#include "effects/ColumnStrip.h"
#include "effects/QBFilter.h"

namespace quillbrand::QBFilter {

/// Calls `use` with the rows of each column of the writer's rectangle, as a span to be changed,
/// column by column from the left, and with the column's x. It widens writer.Stored().
template <typename Use>
void ForEachColumn(HeightWriter& writer, Use use) {
    const GridRect rect = writer.Rect();
    ColumnStrip strip(writer.Terrain(), rect);
    for (int first = rect.x0; first <= rect.x1; first += ColumnStrip::width) {
        const int count = std::min(ColumnStrip::width, rect.x1 - first + 1);
        strip.Load(writer.Terrain(), first, count);
        for (int x = first; x < first + count; ++x)
            use(x, std::span<Height>(strip.Column(x) + 1, static_cast<std::size_t>(rect.Rows())));
        strip.Store(writer);
    }
}

/// The same point by point, for areas that leave the grid: `change` makes a new height of a point's
/// present one, or nothing; `beginColumn` comes before each column.
template <typename BeginColumn, typename Change>
void ForEachPoint(clsTerrain& terrain, const Area& area, int extent, BeginColumn beginColumn,
                  Change change) {
    for (int x = area.startX; x <= area.startX + extent; ++x) {
        beginColumn(x);
        for (int y = area.startY; y <= area.startY + extent; ++y) {
            const Height h = terrain.GetPoint(x, y);
            if (area.Holds(h))
                terrain.SetPoint(x, y, change(h));
        }
    }
}

}  // namespace quillbrand::QBFilter
