#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Tilted plateaus with ravines in the cliffs between them.
const Module& BrokenPlateaus(Workbench& make) {
    const double feature = make.Feature();
    const Module& bend = make.Fractal(feature * 0.7, 0.5, feature * 0.12);
    // The finer a picture, the gentler its cliffs, so that each is some pixels wide.
    const double cliff = 0.22 + 6.0 / feature;
    const Module& plateaus = make.Broken(bend, feature * 0.35, feature * 0.75, cliff);
    const Module& ravines =
        make.Carved(plateaus, {.spacing = feature * 0.2, .depth = 0.07, .steep = 2.5 / feature});
    return make.Sum(ravines, make.Scaled(make.Fractal(feature * 0.7, 0.5), 0.25));
}

}  // namespace quillbrand::perlin
