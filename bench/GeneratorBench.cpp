#include <filesystem>

#include "base/Fault.h"
#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "generator/GenerateTerrain.h"
#include "terrain/Doubling.h"
#include "tests/support/NoiseSet.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

SquareArray HalfSizeGrid() {
    SquareArray grid(1025, 0);
    RandomSource chance(3);
    for (int j = 0; j <= 1025; ++j)
        for (int i = 0; i <= 1025; ++i)
            grid(i, j) = static_cast<int>(60000 * chance.Uniform()) - 30000;
    return grid;
}

void Double(benchmark::State& state, double target, int mode, int roughness) {
    const SquareArray original = HalfSizeGrid();
    SilentHost host;
    SquareArray grid = original;
    int n = 1024;
    MeasureInCopies(
        state, target,
        [&] {
            grid = original;
            n = 1024;
        },
        [&] { qbGenerator::DoubleGrid(grid, n, mode, roughness, host); });
}

void DoubleGridByRepetition(benchmark::State& state) {
    Double(state, 2, 2, 0);
}
QB_BENCHMARK(DoubleGridByRepetition);

void DoubleGridBilinear(benchmark::State& state) {
    Double(state, 2, 1, 0);
}
QB_BENCHMARK(DoubleGridBilinear);

void DoubleGridBilinearRough(benchmark::State& state) {
    Double(state, 8, 1, 5);
}
QB_BENCHMARK(DoubleGridBilinearRough);

/// A whole run, with the pictures decoded by a first one.
void Generate2048With11Iterations(benchmark::State& state) {
    const TemporaryFolder folder;
    WriteNoiseSet(folder.Path(), "Bench", 300);
    const PerlinSetTable sets = ScanPerlinSets(folder.Path());
    const GeneratorContext context{sets, Bilinear, ModifyModes::Add};
    GeneratorSettings settings;
    settings.iterations = 11;
    settings.seed = "123456";
    clsTerrain terrain;
    terrain.Init(benchPoints);
    SilentHost host;
    ProduceTerrain(terrain, 2048, settings, context, host);
    MeasureInCopies(
        state, 20, [] {}, [&] { ProduceTerrain(terrain, 2048, settings, context, host); });
}
QB_BENCHMARK(Generate2048With11Iterations);

}  // namespace
}  // namespace quillbrand
