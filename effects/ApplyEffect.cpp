#include <array>
#include <string>

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "terrain/ScaleTerrainStep.h"

namespace quillbrand::QBFilter {

namespace {

constexpr std::array effects = {
    Effect{1, "Smooth", true},           Effect{2, "Noise", false},
    Effect{3, "Invers ", false},         Effect{4, "Elevator shift", false},
    Effect{5, "Erosion (River)", false}, Effect{6, "Invers gamma shift", false},
    Effect{7, "Gamma shift", false},     Effect{8, "Sinus shift", false},
    Effect{9, "Erosion (Rain)", true},   Effect{10, "Stretch", false},
    Effect{11, "Optimized", true},       Effect{12, "Natural erosion (exp)", false},
};

void Run(int code, clsTerrain& terrain, float strength, const Area& area, Host& host) {
    switch (code) {
        case 1: {
            float smoothing = strength + 2;
            FilterSmooth(terrain, smoothing, area, host);
            break;
        }
        case 11:
            ScaleTerrainStep(terrain, host);
            break;
        default:
            // "Erosion (Rain)" has a place in the panel but nothing behind it.
            break;
    }
}

}  // namespace

std::span<const Effect> Effects() {
    return effects;
}

void ApplyEffect(int code, clsTerrain& terrain, float strength, const Area& area, Host& host) {
    if (code >= 1 && code <= static_cast<int>(effects.size())) {
        const Effect& effect = effects[static_cast<std::size_t>(code - 1)];
        if (!effect.available)
            throw Fault(std::string(effect.caption) + " is not available in this version",
                        "Effects");
    }
    host.Busy(true);
    Run(code, terrain, strength, area, host);
    host.Busy(false);
}

}  // namespace quillbrand::QBFilter
