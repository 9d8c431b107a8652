#include "editor/Resize.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <span>
#include <string>
#include <utility>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "terrain/Doubling.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

namespace QBTools2 {

namespace {

/// The first half of a step's percent. The second would be that of copying back from the scratch
/// grid, which the terrain takes over instead.
void Report(int x, int points, Host& host) {
    host.Progress(static_cast<int>(RoundHalfEven(50.0 * x / points)));
    host.Yield();
}

void Finish(clsTerrain& terrain, SquareArray scratch, Host& host) {
    terrain.TakeTerrain(std::move(scratch));
    host.Progress(100);
    host.Yield();
}

/// target[i] becomes the mean of the columns 2 i and 2 i + 1 of two rows.
QB_VECTOR_CLONES void HalveCells(const Height* __restrict upper, const Height* __restrict lower,
                                 std::ptrdiff_t count, Height* __restrict target) {
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double a = upper[2 * i];
        const double sum = a + upper[2 * i + 1] + lower[2 * i + 1] + lower[2 * i];
        target[i] = static_cast<Height>(std::rint(sum / 4));
    }
}

/// Row y of a terrain of half the size; beyond its last row and column the old one repeats them.
void HalveRow(const clsTerrain& terrain, int y, std::span<Height> target) {
    const int last = terrain.Size() + 2;
    const auto upper = terrain.Row(std::min(2 * y, last));
    const auto lower = terrain.Row(std::min(2 * y + 1, last));
    const auto whole = std::min(target.size(), upper.size() / 2);
    HalveCells(upper.data(), lower.data(), static_cast<std::ptrdiff_t>(whole), target.data());
    for (std::size_t x = whole; x < target.size(); ++x) {
        const std::size_t left = std::min(2 * x, upper.size() - 1);
        const Height upperCells[] = {upper[left], upper.back()};
        const Height lowerCells[] = {lower[left], lower.back()};
        HalveCells(upperCells, lowerCells, 1, &target[x]);
    }
}

}  // namespace

void HalveTerrain(clsTerrain& terrain, Host& host) {
    host.Status("Terrain resize...");
    host.Busy(true);
    const int points = RoundTo32(terrain.Size() / 2.0 + 1);
    SquareArray scratch(points + 1);
    host.Progress(0);
    host.Yield();
    for (int y = 0; y <= scratch.Upper(); ++y) {
        HalveRow(terrain, y, {scratch.Row(y), static_cast<std::size_t>(scratch.Upper() + 1)});
        Report(y, points, host);
    }
    Finish(terrain, std::move(scratch), host);
}

void DoubleTerrain(clsTerrain& terrain, Host& host, int mode, int roughness) {
    assert(roughness >= 0 && roughness <= 10);
    if (mode < Randomised || mode > PixelRepetition)
        throw Fault("there is no way of resizing with the number " + std::to_string(mode) +
                    " (0 to 2)");
    host.Status("Resize Terrain...");
    host.Busy(true);
    const int points = terrain.XPoints();
    const int doubledPoints = NarrowTo16(terrain.Size() * std::int64_t{2} + 1);
    const SquareArray old = terrain.GetTerrain();
    SquareArray scratch(doubledPoints + 1);
    host.Progress(0);
    host.Chance().ReseedFromClock();
    host.Yield();
    const Doubling doubling{
        .mode = mode, .roughness = roughness / 200.0, .singleFactors = false, .drawsForAll = true};
    DoubleCells(old, points, doubling, scratch, host.Chance(),
                [&](int x) { Report(x, points, host); });
    Finish(terrain, std::move(scratch), host);
}

}  // namespace QBTools2

namespace {

constexpr int mostSteps = 5;

void RequireSize(int size) {
    if (std::ranges::find(resizeSizes, size) != resizeSizes.end())
        return;
    std::string sizes;
    for (const int one : resizeSizes)
        sizes += (sizes.empty() ? "" : ", ") + std::to_string(one);
    throw Fault("a terrain cannot be brought to the size " + std::to_string(size) + ", only to " +
                sizes);
}

/// The window grows or shrinks with the size, so that the same hill keeps its shape.
void ScaleWindow(clsTerrain& terrain, double by) {
    terrain.MaxTU(RoundTo16(terrain.MaxTU() * by));
    terrain.MinTU(RoundTo16(terrain.MinTU() * by));
}

void StepTo(clsTerrain& terrain, const ResizeRequest& request, Host& host) {
    const bool adjusts =
        host.Ask({.text = "Adjust the point spacing to keep the real-world size as before?",
                  .title = "Resize terrain",
                  .buttons = Buttons::YesNo,
                  .id = QuestionId::Adjust}) == Answer::Yes;
    for (int step = 0; step < mostSteps && terrain.Size() != request.size; ++step) {
        const bool halves = request.size < terrain.Size();
        if (halves)
            QBTools2::HalveTerrain(terrain, host);
        else
            QBTools2::DoubleTerrain(terrain, host, request.mode, request.roughness);
        if (adjusts)
            ScaleWindow(terrain, halves ? 0.5 : 2);
    }
}

}  // namespace

void ResizeTerrain(clsTerrain& terrain, const ResizeRequest& request, Host& host) {
    RequireSize(request.size);
    host.Status("Resize Terrain...");
    host.Yield();
    TerrainGuard guard(terrain);
    if (request.isEmpty || terrain.Size() == request.size) {
        terrain.Init(request.size + 1);
        terrain.MinTU(-10);
        terrain.MaxTU(10);
    } else {
        StepTo(terrain, request, host);
    }
    guard.Commit();
}

}  // namespace quillbrand
