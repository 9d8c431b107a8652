#pragma once

#include <span>

#include "terrain/clsTerrain.h"

namespace quillbrand::QBFilter {

/// Each cell becomes images[cell - lowest]; no cell may lie outside the table.
void MapHeights(std::span<Height> cells, Height lowest, const Height* images);

}  // namespace quillbrand::QBFilter
