#pragma once

#include "base/GridMemory.h"
#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Lays the relief over the heights of the cells 0..size + 1, as far as the terrain has them, by
/// the overlay mode; `height` is in percent. Throws Fault, with some cells changed already, when a
/// divisor is 0 or a height leaves 32 bits. Requires: `relief` reaches as far as these cells.
void OverlayRelief(clsTerrain& terrain, const SquareArray& relief, int size, int height, int mode,
                   Host& host);

/// Lays the heights of `preview` over a reduced copy of `current`, into `preview`. The faults of
/// OverlayRelief. Requires: a preview of at least two points per side.
void OverlayPreview(clsTerrain& preview, const clsTerrain& current, int height, int mode);

}  // namespace quillbrand
