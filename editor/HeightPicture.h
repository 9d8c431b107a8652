#pragma once

#include "base/Host.h"
#include "base/Picture.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// One pixel a grid point, row 0 at the top, in the colours of palette strip `paletteRow`.
/// Makes the running extremes of the terrain true. `raster` is used again when its size fits.
/// The busy flag stays set for the caller to clear. Requires: 0 <= paletteRow < paletteRows.
void BuildHeightPicture(Picture& raster, clsTerrain& terrain, int paletteRow, Host& host);

}  // namespace quillbrand
