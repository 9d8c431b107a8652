#pragma once

#include "base/Host.h"
#include "effects/QBFilter.h"
#include "terrain/clsTerrain.h"

/// Plain per-point versions of the fast kernels, which must agree with them cell by cell.
namespace quillbrand::SlowTwins {

void FilterSmooth(clsTerrain& terrain, const QBFilter::Area& area);

std::int64_t ScaleTerrain(clsTerrain& terrain);

void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, RandomSource& chance);

}  // namespace quillbrand::SlowTwins
