#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "terrain/TerReader.h"
#include "terrain/TerWriter.h"

namespace quillbrand {
namespace {

void Fill(benchmark::State& state) {
    clsTerrain terrain = RollingTerrain(20000);
    MeasureInCopies(
        state, 1, [] {}, [&] { terrain.Fill(7); });
}
QB_BENCHMARK(Fill);

void Range(benchmark::State& state) {
    clsTerrain terrain = RollingTerrain(20000);
    MeasureInCopies(
        state, 1, [] {}, [&] { benchmark::DoNotOptimize(terrain.Range()); });
}
QB_BENCHMARK(Range);

void ScaleTerrainThatStretches(benchmark::State& state) {
    const clsTerrain original = RollingTerrain(20000);
    clsTerrain terrain = original;
    MeasureInCopies(
        state, 2.5, [&] { terrain = original; },
        [&] { benchmark::DoNotOptimize(terrain.ScaleTerrain()); });
}
QB_BENCHMARK(ScaleTerrainThatStretches);

void EncodeTerToMemory(benchmark::State& state) {
    clsTerrain terrain = RollingTerrain(32767);
    SilentHost host;
    Bytes file;
    MeasureInCopies(
        state, 2, [] {}, [&] { EncodeTer(terrain, file, host); });
}
QB_BENCHMARK(EncodeTerToMemory);

void DecodeTerFromMemory(benchmark::State& state) {
    clsTerrain terrain = RollingTerrain(32767);
    SilentHost host;
    Bytes file;
    EncodeTer(terrain, file, host);
    MeasureInCopies(
        state, 2, [] {}, [&] { StoreTer(ParseTer(file, "memory"), terrain); });
}
QB_BENCHMARK(DecodeTerFromMemory);

}  // namespace
}  // namespace quillbrand
