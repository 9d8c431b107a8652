#include <algorithm>
#include <cmath>

#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// A tableland with branching canyons whose walls show the beds of rock as steps.
const Module& TerracedCanyons(Workbench& make) {
    const double feature = make.Feature();
    const Module& clefts = make.Billows(feature * 1.1, 0.42, feature * 0.2);
    const Module& winding = make.Warped(clefts, feature * 0.6, feature * 0.15);
    const Module& canyons = make.Profiled(
        winding, {{-1.05, -1.0}, {-0.8, -0.85}, {-0.1, 0.4}, {0.6, 0.7}, {1.5, 0.95}});
    const Module& alcoves =
        make.Carved(canyons, {.spacing = feature * 0.2, .depth = 0.13, .steep = 1.5 / feature});
    const Module& uneven = make.Scaled(make.Fractal(feature * 0.7, 0.45), 0.2);
    // The finer a picture, the thicker its beds and the rounder their edges: a step needs pixels.
    const double bed = 3.2 / std::sqrt(feature);
    const double flat = std::min(0.7, feature / 60.0);
    const Module& stepped = make.Terraced(make.Sum(alcoves, uneven), bed, flat);
    return make.Sum(stepped, make.Scaled(make.Fractal(feature * 0.3, 0.5), 0.05));
}

}  // namespace quillbrand::perlin
