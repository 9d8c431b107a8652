#pragma once

#include <cassert>
#include <cstddef>
#include <vector>

#include "terrain/HeightWriter.h"

namespace quillbrand {

/// A few neighbouring columns of a grid, turned so that each lies in one piece in the cache: for
/// passes in which the columns depend on each other but the points of one column do not.
///
/// Each column holds the rows of a rectangle between two padding cells, which are the cells above
/// and below or, at the rim of the grid, copies of the first and the last row.
class ColumnStrip {
  public:
    static constexpr int width = 64;

    /// For the rows of `rect`, which lies in the grid.
    ColumnStrip(const clsTerrain& terrain, const GridRect& rect);

    /// Loads the columns first..first + count - 1 and their two neighbours, as far as the grid has
    /// them. Requires: the columns lie in the rectangle, 1 <= count <= width.
    void Load(const clsTerrain& terrain, int first, int count);

    /// Writes the columns back, without neighbours and padding; the pass widens Stored().
    void Store(HeightWriter& writer) const;

    /// Column x of the grid, from its upper padding cell on. Requires: it was loaded.
    Height* Column(int x) {
        assert(first_ - 1 <= x && x <= first_ + count_);
        return columns_.data() + (x - first_ + 1) * length_;
    }

    std::ptrdiff_t Rows() const { return rect_.Rows(); }

    /// Makes the copies at the rim follow the column's first and last row.
    void RenewPadding(int x);

  private:
    GridRect grid_;
    GridRect rect_;
    std::ptrdiff_t length_;  ///< of a column with its padding
    int first_ = 0;
    int count_ = 0;
    std::vector<Height> columns_;
};

}  // namespace quillbrand
