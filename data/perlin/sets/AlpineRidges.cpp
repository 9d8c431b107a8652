#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Mountain chains with sharp crests, their flanks cut into spurs and gullies.
const Module& AlpineRidges(Workbench& make) {
    const double feature = make.Feature();
    // A chain runs wherever this noise passes 0.
    const Module& lines = make.Fractal(feature * 0.8, 0.4, feature * 0.2);
    const Module& winding = make.Warped(lines, feature * 0.5, feature * 0.1);
    const Module& chains = make.Profiled(winding, {{-1.1, -0.9},
                                                   {-0.6, -0.45},
                                                   {-0.22, 0.35},
                                                   {0.0, 0.5},
                                                   {0.22, 0.35},
                                                   {0.6, -0.45},
                                                   {1.1, -0.9}});
    const Module& massifs = make.Scaled(make.Fractal(feature * 1.1, 0.45, feature * 0.15), 0.8);
    const Module& carved = make.Carved(make.Sum(massifs, chains), {.spacing = feature * 0.3,
                                                                   .depth = 0.25,
                                                                   .steep = 1.6 / feature,
                                                                   .gain = 0.5,
                                                                   .finest = 5.5});
    return make.Sum(carved, make.Scaled(make.Fractal(feature * 0.3, 0.5), 0.06));
}

}  // namespace quillbrand::perlin
