#include "terrain/RowKernels.h"

#include <algorithm>
#include <cmath>

#include "base/VectorClones.h"

namespace quillbrand {

QB_VECTOR_CLONES void FindExtremes(const std::int32_t* cells, std::ptrdiff_t count,
                                   std::ptrdiff_t rows, std::ptrdiff_t stride, Extremes& found) {
    std::int32_t low = found.low;
    std::int32_t high = found.high;
    for (std::ptrdiff_t y = 0; y < rows; ++y, cells += stride) {
        for (std::ptrdiff_t x = 0; x < count; ++x) {
            low = std::min(low, cells[x]);
            high = std::max(high, cells[x]);
        }
    }
    found = {low, high};
}

QB_VECTOR_CLONES void StretchRows(std::int32_t* cells, std::ptrdiff_t count, std::ptrdiff_t rows,
                                  std::ptrdiff_t stride, double factor, double centre,
                                  Extremes& stored) {
    std::int32_t low = stored.low;
    std::int32_t high = stored.high;
    for (std::ptrdiff_t y = 0; y < rows; ++y, cells += stride) {
        for (std::ptrdiff_t x = 0; x < count; ++x) {
            const auto z = static_cast<std::int32_t>(std::rint(factor * (cells[x] - centre)));
            cells[x] = z;
            low = std::min(low, z);
            high = std::max(high, z);
        }
    }
    stored = {low, high};
}

QB_VECTOR_CLONES bool NarrowCells(const std::int32_t* cells, std::ptrdiff_t count,
                                  std::int16_t* samples) {
    std::uint32_t outside = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        outside |= (static_cast<std::uint32_t>(cells[i]) + 32768u) >> 16;
        samples[i] = static_cast<std::int16_t>(cells[i]);
    }
    return outside == 0;
}

QB_VECTOR_CLONES void WidenSamples(const std::int16_t* samples, std::ptrdiff_t count,
                                   std::int32_t* cells, Extremes& stored) {
    std::int16_t low = INT16_MAX;
    std::int16_t high = INT16_MIN;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        cells[i] = samples[i];
        low = std::min(low, samples[i]);
        high = std::max(high, samples[i]);
    }
    if (count > 0)
        stored = {std::min<std::int32_t>(stored.low, low),
                  std::max<std::int32_t>(stored.high, high)};
}

}  // namespace quillbrand
