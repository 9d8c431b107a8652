#include "effects/HeightMap.h"

#include "base/VectorClones.h"

namespace quillbrand::QBFilter {

QB_VECTOR_CLONES void MapHeights(std::span<Height> cells, Height lowest,
                                 const Height* __restrict images) {
    Height* const __restrict heights = cells.data();
    const auto count = static_cast<std::ptrdiff_t>(cells.size());
    for (std::ptrdiff_t i = 0; i < count; ++i)
        heights[i] = images[heights[i] - lowest];
}

}  // namespace quillbrand::QBFilter
