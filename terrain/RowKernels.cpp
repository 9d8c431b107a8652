#include "terrain/RowKernels.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "base/VectorClones.h"

namespace quillbrand {

namespace {

/// Plain pointers that say that the table is none of the cells: of spans the compiler would not
/// know, and look up one by one.
QB_VECTOR_CLONES void LookUp(std::int32_t* __restrict cells, std::ptrdiff_t count,
                             std::int32_t lowest, const std::int32_t* __restrict images) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
        cells[i] = images[cells[i] - lowest];
}

}  // namespace

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
        const double stretched = std::rint(factor * (cell - centre));
        assert(stretched >= INT32_MIN && stretched <= INT32_MAX);
        const auto z = static_cast<std::int32_t>(stretched);
        cell = z;
        low = std::min(low, z);
        high = std::max(high, z);
    }
    stored = {low, high};
}

QB_VECTOR_CLONES bool AddCells(std::span<std::int32_t> cells, std::span<const std::int32_t> amounts,
                               Extremes& met) {
    assert(cells.size() == amounts.size());
    std::int32_t* __restrict sums = cells.data();
    const std::int32_t* __restrict added = amounts.data();
    std::uint32_t wrapped = 0;
    std::int32_t low = met.low;
    std::int32_t high = met.high;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const auto cell = static_cast<std::uint32_t>(sums[i]);
        const auto amount = static_cast<std::uint32_t>(added[i]);
        const std::uint32_t sum = cell + amount;
        // The sign of a sum that wraps around differs from that of both its parts.
        wrapped |= (cell ^ sum) & (amount ^ sum);
        sums[i] = static_cast<std::int32_t>(sum);
        low = std::min(low, added[i]);
        high = std::max(high, added[i]);
    }
    met = {low, high};
    return wrapped >> 31 == 0;
}

void MapHeights(std::span<std::int32_t> cells, std::int32_t lowest,
                std::span<const std::int32_t> images) {
    assert(std::ranges::all_of(cells, [&](std::int32_t cell) {
        return static_cast<std::size_t>(std::int64_t{cell} - lowest) < images.size();
    }));
    LookUp(cells.data(), static_cast<std::ptrdiff_t>(cells.size()), lowest, images.data());
}

QB_VECTOR_CLONES bool NarrowCells(std::span<const std::int32_t> cells,
                                  std::int16_t* __restrict samples) {
    std::uint32_t outside = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        outside |= (static_cast<std::uint32_t>(cells[i]) + 32768u) >> 16;
        samples[i] = static_cast<std::int16_t>(cells[i]);
    }
    return outside == 0;
}

QB_VECTOR_CLONES void WidenSamples(std::span<const std::int16_t> samples,
                                   std::span<std::int32_t> cells, Extremes& stored) {
    assert(samples.size() == cells.size());
    std::int16_t low = INT16_MAX;
    std::int16_t high = INT16_MIN;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        cells[i] = samples[i];
        low = std::min(low, samples[i]);
        high = std::max(high, samples[i]);
    }
    if (!samples.empty())
        stored.Widen({low, high});
}

}  // namespace quillbrand
