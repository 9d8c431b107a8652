#include "editor/Increments.h"

#include <algorithm>
#include <cassert>
#include <cstdint>

#include "base/Fault.h"
#include "base/VectorClones.h"
#include "terrain/RowKernels.h"

namespace quillbrand {

namespace {

/// Returns whether all sums fit; `met` is widened by the amounts. Sums wrap around.
QB_VECTOR_CLONES bool AddCells(Height* __restrict cells, const Height* __restrict amounts,
                               std::ptrdiff_t count, Extremes& met) {
    std::uint32_t wrapped = 0;
    Height low = met.low;
    Height high = met.high;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const auto cell = static_cast<std::uint32_t>(cells[i]);
        const auto amount = static_cast<std::uint32_t>(amounts[i]);
        const std::uint32_t sum = cell + amount;
        // The sign of a sum that wraps differs from that of both its parts.
        wrapped |= (cell ^ sum) & (amount ^ sum);
        cells[i] = static_cast<Height>(sum);
        low = std::min(low, amounts[i]);
        high = std::max(high, amounts[i]);
    }
    met = {low, high};
    return wrapped >> 31 == 0;
}

}  // namespace

void Increments::Add(int x, int y, std::span<const Height> amounts) {
    const auto row = writer_.Row(y);
    assert(x >= 0 && static_cast<std::size_t>(x) + amounts.size() <= row.size());
    if (amounts.empty())
        return;
    Extremes met{amounts[0], amounts[0]};
    if (!AddCells(row.data() + x, amounts.data(), static_cast<std::ptrdiff_t>(amounts.size()), met))
        throw Fault("overflow: a height in row " + std::to_string(y) +
                    " leaves 32 bits when it is raised or lowered");
    writer_.Stored(met.low, met.high);
}

}  // namespace quillbrand
