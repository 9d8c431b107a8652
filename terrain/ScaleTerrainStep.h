#pragma once

#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// ScaleTerrain as a step of a command: with its status text, and with the screen brought into
/// line. The busy flag stays set for the caller to clear.
void ScaleTerrainStep(clsTerrain& terrain, Host& host);

}  // namespace quillbrand
