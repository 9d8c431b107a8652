#pragma once

#include "base/Picture.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// A cross-section through the terrain.
struct Section {
    int position;  ///< the row (along x) or the column (along y) that is cut
    bool alongX;   ///< true cuts a row and looks along Y
    bool real;     ///< true to scale in metres instead of filling the picture
};

/// The section's height in drawing units: metres for a real view on a picture of the given shape,
/// raw heights otherwise, where it is 0 for a flat terrain.
double SectionRange(const clsTerrain& terrain, const Section& section, const Picture& picture);

/// Draws one vertical line a grid point, 1..Size, from the bottom of the picture up to the height.
/// Requires: the section lies in the terrain; `range` is what SectionRange gave and is not 0.
void DrawSection(Picture& picture, clsTerrain& terrain, const Section& section, double range);

}  // namespace quillbrand
