#pragma once

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// What a terrain measures, in metres.
struct TerrainMetres {
    float lowest;
    float highest;
    float mean;  ///< of all heights
    float side;
};

/// Takes the running extremes as they stand: Range makes them true.
TerrainMetres MetresOf(const clsTerrain& terrain);

}  // namespace quillbrand
