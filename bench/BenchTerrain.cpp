#include "bench/BenchTerrain.h"

#include <cmath>

#include "bench/CopyUnit.h"

namespace quillbrand {

clsTerrain RollingTerrain(int amplitude) {
    clsTerrain terrain;
    terrain.Init(benchPoints);
    RandomSource chance(7);
    for (int y = 0; y <= terrain.Size() + 2; ++y)
        for (int x = 0; x <= terrain.Size() + 2; ++x)
            terrain.SetPoint(x, y,
                             static_cast<Height>(amplitude * (0.5 * std::sin(x / 90.0) +
                                                              0.4 * std::cos(y / 70.0) +
                                                              0.1 * chance.Uniform())));
    terrain.Range();
    return terrain;
}

}  // namespace quillbrand
