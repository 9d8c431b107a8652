#pragma once

#include <array>
#include <optional>
#include <string>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// What the panels 2 to 6 of the status bar say of the point under the mouse: TU, raw height, X, Y
/// counted from the bottom, metres; "?" for a number that its scale makes too large to show.
/// Nothing outside the open square 0..Size.
std::optional<std::array<std::string, 5>> PointTexts(const clsTerrain& terrain, double x, double y);

}  // namespace quillbrand
