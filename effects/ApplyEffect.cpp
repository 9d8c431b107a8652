#include <array>
#include <cmath>

#include "effects/QBFilter.h"
#include "terrain/ScaleTerrainStep.h"

namespace quillbrand::QBFilter {

namespace {

constexpr std::array effects = {
    Effect{1, "Smooth"},         Effect{2, "Noise"},           Effect{3, "Invers "},
    Effect{4, "Elevator shift"}, Effect{5, "Erosion (River)"}, Effect{6, "Invers gamma shift"},
    Effect{7, "Gamma shift"},    Effect{8, "Sinus shift"},     Effect{9, "Erosion (Rain)"},
    Effect{10, "Stretch"},       Effect{11, "Optimized"},      Effect{12, "Natural erosion (exp)"},
};

/// For the effects that take no limits.
constexpr Area everything{};

void Run(int code, clsTerrain& terrain, float strength, const Area& area,
         const Surroundings& surroundings, Host& host) {
    switch (code) {
        case 1:
            strength += 2;
            return FilterSmooth(terrain, strength, area, host);
        case 2:
            return FilterNoise(terrain, strength, area, host);
        case 3:
            return FilterInvert(terrain, strength, area, host);
        case 4:
            FilterElevatorShift(terrain, strength, area, surroundings.elevator, host);
            strength = 8;
            return FilterSmooth(terrain, strength, area, host);
        case 5:
            surroundings.riverBed.ErodePictureName = RiverBed::standardPicture;
            return FilterRiverErosion(terrain, strength, area, surroundings.riverBed, host);
        case 6:
            strength = static_cast<float>(std::sqrt(double{strength} + 1));
            return FilterGammaShift(terrain, strength, everything, host);
        case 7:
            strength = static_cast<float>(1 / (double{strength} + 1));
            return FilterGammaShift(terrain, strength, everything, host);
        case 8:
            strength = 1;
            return FilterSinusShift(terrain, strength, everything, host);
        case 10:
            return FilterStretch(terrain, strength, everything, host);
        case 11:
            ScaleTerrainStep(terrain, host);
            return;
        case 12: {
            const Area wholeRange{area.extent, area.startX, area.startY};
            return FilterNaturalErosion(terrain, strength, wholeRange, surroundings.startErosion,
                                        host);
        }
        default:
            // "Erosion (Rain)" has a place in the panel but nothing behind it.
            return;
    }
}

}  // namespace

std::span<const Effect> Effects() {
    return effects;
}

void ApplyEffect(int code, clsTerrain& terrain, float strength, const Area& area,
                 const Surroundings& surroundings, Host& host) {
    Area given = area;
    given.extent = area.extent.value_or(terrain.XPoints() + 10);
    host.Busy(true);
    Run(code, terrain, strength, given, surroundings, host);
    host.Busy(false);
}

}  // namespace quillbrand::QBFilter
