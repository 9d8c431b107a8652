#pragma once

#include <cstddef>
#include <cstdint>

namespace quillbrand {

/// Side of the tiles in which two grids are compared, in cells.
constexpr int tileSide = 64;

/// Sets marks[i] to 1 where the tile i of two rows of `count` cells differs; others stay.
void MarkTiles(const std::int32_t* one, const std::int32_t* other, std::ptrdiff_t count,
               std::uint8_t* marks);

/// Into `codes`, for a row of `count` cells: before minus after, less the same one row further up,
/// folded so that small numbers of both signs are small codes (0, -1, 1, -2 become 0, 1, 2, 3).
/// `above` are the differences of the row above, 0 for the first one, and become this row's.
/// Returns all codes or-ed together.
std::uint32_t FoldRow(const std::int32_t* before, const std::int32_t* after, std::size_t count,
                      std::uint32_t* above, std::uint32_t* codes);

/// Adds what FoldRow took, or subtracts it, to a row of `count` cells whose codes these
/// are. `sums` are the differences of the row above, 0 for the first one, and become this row's.
void UnfoldRow(const std::uint32_t* codes, std::size_t count, bool subtract, std::uint32_t* sums,
               std::int32_t* cells);

/// Byte `shift` / 8 of every code into `plane`, and back: or-ed into the codes.
void SplitPlane(const std::uint32_t* codes, std::size_t count, int shift, std::uint8_t* plane);
void JoinPlane(const std::uint8_t* plane, std::size_t count, int shift, std::uint32_t* codes);

}  // namespace quillbrand
