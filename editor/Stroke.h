#pragma once

#include "base/Host.h"
#include "editor/StrokeMap.h"
#include "effects/Gauss.h"
#include "effects/QBFilter.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// The tools that work on a whole stroke when the button is released (`ToolCode`).
enum class StrokeTool { None = 0, Up, Down, Erode, Noise, Smooth, Sharpen };

/// How a tool works on each marked point.
struct Stroke {
    StrokeTool tool;
    int size;   ///< of the brush, 1..60 (`Slider1`)
    int depth;  ///< 0..30 (`sldDepthEffects`)
};

/// What strokes need and change beyond the terrain.
struct StrokeSurroundings {
    const GaussTable& gaussTable;
    QBFilter::RiverBed& riverBed;
    bool& TerrainEmpty;
    bool& TerrainSaved;
};

/// The release of a stroke tool: the tool works on the square around each marked point of
/// 1..XPoints in turn, by x, then by y, so that overlapping squares add up. If there is any, both
/// flags are cleared. "up" and "down" widen the running extremes as IncrPoint does. The busy flag
/// stays set for the caller to clear. Throws Fault, with the heights in any state: a height
/// that leaves its range, a picture of the river bed that cannot be read, "Erode" at the depths 21
/// to 23, which it would have to divide by 0.
/// Requires: a tool; size and depth within their ranges.
void RunStroke(clsTerrain& terrain, const Stroke& stroke, const StrokeMap& map,
               const StrokeSurroundings& surroundings, Host& host);

}  // namespace quillbrand
