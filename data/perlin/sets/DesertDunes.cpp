#include <cmath>

#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Dunes across the wind, with gentle backs and steep fronts, on broad swells of the ground. The
/// wind blows to the right and a little downwards.
const Module& DesertDunes(Workbench& make) {
    const double feature = make.Feature();
    constexpr double wind = 25.0;
    // Dunes shrink more slowly than the ground's swells: the finest are still waves, not grain.
    const double spacing = 2.9 * std::sqrt(feature);
    const Module& waves = make.Stretched(make.Swell(spacing * 0.5), 3.0);
    const Module& winding = make.Warped(waves, spacing * 2.0, spacing * 0.5);
    const Module& dunes = make.Leant(winding, spacing * 0.13);
    const Module& high = make.Scaled(make.Swell(feature), 0.16, 0.26);
    const Module& ground = make.Scaled(make.Fractal(feature, 0.35, feature * 0.2), 0.8);
    return make.Turned(make.Sum(make.Product(dunes, high), ground), wind);
}

}  // namespace quillbrand::perlin
