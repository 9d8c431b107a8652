#pragma once

#include <cstdint>
#include <span>

#include "terrain/Extremes.h"

namespace quillbrand {

/// Widens `found` by the cells.
void FindExtremes(std::span<const std::int32_t> cells, Extremes& found);

/// Every cell becomes factor * (cell - centre), rounded to nearest, halves to even. Widens `stored`
/// by the results. Requires: they fit into 32 bits.
void StretchRow(std::span<std::int32_t> cells, double factor, double centre, Extremes& stored);

/// Each cell becomes images[cell - lowest]. Requires: no cell lies outside the table.
void MapHeights(std::span<std::int32_t> cells, std::int32_t lowest,
                std::span<const std::int32_t> images);

/// Adds amounts[i] to cells[i], and widens `met` by the amounts. Returns false where a sum does not
/// fit into 32 bits. Requires: as many of both.
bool AddCells(std::span<std::int32_t> cells, std::span<const std::int32_t> amounts, Extremes& met);

/// Cells to as many 16-bit samples. Returns false, with these in any state, when one does not fit.
bool NarrowCells(std::span<const std::int32_t> cells, std::int16_t* samples);

/// 16-bit samples to cells; widens `stored` by them. Requires: as many cells as samples.
void WidenSamples(std::span<const std::int16_t> samples, std::span<std::int32_t> cells,
                  Extremes& stored);

}  // namespace quillbrand
