#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Tables of soft rock, washed out into a maze of gullies and narrow crests.
const Module& ErodedBadlands(Workbench& make) {
    const double feature = make.Feature();
    const Module& mounds = make.Fractal(feature, 0.35);
    const Module& tables =
        make.Profiled(mounds, {{-1.2, -0.9}, {-0.35, -0.5}, {0.25, 0.45}, {1.2, 0.75}});
    return make.Carved(tables, {.spacing = feature * 0.22,
                                .depth = 0.2,
                                .steep = 0.6 / feature,
                                .gain = 0.55,
                                .finest = 5.0});
}

}  // namespace quillbrand::perlin
