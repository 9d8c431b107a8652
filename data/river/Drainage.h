#pragma once

#include <cstddef>
#include <vector>

namespace quillbrand::river {

/// A square of heights, row by row. All lengths are in pixels of the finished picture.
struct Relief {
    int side = 0;       ///< points a side
    double cell = 1.0;  ///< distance of two points
    std::vector<double> height;

    std::size_t At(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(side) +
               static_cast<std::size_t>(x);
    }
    bool IsRim(int x, int y) const { return x == 0 || y == 0 || x == side - 1 || y == side - 1; }
};

/// Where the water of every point goes.
struct Flow {
    std::vector<int> receiver;     ///< the point that it flows to; a point of the rim has itself
    std::vector<int> upwards;      ///< all points, each after its receiver
    std::vector<double> distance;  ///< to the receiver; of no account on the rim
    std::vector<double> area;      ///< what drains through the point, its own cell included
};

/// Raises what lies in pits until the water of every point reaches the rim, each step going down:
/// the priority flood of Barnes, Lehman and Mulla 2014 (Computers & Geosciences 62).
void FillPits(Relief& relief);

/// The flow over a relief without pits. A point drains to one of its lower neighbours; for the
/// steepest one each slope first gets a chance factor of its own (Fairfield and Leymarie 1991,
/// Water Resources Research 27), without which rivers would run straight along the eight
/// directions of the grid.
Flow RouteFlow(const Relief& relief, int seed);

}  // namespace quillbrand::river
