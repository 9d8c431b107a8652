#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Mountainous islands with narrow coasts over a shelving sea bed.
const Module& Islands(Workbench& make) {
    const double feature = make.Feature();
    const Module& land = make.Fractal(feature, 0.45, feature * 0.2);
    const Module& ragged = make.Warped(land, feature * 0.5, feature * 0.12);
    const Module& shelved = make.Profiled(
        ragged,
        {{-1.3, -0.85}, {-0.3, -0.5}, {-0.05, -0.18}, {0.08, -0.12}, {0.35, 0.28}, {1.3, 1.2}});
    const Module& carved =
        make.Carved(shelved, {.spacing = feature * 0.22, .depth = 0.12, .steep = 1.2 / feature});
    return make.Sum(carved, make.Scaled(make.Fractal(feature * 0.35, 0.5), 0.07));
}

}  // namespace quillbrand::perlin
