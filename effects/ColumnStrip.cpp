#include "effects/ColumnStrip.h"

#include <algorithm>

namespace quillbrand {

namespace {

/// Cells in a cache line.
constexpr std::ptrdiff_t line = 16;

}  // namespace

ColumnStrip::ColumnStrip(const clsTerrain& terrain, const GridRect& rect)
    : grid_(terrain.Cells()), rect_(rect), length_(rect.Rows() + 2) {
    assert(grid_.Contains(rect));
    // An odd number of cache lines keeps the columns from falling into the same places of a cache.
    length_ = ((length_ + line - 1) / line | 1) * line;
    columns_.resize(static_cast<std::size_t>(length_ * (width + 2)));
}

void ColumnStrip::Load(const clsTerrain& terrain, int first, int count) {
    assert(rect_.x0 <= first && 1 <= count && count <= width && first + count - 1 <= rect_.x1);
    first_ = first;
    count_ = count;
    const GridRect loaded =
        GridRect::Cut(first - 1, rect_.y0 - 1, first + count, rect_.y1 + 1, grid_);
    const std::ptrdiff_t place = (loaded.x0 - (first - 1)) * length_ + (loaded.y0 - (rect_.y0 - 1));
    terrain.LoadColumns(loaded, std::span(columns_).subspan(static_cast<std::size_t>(place)),
                        length_);
    for (int x = loaded.x0; x <= loaded.x1; ++x)
        RenewPadding(x);
}

void ColumnStrip::Store(HeightWriter& writer) const {
    writer.StoreColumns({first_, rect_.y0, first_ + count_ - 1, rect_.y1},
                        std::span(columns_).subspan(static_cast<std::size_t>(length_ + 1)),
                        length_);
}

void ColumnStrip::RenewPadding(int x) {
    Height* const column = Column(x);
    const std::ptrdiff_t rows = Rows();
    if (rect_.y0 == grid_.y0)
        column[0] = column[1];
    if (rect_.y1 == grid_.y1)
        column[rows + 1] = column[rows];
}

}  // namespace quillbrand
