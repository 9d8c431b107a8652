#include <cmath>

#include "base/Picture.h"
#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "effects/QBFilter.h"
#include "effects/QBTools2.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

using QBFilter::Area;

using Body = void (*)(clsTerrain&, float&, const Area&, Host&);

/// A body on rolling hills; each turn starts from the same heights.
void MeasureBody(benchmark::State& state, double target, Body body) {
    const clsTerrain hills = RollingTerrain(30000);
    clsTerrain terrain = hills;
    SilentHost host;
    MeasureInCopies(
        state, target, [&] { terrain = hills; },
        [&] {
            float strength = 3;
            body(terrain, strength, {.extent = terrain.XPoints()}, host);
        });
}

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

void FilterInvert(benchmark::State& state) {
    MeasureBody(state, 2, QBFilter::FilterInvert);
}
QB_BENCHMARK(FilterInvert);

void FilterStretch(benchmark::State& state) {
    MeasureBody(state, 8, QBFilter::FilterStretch);
}
QB_BENCHMARK(FilterStretch);

void FilterSinusShift(benchmark::State& state) {
    MeasureBody(state, 8, QBFilter::FilterSinusShift);
}
QB_BENCHMARK(FilterSinusShift);

void FilterGammaShift(benchmark::State& state) {
    MeasureBody(state, 8, QBFilter::FilterGammaShift);
}
QB_BENCHMARK(FilterGammaShift);

void FilterNoise(benchmark::State& state) {
    MeasureBody(state, 10, QBFilter::FilterNoise);
}
QB_BENCHMARK(FilterNoise);

/// With limits that leave out some heights everywhere.
void FilterNoiseLimited(benchmark::State& state) {
    MeasureBody(state, 10, [](clsTerrain& terrain, float& strength, const Area& area, Host& host) {
        Area limited = area;
        limited.zMin = -10000;
        limited.zMax = 15000;
        QBFilter::FilterNoise(terrain, strength, limited, host);
    });
}
QB_BENCHMARK(FilterNoiseLimited);

/// On the straight line, which has columns without a mark.
void FilterElevatorShift(benchmark::State& state) {
    MeasureBody(state, 4, [](clsTerrain& terrain, float& strength, const Area& area, Host& host) {
        Elevator elevator;
        QBTools2::ResetElevator(elevator);
        elevator.grid.Arm(true);
        QBFilter::FilterElevatorShift(terrain, strength, area, elevator, host);
    });
}
QB_BENCHMARK(FilterElevatorShift);

/// The picture is decoded in the first turn and kept.
void FilterRiverErosion(benchmark::State& state) {
    const TemporaryFolder folder;
    Picture picture(1025, 1025);
    RandomSource chance(3);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.Row(y)[x] = 0xff000000u | static_cast<QRgb>(chance.Uniform() * 65536);
    picture.Save(folder / "bed.png");
    QBFilter::RiverBed bed{folder.Path(), "bed.png", "123456"};
    const clsTerrain hills = RollingTerrain(30000);
    clsTerrain terrain = hills;
    SilentHost host;
    MeasureInCopies(
        state, 6, [&] { terrain = hills; },
        [&] {
            float strength = 3;
            QBFilter::FilterRiverErosion(terrain, strength, {.extent = terrain.XPoints()}, bed,
                                         host);
        });
}
QB_BENCHMARK(FilterRiverErosion);

/// Drops a second, the scaling at the start included; the figure aimed at is 400000.
void FilterNaturalErosion(benchmark::State& state) {
    const ErosionSettings settings{.dropCount = 50000, .slideDepth = 4};
    const clsTerrain hills = RollingTerrain(30000);
    clsTerrain terrain = hills;
    SilentHost host;
    MeasureInCopies(
        state, 0, [&] { terrain = hills; },
        [&] {
            float strength = 3;
            QBFilter::FilterNaturalErosion(
                terrain, strength, {.extent = terrain.XPoints()}, [&] { return settings; }, host);
        });
    state.counters["drops"] =
        benchmark::Counter(settings.dropCount, benchmark::Counter::kIsIterationInvariantRate);
}
QB_BENCHMARK(FilterNaturalErosion);

}  // namespace
}  // namespace quillbrand
