#pragma once

#include <vector>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// A few neighbouring columns of a grid, turned so that each lies in one piece in the cache: for
/// passes in which the columns depend on each other but the points of one column do not.
///
/// Each column holds the rows y0..y1 between two padding cells, which are the cells above and
/// below or, at the rim of the grid, copies of the first and the last row.
class ColumnStrip {
  public:
    static constexpr int width = 64;

    /// `last` is the last index of the grid; 0 <= y0 <= y1 <= last for a strip that is loaded.
    ColumnStrip(int last, int y0, int y1);

    /// Loads the columns first..first + count - 1 (count <= width) and their two neighbours, as far
    /// as the grid has them.
    void Load(HeightWriter& grid, int first, int count);

    /// Writes the columns back, without neighbours and padding.
    void Store(HeightWriter& grid) const;

    /// Column x of the grid, from its upper padding cell on.
    Height* Column(int x) { return columns_.data() + (x - first_ + 1) * length_; }

    std::ptrdiff_t Rows() const { return y1_ - y0_ + 1; }

    /// Makes the copies at the rim follow the column's first and last row.
    void RenewPadding(int x);

  private:
    int last_;
    int y0_;
    int y1_;
    std::ptrdiff_t length_;  ///< of a column with its padding
    int first_ = 0;
    int count_ = 0;
    std::vector<Height> columns_;
};

}  // namespace quillbrand
