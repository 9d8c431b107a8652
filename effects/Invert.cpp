#include <cstdint>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "effects/QBFilter.h"
#include "terrain/RowKernels.h"

namespace quillbrand::QBFilter {

namespace {

QB_VECTOR_CLONES void NegateCells(Height* cells, std::ptrdiff_t count) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
        cells[i] = -cells[i];
}

}  // namespace

void FilterInvert(clsTerrain& terrain, float& /*strength*/, const Area& /*area*/, Host& host) {
    host.Status("reversale...");
    host.Progress(0);
    host.Yield();
    HeightWriter writer(terrain);
    const int points = terrain.XPoints();
    Extremes found{INT32_MAX, INT32_MIN};
    FindExtremes(writer.Row(0).data(), points + 1, points + 1, writer.Stride(), found);
    if (found.low == INT32_MIN)
        throw Fault("the height " + std::to_string(found.low) + " has no negative in 32 bits");
    for (int y = 0; y <= points; ++y) {
        host.Progress(PercentOf(y, points));
        host.Yield();
        NegateCells(writer.Row(y).data(), points + 1);
    }
    writer.Stored(-found.high, -found.low);
    host.Progress(100);
}

}  // namespace quillbrand::QBFilter
