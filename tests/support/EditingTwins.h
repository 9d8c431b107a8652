#pragma once

#include "editor/Frame.h"
#include "editor/Stroke.h"
#include "terrain/ReliefPicture.h"

/// Plain per-point versions of what editing by hand does, in the order of their formulas. They must
/// agree with the fast ones cell by cell, running extremes included.
namespace quillbrand::SlowTwins {

/// One point of a stroke; `picture` is the river bed's, read from `offset` on.
void StrokePoint(clsTerrain& terrain, const Stroke& stroke, int x, int y,
                 const GaussTable& gaussTable, const Picture& picture, int offset,
                 RandomSource& chance);

/// The frame as convertFrameData leaves it.
void FillArea(clsTerrain& terrain, const Frame& frame, int height);
void RaiseArea(clsTerrain& terrain, const Frame& frame, int depth, int sign);

/// Requires: a rectangle in the grid.
void Reflect(clsTerrain& terrain, int x1, int y1, int x2, int y2, bool horizontally);

void HalveTerrain(clsTerrain& terrain);
void DoubleTerrain(clsTerrain& terrain, int mode, int roughness, RandomSource& chance);

}  // namespace quillbrand::SlowTwins
