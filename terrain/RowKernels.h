#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "terrain/Extremes.h"

namespace quillbrand {

/// Widens `found` by the cells.
void FindExtremes(std::span<const std::int32_t> cells, Extremes& found);

/// Every cell becomes factor * (cell - centre), rounded to nearest, halves to even; the results
/// must fit into 32 bits. Widens `stored` by them.
void StretchRow(std::span<std::int32_t> cells, double factor, double centre, Extremes& stored);

/// Cells to 16-bit samples. Returns false, with `samples` in any state, when one does not fit.
bool NarrowCells(const std::int32_t* cells, std::ptrdiff_t count, std::int16_t* samples);

/// 16-bit samples to cells; widens `stored` by them.
void WidenSamples(const std::int16_t* samples, std::ptrdiff_t count, std::int32_t* cells,
                  Extremes& stored);

}  // namespace quillbrand
