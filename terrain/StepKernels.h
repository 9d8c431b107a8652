#pragma once

#include <cstddef>
#include <cstdint>

namespace quillbrand {

/// Side of the tiles in which two grids are compared, in cells.
constexpr int tileSide = 64;

/// Sets marks[i] to 1 where the tile i of two rows of `count` cells differs; others stay.
void MarkTiles(const std::int32_t* one, const std::int32_t* other, std::ptrdiff_t count,
               std::uint8_t* marks);

/// The cells of a rectangle in two grids that may have different strides.
struct CellPair {
    const std::int32_t* before;
    std::ptrdiff_t beforeStride;
    const std::int32_t* after;
    std::ptrdiff_t afterStride;
    std::ptrdiff_t width;
    std::ptrdiff_t height;
};

/// Into `codes`, row by row without gaps: before minus after, less the same one row further up,
/// folded so that small numbers of both signs are small codes (0, -1, 1, -2 become 0, 1, 2, 3).
/// Returns all codes or-ed together.
std::uint32_t FoldDifferences(const CellPair& cells, std::uint32_t* codes);

/// Adds what FoldDifferences took, or subtracts it, to the first `count` columns of the first
/// `rows` rows of a rectangle whose codes are `width` wide. `sums` is room for `count` numbers.
void UnfoldDifferences(const std::uint32_t* codes, std::ptrdiff_t width, bool subtract,
                       std::int32_t* cells, std::ptrdiff_t stride, std::ptrdiff_t count,
                       std::ptrdiff_t rows, std::uint32_t* sums);

/// Byte `shift` / 8 of every code into `plane`, and back: or-ed into the codes.
void SplitPlane(const std::uint32_t* codes, std::size_t count, int shift, std::uint8_t* plane);
void JoinPlane(const std::uint8_t* plane, std::size_t count, int shift, std::uint32_t* codes);

}  // namespace quillbrand
