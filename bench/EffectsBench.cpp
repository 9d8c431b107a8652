#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "effects/QBFilter.h"

namespace quillbrand {
namespace {

void FilterSmooth(benchmark::State& state) {
    clsTerrain terrain = RollingTerrain(32767);
    SilentHost host;
    MeasureInCopies(
        state, 6, [] {},
        [&] {
            float strength = 3;
            QBFilter::FilterSmooth(terrain, strength, {.extent = terrain.XPoints()}, host);
        });
}
QB_BENCHMARK(FilterSmooth);

}  // namespace
}  // namespace quillbrand
