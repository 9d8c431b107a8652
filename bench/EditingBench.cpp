#include <cmath>

#include "base/Picture.h"
#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "editor/AreaCommands.h"
#include "editor/Resize.h"
#include "editor/Stroke.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

/// A stroke of 200 points across the grid, at size 30 and depth 15.
void MeasureStroke(benchmark::State& state, double target, StrokeTool tool) {
    const TemporaryFolder folder;
    Picture picture(1025, 1025);
    picture.Save(folder / "bed.png");
    QBFilter::RiverBed bed{folder.Path(), "bed.png", "123456"};
    const GaussTable gaussTable(GaussTable::standardUpper);
    bool empty = false;
    bool saved = false;
    const StrokeSurroundings surroundings{gaussTable, bed, empty, saved};

    const clsTerrain hills = RollingTerrain(30000);
    clsTerrain terrain = hills;
    StrokeMap map;
    map.Clear(terrain.XPoints());
    for (int i = 0; i < 200; ++i)
        map.Press({static_cast<float>(100 + 9 * i),
                   static_cast<float>(std::round(1000 + 800 * std::sin(i / 20.0)))});
    SilentHost host;
    MeasureInCopies(
        state, target, [&] { terrain = hills; },
        [&] {
            RunStroke(terrain, {tool, 30, 15}, map, surroundings, host);
        });
}

void StrokeUp(benchmark::State& state) {
    MeasureStroke(state, 8, StrokeTool::Up);
}
QB_BENCHMARK(StrokeUp);

void StrokeErode(benchmark::State& state) {
    MeasureStroke(state, 10, StrokeTool::Erode);
}
QB_BENCHMARK(StrokeErode);

void StrokeNoise(benchmark::State& state) {
    MeasureStroke(state, 25, StrokeTool::Noise);
}
QB_BENCHMARK(StrokeNoise);

void StrokeSmooth(benchmark::State& state) {
    MeasureStroke(state, 25, StrokeTool::Smooth);
}
QB_BENCHMARK(StrokeSmooth);

/// A command on a frame around the whole terrain; each turn starts from the same heights.
template <typename Command>
void MeasureArea(benchmark::State& state, double target, const Frame& frame, Command command) {
    const clsTerrain hills = RollingTerrain(30000);
    clsTerrain terrain = hills;
    SilentHost host;
    bool empty = false;
    MeasureInCopies(
        state, target, [&] { terrain = hills; }, [&] { command(terrain, frame, empty, host); });
}

constexpr Frame whole{0, 0, benchPoints - 1, benchPoints - 1};

void FillWhole(benchmark::State& state) {
    MeasureArea(state, 1.5, whole,
                [](clsTerrain& terrain, const Frame& frame, bool& empty, Host& host) {
                    FillArea(terrain, frame, 40000, empty, host);
                });
}
QB_BENCHMARK(FillWhole);

void LiftWhole(benchmark::State& state) {
    MeasureArea(state, 6, whole,
                [](clsTerrain& terrain, const Frame& frame, bool& empty, Host& host) {
                    RaiseArea(terrain, frame, 15, empty, host);
                });
}
QB_BENCHMARK(LiftWhole);

void ReflectHorizontally(benchmark::State& state) {
    MeasureArea(state, 3, whole,
                [](clsTerrain& terrain, const Frame& frame, bool& empty, Host& host) {
                    ReflectArea(terrain, frame, Reflection::Horizontally, empty, host);
                });
}
QB_BENCHMARK(ReflectHorizontally);

void ReflectVertically(benchmark::State& state) {
    MeasureArea(state, 3, whole,
                [](clsTerrain& terrain, const Frame& frame, bool& empty, Host& host) {
                    ReflectArea(terrain, frame, Reflection::Vertically, empty, host);
                });
}
QB_BENCHMARK(ReflectVertically);

void HalveTerrain(benchmark::State& state) {
    const clsTerrain hills = RollingTerrain(30000);
    clsTerrain terrain = hills;
    SilentHost host;
    MeasureInCopies(
        state, 3, [&] { terrain = hills; }, [&] { QBTools2::HalveTerrain(terrain, host); });
}
QB_BENCHMARK(HalveTerrain);

/// From half the benchmarks' size to the whole.
void MeasureDoubling(benchmark::State& state, double target, int mode, int roughness) {
    SilentHost host;
    clsTerrain half = RollingTerrain(30000);
    QBTools2::HalveTerrain(half, host);
    clsTerrain terrain = half;
    MeasureInCopies(
        state, target, [&] { terrain = half; },
        [&] { QBTools2::DoubleTerrain(terrain, host, mode, roughness); });
}

void DoubleTerrainBilinear(benchmark::State& state) {
    MeasureDoubling(state, 4, 1, 0);
}
QB_BENCHMARK(DoubleTerrainBilinear);

void DoubleTerrainRough(benchmark::State& state) {
    MeasureDoubling(state, 5, 1, 7);
}
QB_BENCHMARK(DoubleTerrainRough);

void DoubleTerrainRepeated(benchmark::State& state) {
    MeasureDoubling(state, 4, 2, 0);
}
QB_BENCHMARK(DoubleTerrainRepeated);

void DoubleTerrainRandomised(benchmark::State& state) {
    MeasureDoubling(state, 10, 0, 7);
}
QB_BENCHMARK(DoubleTerrainRandomised);

}  // namespace
}  // namespace quillbrand
