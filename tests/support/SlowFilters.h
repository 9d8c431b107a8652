#pragma once

#include "base/Picture.h"
#include "base/RandomSource.h"

namespace quillbrand::SlowTwins {

/// The picture filter `id` (1..32), pixel by pixel, channel by channel in the order of its formula.
/// Requires: a picture with pixels and a level that the filter takes; for 28 no channel of one
/// value only.
void ApplyPictureFilter(int id, Picture& picture, int level, RandomSource& chance);

}  // namespace quillbrand::SlowTwins
