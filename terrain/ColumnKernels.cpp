#include "terrain/ColumnKernels.h"

#include <cstring>

#include "base/VectorClones.h"

namespace quillbrand {

namespace {

using Four = std::uint32_t __attribute__((vector_size(16)));

[[gnu::always_inline]] inline Four LoadFour(const std::int32_t* cells) {
    Four four;
    std::memcpy(&four, cells, sizeof four);
    return four;
}

[[gnu::always_inline]] inline void StoreFour(std::int32_t* cells, Four four) {
    std::memcpy(cells, &four, sizeof four);
}

/// Rows lie whole pages apart, so the coming ones are asked for this many ahead, a cache line of
/// cells at a time.
constexpr std::ptrdiff_t ahead = 24;
constexpr std::ptrdiff_t line = 16;

/// target[x][y] = source[y][x] for 4 by 4 cells, whose rows lie a stride apart.
[[gnu::always_inline]] inline void TurnBlock(const std::int32_t* source,
                                             std::ptrdiff_t sourceStride, std::int32_t* target,
                                             std::ptrdiff_t targetStride) {
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
void TurnCells(const std::int32_t* source, std::ptrdiff_t sourceStride, std::ptrdiff_t rows,
               std::ptrdiff_t columns, std::int32_t* target, std::ptrdiff_t targetStride) {
    for (std::ptrdiff_t y = 0; y < rows; ++y)
        for (std::ptrdiff_t x = 0; x < columns; ++x)
            target[x * targetStride + y] = source[y * sourceStride + x];
}

}  // namespace

QB_VECTOR_CLONES void RowsToColumns(const std::int32_t* rows, std::ptrdiff_t stride,
                                    std::ptrdiff_t rowCount, std::ptrdiff_t count,
                                    std::int32_t* columns, std::ptrdiff_t length) {
    const std::ptrdiff_t blocks = count / 4 * 4;
    std::ptrdiff_t y = 0;
    for (; y + 4 <= rowCount; y += 4) {
        const std::int32_t* const source = rows + y * stride;
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

QB_VECTOR_CLONES void ColumnsToRows(const std::int32_t* columns, std::ptrdiff_t length,
                                    std::ptrdiff_t count, std::int32_t* rows, std::ptrdiff_t stride,
                                    std::ptrdiff_t rowCount) {
    const std::ptrdiff_t blocks = count / 4 * 4;
    std::ptrdiff_t y = 0;
    for (; y + 4 <= rowCount; y += 4) {
        std::int32_t* const target = rows + y * stride;
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

}  // namespace quillbrand
