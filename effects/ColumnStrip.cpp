#include "effects/ColumnStrip.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/VectorClones.h"

namespace quillbrand {

namespace {

using Four = std::uint32_t __attribute__((vector_size(16)));

[[gnu::always_inline]] inline Four LoadFour(const Height* cells) {
    Four four;
    std::memcpy(&four, cells, sizeof four);
    return four;
}

[[gnu::always_inline]] inline void StoreFour(Height* cells, Four four) {
    std::memcpy(cells, &four, sizeof four);
}

/// Rows lie whole pages apart, so the coming ones are asked for this many ahead, a cache line of
/// cells at a time.
constexpr std::ptrdiff_t ahead = 24;
constexpr std::ptrdiff_t line = 16;

/// target[x][y] = source[y][x] for 4 by 4 cells, whose rows lie a stride apart.
[[gnu::always_inline]] inline void TurnBlock(const Height* source, std::ptrdiff_t sourceStride,
                                             Height* target, std::ptrdiff_t targetStride) {
    const Four a = LoadFour(source);
    const Four b = LoadFour(source + sourceStride);
    const Four c = LoadFour(source + 2 * sourceStride);
    const Four d = LoadFour(source + 3 * sourceStride);
    const Four abLow = __builtin_shufflevector(a, b, 0, 4, 1, 5);
    const Four abHigh = __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const Four cdLow = __builtin_shufflevector(c, d, 0, 4, 1, 5);
    const Four cdHigh = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    StoreFour(target, __builtin_shufflevector(abLow, cdLow, 0, 1, 4, 5));
    StoreFour(target + targetStride, __builtin_shufflevector(abLow, cdLow, 2, 3, 6, 7));
    StoreFour(target + 2 * targetStride, __builtin_shufflevector(abHigh, cdHigh, 0, 1, 4, 5));
    StoreFour(target + 3 * targetStride, __builtin_shufflevector(abHigh, cdHigh, 2, 3, 6, 7));
}

/// The same for any number of cells.
void TurnCells(const Height* source, std::ptrdiff_t sourceStride, std::ptrdiff_t rows,
               std::ptrdiff_t columns, Height* target, std::ptrdiff_t targetStride) {
    for (std::ptrdiff_t y = 0; y < rows; ++y)
        for (std::ptrdiff_t x = 0; x < columns; ++x)
            target[x * targetStride + y] = source[y * sourceStride + x];
}

/// Turns `rowCount` rows of `count` cells into columns `length` cells apart.
QB_VECTOR_CLONES void TurnIn(const Height* rows, std::ptrdiff_t stride, std::ptrdiff_t rowCount,
                             std::ptrdiff_t count, Height* columns, std::ptrdiff_t length) {
    const std::ptrdiff_t blocks = count / 4 * 4;
    std::ptrdiff_t y = 0;
    for (; y + 4 <= rowCount; y += 4) {
        const Height* const source = rows + y * stride;
        for (std::ptrdiff_t i = ahead; i < ahead + 4 && y + i < rowCount; ++i)
            for (std::ptrdiff_t x = 0; x < count; x += line)
                __builtin_prefetch(source + i * stride + x);
        for (std::ptrdiff_t x = 0; x < blocks; x += 4)
            TurnBlock(source + x, stride, columns + x * length + y, length);
        TurnCells(source + blocks, stride, 4, count - blocks, columns + blocks * length + y,
                  length);
    }
    TurnCells(rows + y * stride, stride, rowCount - y, count, columns + y, length);
}

/// Turns `count` columns back into rows.
QB_VECTOR_CLONES void TurnOut(const Height* columns, std::ptrdiff_t length, std::ptrdiff_t count,
                              Height* rows, std::ptrdiff_t stride, std::ptrdiff_t rowCount) {
    const std::ptrdiff_t blocks = count / 4 * 4;
    std::ptrdiff_t y = 0;
    for (; y + 4 <= rowCount; y += 4) {
        Height* const target = rows + y * stride;
        for (std::ptrdiff_t i = ahead; i < ahead + 4 && y + i < rowCount; ++i)
            for (std::ptrdiff_t x = 0; x < count; x += line)
                __builtin_prefetch(target + i * stride + x, 1);
        for (std::ptrdiff_t x = 0; x < blocks; x += 4)
            TurnBlock(columns + x * length + y, length, target + x, stride);
        TurnCells(columns + blocks * length + y, length, count - blocks, 4, target + blocks,
                  stride);
    }
    TurnCells(columns + y, length, count, rowCount - y, rows + y * stride, stride);
}

}  // namespace

ColumnStrip::ColumnStrip(int last, int y0, int y1)
    : last_(last), y0_(y0), y1_(y1), length_(std::max(y1 - y0, 0) + 3) {
    // An odd number of cache lines keeps the columns from falling into the same places of a cache.
    length_ = ((length_ + line - 1) / line | 1) * line;
    columns_.resize(static_cast<std::size_t>(length_ * (width + 2)));
}

void ColumnStrip::Load(HeightWriter& grid, int first, int count) {
    first_ = first;
    count_ = count;
    const int from = std::max(first - 1, 0);
    const int to = std::min(first + count, last_);
    const int above = std::max(y0_ - 1, 0);
    const int below = std::min(y1_ + 1, last_);
    Height* const target = Column(from) + (above - (y0_ - 1));
    TurnIn(grid.Row(above).data() + from, grid.Stride(), below - above + 1, to - from + 1, target,
           length_);
    for (int x = from; x <= to; ++x)
        RenewPadding(x);
}

void ColumnStrip::Store(HeightWriter& grid) const {
    TurnOut(columns_.data() + length_ + 1, length_, count_, grid.Row(y0_).data() + first_,
            grid.Stride(), Rows());
}

void ColumnStrip::RenewPadding(int x) {
    Height* const column = Column(x);
    const std::ptrdiff_t rows = Rows();
    if (y0_ == 0)
        column[0] = column[1];
    if (y1_ == last_)
        column[rows + 1] = column[rows];
}

}  // namespace quillbrand
