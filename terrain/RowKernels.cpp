#include "terrain/RowKernels.h"

#include <algorithm>
#include <cmath>

#include "base/VectorClones.h"

namespace quillbrand {

QB_VECTOR_CLONES void FindExtremes(std::span<const std::int32_t> cells, Extremes& found) {
    std::int32_t low = found.low;
    std::int32_t high = found.high;
    for (const std::int32_t cell : cells) {
        low = std::min(low, cell);
        high = std::max(high, cell);
    }
    found = {low, high};
}

QB_VECTOR_CLONES void StretchRow(std::span<std::int32_t> cells, double factor, double centre,
                                 Extremes& stored) {
    std::int32_t low = stored.low;
    std::int32_t high = stored.high;
    for (std::int32_t& cell : cells) {
        const auto z = static_cast<std::int32_t>(std::rint(factor * (cell - centre)));
        cell = z;
        low = std::min(low, z);
        high = std::max(high, z);
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
        stored.Widen({low, high});
}

}  // namespace quillbrand
