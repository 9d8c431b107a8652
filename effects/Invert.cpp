#include <cstdint>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "effects/QBFilter.h"
#include "terrain/HeightWriter.h"

namespace quillbrand::QBFilter {

namespace {

QB_VECTOR_CLONES void NegateCells(std::span<Height> cells) {
    for (Height& cell : cells)
        cell = -cell;
}

}  // namespace

void FilterInvert(clsTerrain& terrain, float& /*strength*/, const Area& /*area*/, Host& host) {
    host.Status("reversale...");
    host.Progress(0);
    host.Yield();
    const int points = terrain.XPoints();
    const GridRect rect{0, 0, points, points};
    const Extremes found = terrain.Measure(rect);
    if (found.low == INT32_MIN)
        throw Fault("the height " + std::to_string(found.low) + " has no negative in 32 bits");
    HeightWriter writer(terrain, rect);
    for (int y = 0; y <= points; ++y) {
        host.Progress(PercentOf(y, points));
        host.Yield();
        NegateCells(writer.UnmeasuredRow(y));
    }
    writer.Stored().Widen({-found.high, -found.low});
    host.Progress(100);
}

}  // namespace quillbrand::QBFilter
