#pragma once

#include "base/Host.h"
#include "editor/Frame.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

// What the menu of the selection does with the framed part of the grid. The sides of a frame may
// stand in any order and anywhere; but for the reflections, what lies outside the grid is left out.
// Coordinates round to the nearest grid point. Each command clears `TerrainEmpty` at its end; the
// busy flag stays set for the caller to clear.

/// "fill": every point gets the height of the pen without its fine tuning (`Slider2`, 1..65534).
void FillArea(clsTerrain& terrain, const Frame& frame, int height, bool& TerrainEmpty, Host& host);

/// "lift Terrain" and "lower Terrain": a hill or a pit over the frame, 900 * `depth` (0..30) high
/// in its middle. Widens the running extremes as IncrPoint does. Throws Fault, with the heights in
/// any state, where one leaves 32 bits.
void RaiseArea(clsTerrain& terrain, const Frame& frame, int depth, bool& TerrainEmpty, Host& host);
void LowerArea(clsTerrain& terrain, const Frame& frame, int depth, bool& TerrainEmpty, Host& host);

/// "Reflect horizontally" mirrors top to bottom, "Reflect vertically" left to right.
enum class Reflection { Horizontally, Vertically };

/// The running extremes stay. Throws Fault, with nothing changed, for a frame that reaches beyond
/// the grid with its margin, 0..Size + 2.
void ReflectArea(clsTerrain& terrain, const Frame& frame, Reflection way, bool& TerrainEmpty,
                 Host& host);

}  // namespace quillbrand
