#pragma once

#include <cstddef>
#include <cstdint>

namespace quillbrand {

/// Least and greatest of what a pass met.
struct Extremes {
    std::int32_t low;
    std::int32_t high;
};

/// Widens `found` by `rows` rows of `count` cells that start `stride` cells apart.
void FindExtremes(const std::int32_t* cells, std::ptrdiff_t count, std::ptrdiff_t rows,
                  std::ptrdiff_t stride, Extremes& found);

/// Every cell becomes factor * (cell - centre), rounded to nearest, halves to even; the results
/// must fit into 32 bits. Widens `stored` by them.
void StretchRows(std::int32_t* cells, std::ptrdiff_t count, std::ptrdiff_t rows,
                 std::ptrdiff_t stride, double factor, double centre, Extremes& stored);

/// Cells to 16-bit samples. Returns false, with `samples` in any state, when one does not fit.
bool NarrowCells(const std::int32_t* cells, std::ptrdiff_t count, std::int16_t* samples);

/// 16-bit samples to cells; widens `stored` by them.
void WidenSamples(const std::int16_t* samples, std::ptrdiff_t count, std::int32_t* cells,
                  Extremes& stored);

}  // namespace quillbrand
