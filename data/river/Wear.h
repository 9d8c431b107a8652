#pragma once

#include <vector>

#include "data/river/Drainage.h"

namespace quillbrand::river {

/// How long and how hard a landscape is worn. In a unit of time it rises by 1.
struct Wear {
    double timeStep = 0.25;
    int steps = 1;
    double creep = 8.0;  ///< diffusion of the slopes in a unit of time, in square pixels
};

/// Lets the inner land rise while rivers cut into it, as the root of their drainage area times
/// their slope, and slopes creep; the rim stays. The cutting is solved implicitly along the tree of
/// the flow (Braun and Willett 2013, Geomorphology 180-181), so that long steps of time do no harm.
/// Leaves no pits. `softness` tells for every point how easily it is cut, about 1; `seed` is of the
/// chances in RouteFlow.
void Evolve(Relief& relief, const std::vector<double>& softness, const Wear& wear, int seed);

/// The relief with new points half way between its old ones: 2 * side - 1.
Relief Refined(const Relief& relief);

}  // namespace quillbrand::river
