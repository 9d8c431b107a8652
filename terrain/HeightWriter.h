#pragma once

#include <cassert>
#include <cstddef>
#include <span>
#include <vector>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Write access to a rectangle of a terrain's cells, for a pass over whole rows or columns. What is
/// stored through it widens the running extremes of the terrain when the writer goes; cells that
/// are left alone do not.
///
/// Either the writer measures (Row) or the pass tells (UnmeasuredRow, StoreColumns, with Stored).
/// Where assertions are on, the writer compares the cells with what they were: a changed one
/// beyond the extremes that it knows of ends the program. A pass that an exception ends may leave
/// the extremes in any state.
class HeightWriter {
  public:
    /// Requires: `rect` lies in terrain.Cells() or is empty.
    HeightWriter(clsTerrain& terrain, const GridRect& rect);
    HeightWriter(const HeightWriter&) = delete;
    HeightWriter& operator=(const HeightWriter&) = delete;
    ~HeightWriter();

    const GridRect& Rect() const { return rect_; }
    const clsTerrain& Terrain() const { return terrain_; }

    /// Row y of the rectangle, every cell of which counts as stored. The span is good until the
    /// next row is asked for: then the writer measures this one. Requires: y lies in the rectangle.
    std::span<Height> Row(int y) {
        MeasureRow();
        measured_ = y;
        return UnmeasuredRow(y);
    }

    /// The same for a pass that stores some cells only, or knows what it stores: it widens
    /// Stored().
    std::span<Height> UnmeasuredRow(int y) {
        assert(rect_.Contains(rect_.x0, y));
        return {terrain_.cells_.data() + terrain_.Index(rect_.x0, y),
                static_cast<std::size_t>(rect_.Columns())};
    }

    /// Stores `part`, which lies in the rectangle, from columns: (x, y) becomes
    /// columns[(x - part.x0) * length + y - part.y0]. The pass widens Stored().
    void StoreColumns(const GridRect& part, std::span<const Height> columns, std::ptrdiff_t length);

    /// What the pass has stored, as far as the writer does not measure it; to be widened.
    Extremes& Stored() { return stored_; }

  private:
    static constexpr int noRow = -1;

    void MeasureRow();
    bool KnowsAllChanges() const;

    clsTerrain& terrain_;
    GridRect rect_;
    Extremes stored_;
    int measured_ = noRow;        ///< the row that is to be measured next
    int exceptions_;              ///< in flight when the pass began
    std::vector<Height> before_;  ///< the cells as they were, where assertions are on
};

}  // namespace quillbrand
