#include "shell/TerrainMetres.h"

namespace quillbrand {

namespace {

/// Raw heights have 32 bits, and so does the number of points: the sum fits 64.
double MeanOf(const clsTerrain& terrain) {
    std::int64_t sum = 0;
    for (int y = 0; y <= terrain.Size(); ++y)
        for (const Height height :
             terrain.Row(y).first(static_cast<std::size_t>(terrain.XPoints())))
            sum += height;
    const double points = terrain.XPoints();
    return static_cast<double>(sum) / (points * points);
}

}  // namespace

TerrainMetres MetresOf(const clsTerrain& terrain) {
    return {.lowest = terrain.GetV2Meter(static_cast<float>(terrain.min())),
            .highest = terrain.GetV2Meter(static_cast<float>(terrain.max())),
            .mean = terrain.GetV2Meter(static_cast<float>(MeanOf(terrain))),
            .side = static_cast<float>(terrain.Size()) * terrain.ScaleT()};
}

}  // namespace quillbrand
