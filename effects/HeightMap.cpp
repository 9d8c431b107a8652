#include "effects/HeightMap.h"

#include "base/VectorClones.h"

namespace quillbrand::QBFilter {

QB_VECTOR_CLONES void MapHeights(Height* __restrict cells, int count, Height lowest,
                                 const Height* __restrict images) {
    for (int i = 0; i < count; ++i)
        cells[i] = images[cells[i] - lowest];
}

}  // namespace quillbrand::QBFilter
