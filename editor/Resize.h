#pragma once

#include <array>

#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// The sizes that a terrain can be brought to, in intervals per side.
inline constexpr std::array resizeSizes{128, 256, 512, 1024, 2048};

/// What "Resize" is told.
struct ResizeRequest {
    int size;              ///< one of resizeSizes
    int mode = 1;          ///< `ResizeMode`, see DoubleTerrain
    int roughness = 0;     ///< 0..10 (`Slider3`)
    bool isEmpty = false;  ///< `TerrainEmpty`
};

/// "Resize" (`CmdResize`): asks whether the height window shall follow, then halves or doubles the
/// terrain until it has the size, five times at most; a terrain whose size is no power of two may
/// so never reach it. An empty terrain, or one that has the size already, is not asked about: it
/// becomes an empty one with the window -10..10. The busy flag stays set for the caller to clear.
/// Throws Fault, with the terrain in any state, for a size or a mode that is none, and where a
/// height or an end of the window leaves its range.
void ResizeTerrain(clsTerrain& terrain, const ResizeRequest& request, Host& host);

namespace QBTools2 {

// One step each; header values other than the size stay. The busy flag stays set. Each throws
// Fault, with the terrain in any state.

/// Every point becomes the mean of 2 x 2.
void HalveTerrain(clsTerrain& terrain, Host& host);

/// Every point becomes 2 x 2: itself and what lies on the way to its right, lower right and lower
/// neighbour. Mode 1 takes the middle and disturbs the four by one factor of up to
/// 1 + `roughness` / 200; mode 2 repeats the point; mode 0 takes places near the middle, by chance.
/// Every point draws one random number, by x, then by y, in mode 0 five; the source is reseeded
/// from the clock first. Requires: roughness within 0..10.
void DoubleTerrain(clsTerrain& terrain, Host& host, int mode = 1, int roughness = 0);

}  // namespace QBTools2

}  // namespace quillbrand
