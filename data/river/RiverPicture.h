#pragma once

#include "data/output/LevelPicture.h"

namespace quillbrand::river {

/// The relief that the river erosion adds to a terrain: branching valleys, dark and wide where much
/// water gathers, and ridges between them, over the whole 16-bit range. Everywhere and at every
/// size about alike, so that any part of it serves a small terrain. `side` is in pixels. Requires:
/// it is one more than a multiple of 4.
LevelPicture MakeRiverPicture(int side);

}  // namespace quillbrand::river
