#pragma once

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Hills with some noise on them, within -amplitude..amplitude, true extremes.
clsTerrain RollingTerrain(int amplitude);

}  // namespace quillbrand
