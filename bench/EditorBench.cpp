#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "editor/HeightPicture.h"

namespace quillbrand {
namespace {

void BuildHeightPictureRaster(benchmark::State& state) {
    clsTerrain terrain = RollingTerrain(32767);
    SilentHost host;
    Picture raster;
    MeasureInCopies(
        state, 4, [] {}, [&] { BuildHeightPicture(raster, terrain, 5, host); });
}
QB_BENCHMARK(BuildHeightPictureRaster);

}  // namespace
}  // namespace quillbrand
