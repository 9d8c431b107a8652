#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Host.h"
#include "effects/Elevator.h"
#include "effects/ErosionSettings.h"
#include "terrain/clsTerrain.h"

namespace quillbrand::QBFilter {

/// What an effect works on: the square startX..startX + extent, startY..startY + extent, both ends
/// included, and in it the heights strictly between zMin and zMax. Without an extent an effect
/// takes its own, where it has one. What lies outside the grid reads as its rim and is never
/// written.
struct Area {
    std::optional<int> extent;
    int startX = 0;
    int startY = 0;
    Height zMin = -32768;
    Height zMax = 32768;

    bool Holds(Height h) const { return zMin < h && h < zMax; }

    /// Its square with `side` for the extent, as far as `grid` has it.
    GridRect CutTo(const GridRect& grid, int side) const {
        return GridRect::Cut(startX, startY, std::int64_t{startX} + side,
                             std::int64_t{startY} + side, grid);
    }

    /// True when all of that square lies in `grid`.
    bool LiesIn(const GridRect& grid, int side) const {
        return startX >= grid.x0 && startY >= grid.y0 && std::int64_t{startX} + side <= grid.x1 &&
               std::int64_t{startY} + side <= grid.y1;
    }
};

/// One effect as the panel lists it.
struct Effect {
    int code;                  ///< 1..12
    std::string_view caption;  ///< as it stands, blanks included
};

/// All twelve, by code.
std::span<const Effect> Effects();

/// The picture whose relief river erosion adds, and where in it a terrain lies.
struct RiverBed {
    static constexpr auto standardPicture = "erode0.flt";

    std::filesystem::path programFolder;
    std::string ErodePictureName;  ///< relative to the program folder; empty for the standard one
    std::string seed;              ///< the generator's, as its text stands
};

/// What single effects need beyond the terrain.
struct Surroundings {
    Elevator& elevator;
    RiverBed& riverBed;
    StartErosion startErosion;
};

/// Runs the effect `code` with the panel's strength (0..10) on `area`; a code that is no effect
/// runs nothing, and so does "Erosion (Rain)". Some effects work on the whole grid and all heights
/// whatever the area says. Without an extent it is XPoints + 10. Throws Fault; the heights are then
/// in any state.
void ApplyEffect(int code, clsTerrain& terrain, float strength, const Area& area,
                 const Surroundings& surroundings, Host& host);

// The effects themselves. All tell the host their status text and percent, let events through once
// a column or oftener, and change `strength` for a caller that goes on with it. But for
// FilterInvert they set the busy flag, and leave it set for the caller to clear. Each throws Fault
// where a height leaves its range, with the heights in any state.

/// One forward and one backward sweep of the mean of a point and its four diagonal neighbours, in
/// place. Below a strength of 3 nothing happens at all; otherwise the strength changes nothing but
/// itself: even whole numbers become odd, and it is limited to 1..10. Requires: an extent.
void FilterSmooth(clsTerrain& terrain, float& strength, const Area& area, Host& host);

/// Heights scaled to the full range, then each taken times its own size, then stretched to the full
/// range again. The strength becomes the factor 1.7 / 65536. Extent: XPoints.
void FilterStretch(clsTerrain& terrain, float& strength, const Area& area, Host& host);

/// The same with the sine of 0..1.7 over the full range.
void FilterSinusShift(clsTerrain& terrain, float& strength, const Area& area, Host& host);

/// The same with the power of strength / 4 of a height's size. The last column and row of the area
/// take no part in the measuring and are written as if their power were 0.
void FilterGammaShift(clsTerrain& terrain, float& strength, const Area& area, Host& host);

/// Every height of the terrain and the first row and column of its margin becomes its negative,
/// whatever strength and area say.
void FilterInvert(clsTerrain& terrain, float& strength, const Area& area, Host& host);

/// Each height grows or shrinks by up to (strength + 1) / 40 of itself. One random number for each
/// point within the limits, column by column; the source is reseeded for every column. The strength
/// grows by 1; if it is then below 1 nothing happens. Extent: XPoints.
void FilterNoise(clsTerrain& terrain, float& strength, const Area& area, Host& host);

/// Every height through the elevator's curve, if it is armed; it is armed afterwards. A column
/// without a mark repeats what the point before became. The strength is not used. Throws Fault for
/// a height that the curve does not reach. Requires: an extent.
void FilterElevatorShift(clsTerrain& terrain, float& strength, const Area& area, Elevator& elevator,
                         Host& host);

/// Adds the relief of the river bed's picture, divided by 11 less the rounded strength. Limits are
/// not used. Requires: an extent.
void FilterRiverErosion(clsTerrain& terrain, float& strength, const Area& area, RiverBed& bed,
                        Host& host);

/// Rolls drops down the terrain, which is scaled first; each cuts a small patch at every step. The
/// strength becomes the number of drops, 0 when the user cancels. The start of the area is not
/// used. Extent: XPoints - 2.
void FilterNaturalErosion(clsTerrain& terrain, float& strength, const Area& area,
                          const StartErosion& startErosion, Host& host);

}  // namespace quillbrand::QBFilter
