#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// Soft round hills with wide dales between them and shallow dells in their sides.
const Module& RollingHills(Workbench& make) {
    const double feature = make.Feature();
    const Module& hills = make.Fractal(feature * 0.9, 0.42, feature * 0.22);
    const Module& dells = make.Carved(hills, {.spacing = feature * 0.42,
                                              .depth = 0.07,
                                              .steep = 1.0 / feature,
                                              .gain = 0.42,
                                              .finest = feature * 0.09});
    return make.Sum(dells, make.Scaled(make.Fractal(feature * 0.25, 0.4), 0.015));
}

}  // namespace quillbrand::perlin
