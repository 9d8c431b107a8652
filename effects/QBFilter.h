#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand::QBFilter {

/// What an effect works on: the square startX..startX + extent, startY..startY + extent, both ends
/// included, and in it the heights strictly between zMin and zMax.
struct Area {
    int extent;
    int startX = 0;
    int startY = 0;
    Height zMin = -32768;
    Height zMax = 32768;
};

/// One effect as the panel lists it.
struct Effect {
    int code;                  ///< 1..12
    std::string_view caption;  ///< as it stands, blanks included
    bool available;            ///< false until its body is built
};

/// All twelve, by code.
std::span<const Effect> Effects();

/// Runs the effect `code` with the panel's strength (0..10) on `area`; a code that is no effect
/// runs nothing. Some effects work on the whole grid and all heights whatever the area says.
/// Throws Fault for an effect that is not available in this version.
void ApplyEffect(int code, clsTerrain& terrain, float strength, const Area& area, Host& host);

/// One forward and one backward sweep of the mean of a point and its four diagonal neighbours, in
/// place. Below a strength of 3 nothing happens at all; otherwise the strength changes nothing but
/// itself: even whole numbers become odd, and it is limited to 1..10.
/// The busy flag stays set for the caller to clear.
void FilterSmooth(clsTerrain& terrain, float& strength, const Area& area, Host& host);

}  // namespace quillbrand::QBFilter
