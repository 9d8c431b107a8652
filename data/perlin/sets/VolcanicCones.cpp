#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Furrowed volcanoes with craters, and small cinder cones, on old lava.
const Module& VolcanicCones(Workbench& make) {
    const double feature = make.Feature();
    const Module& fray = make.Fractal(feature * 0.35, 0.5, feature * 0.08);
    const Module& cones = make.Cones(fray, feature * 0.9, 0.2);
    const Module& volcanoes = make.Warped(cones, feature * 1.5, feature * 0.25);
    const Module& furrowed =
        make.Carved(volcanoes, {.spacing = feature * 0.13, .depth = 0.045, .steep = 0.8 / feature});
    const Module& cinders =
        make.Turned(make.Scaled(make.Cones(fray, feature * 0.41, 0.3), 0.2), 40.0);
    const Module& lava = make.Scaled(make.Fractal(feature, 0.47), 0.22);
    return make.Sum(make.Sum(furrowed, cinders), lava);
}

}  // namespace quillbrand::perlin
