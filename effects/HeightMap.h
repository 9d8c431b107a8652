#pragma once

#include "terrain/clsTerrain.h"

namespace quillbrand::QBFilter {

/// Each cell becomes images[cell - lowest]; no cell may lie outside the table.
void MapHeights(Height* cells, int count, Height lowest, const Height* images);

}  // namespace quillbrand::QBFilter
