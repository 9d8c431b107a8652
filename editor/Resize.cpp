#include "editor/Resize.h"

#include <algorithm>
#include <cassert>
#include <string>
#include <utility>
#include <vector>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "editor/ResizeRows.h"
#include "terrain/RowKernels.h"

namespace quillbrand {

namespace QBTools2 {

namespace {

enum ResizeModes : int { Randomised = 0, Bilinear = 1, PixelRepetition = 2 };

/// A terrain of `points` per side, all 0, with everything else as in `model`.
clsTerrain EmptyLike(const clsTerrain& model, std::int64_t points) {
    TerHeader header = model.Header();
    header.Size = NarrowTo16(points - 1);
    clsTerrain terrain;
    terrain.SetHeader(header);
    terrain.FixHeight(model.FixHeight());
    terrain.pProgress = model.pProgress;
    return terrain;
}

/// The first half of a step's percent. The second would be that of copying back, which swapping
/// grids saves.
void Report(int x, int points, Host& host) {
    host.Progress(static_cast<int>(RoundHalfEven(50.0 * x / points)));
    host.Yield();
}

void Finish(Host& host) {
    host.Progress(100);
    host.Yield();
}

/// Where column or row `i` of the old grid is read: it repeats its last one.
int Source(const clsTerrain& terrain, int i) {
    return std::min(i, terrain.Size() + 2);
}

void HalveRow(const clsTerrain& terrain, int y, std::span<Height> target) {
    const auto upper = terrain.Row(Source(terrain, 2 * y));
    const auto lower = terrain.Row(Source(terrain, 2 * y + 1));
    const auto whole = std::min(target.size(), upper.size() / 2);
    HalveCells({upper.data(), lower.data()}, static_cast<std::ptrdiff_t>(whole), target.data());
    for (std::size_t x = whole; x < target.size(); ++x) {
        const auto left = static_cast<std::size_t>(Source(terrain, static_cast<int>(2 * x)));
        const Height upperCells[] = {upper[left], upper.back()};
        const Height lowerCells[] = {lower[left], lower.back()};
        HalveCells({upperCells, lowerCells}, 1, &target[x]);
    }
}

clsTerrain Halved(const clsTerrain& terrain, Host& host) {
    host.Status("Terrain resize...");
    host.Busy(true);
    clsTerrain half = EmptyLike(terrain, RoundTo32(terrain.Size() / 2.0 + 1));
    host.Progress(0);
    host.Yield();
    {
        HeightWriter writer(half);
        Extremes stored{INT32_MAX, INT32_MIN};
        for (int y = 0; y <= half.Size() + 2; ++y) {
            const auto row = writer.Row(y);
            HalveRow(terrain, y, row);
            FindExtremes(row.data(), std::ssize(row), 1, 0, stored);
            Report(y, half.XPoints(), host);
        }
        writer.Stored(stored.low, stored.high);
    }
    Finish(host);
    return half;
}

/// Numbers drawn down the columns of a strip, turned so that those of a row lie together.
class TurnedNumbers {
  public:
    static constexpr int width = 32;

    explicit TurnedNumbers(int rows) : numbers_(static_cast<std::size_t>(rows) * width) {}

    double& operator()(int column, int row) {
        return numbers_[static_cast<std::size_t>(row) * width + static_cast<std::size_t>(column)];
    }
    const double* Row(int row) const {
        return numbers_.data() + static_cast<std::size_t>(row) * width;
    }

  private:
    std::vector<double> numbers_;
};

/// A step up. Where random numbers count it works on strips of columns, because they are drawn down
/// the columns while rows lie in memory.
class Doubling {
  public:
    Doubling(const clsTerrain& terrain, clsTerrain& target, double roughness, Host& host)
        : terrain_(terrain),
          target_(target),
          roughness_(roughness),
          points_(terrain.XPoints()),
          host_(host) {}

    void Run(int mode) {
        if (mode == Randomised)
            Randomise();
        else if (mode == Bilinear && roughness_ != 0)
            Roughen();
        else if (mode == Bilinear)
            WorkOnRows([](const RowPair& rows, std::ptrdiff_t count, const DoubledRows& doubled) {
                InterpolateCells(rows, count, doubled);
            });
        else
            WorkOnRows([](const RowPair& rows, std::ptrdiff_t count, const DoubledRows& doubled) {
                RepeatCells(rows.upper, count, doubled);
            });
    }

  private:
    /// Whether no factor can lead a height out of 32 bits.
    bool IsNarrow() const {
        Extremes found{0, 0};
        for (int y = 0; y <= points_ + 1; ++y)
            FindExtremes(terrain_.Row(y).data(), points_ + 2, 1, 0, found);
        const double most = std::max(-1.0 * found.low, 1.0 * found.high);
        return most * (1 + roughness_) < INT32_MAX;
    }

    void Roughen() {
        const auto disturb = IsNarrow() ? DisturbCells : DisturbFarCells;
        TurnedNumbers factors(points_ + 1);
        std::vector<double> drawn(static_cast<std::size_t>(points_) + 1);
        for (int from = 0; from <= points_; from += TurnedNumbers::width) {
            const int count = std::min(TurnedNumbers::width, points_ + 1 - from);
            for (int i = 0; i < count; ++i) {
                host_.Chance().Fill(drawn);
                for (int y = 0; y <= points_; ++y)
                    factors(i, y) = 1 + roughness_ * drawn[static_cast<std::size_t>(y)];
            }
            WorkOnStrip(from, count, [&](int y, const RowPair& rows, const DoubledRows& doubled) {
                disturb(rows, factors.Row(y), count, doubled);
            });
            ReportStrip(from, count);
        }
    }

    void Randomise() {
        TurnedNumbers right(points_ + 1);
        TurnedNumbers diagonal(points_ + 1);
        TurnedNumbers below(points_ + 1);
        std::vector<double> drawn(5 * (static_cast<std::size_t>(points_) + 1));
        for (int from = 0; from <= points_; from += TurnedNumbers::width) {
            const int count = std::min(TurnedNumbers::width, points_ + 1 - from);
            for (int i = 0; i < count; ++i) {
                host_.Chance().Fill(drawn);
                const double* u = drawn.data();
                for (int y = 0; y <= points_; ++y, u += 5) {
                    // u[1] is drawn for the point that stays, where it counts for nothing.
                    const double f = 1 + roughness_ * u[0];
                    right(i, y) = f * (u[2] * 0.1);
                    diagonal(i, y) = f * (u[3] * 0.1);
                    // What comes last becomes the roughness of the next point.
                    below(i, y) = roughness_ = f * (u[4] * 0.1);
                }
            }
            WorkOnStrip(from, count, [&](int y, const RowPair& rows, const DoubledRows& doubled) {
                MoveCells(rows, {right.Row(y), diagonal.Row(y), below.Row(y)}, count, doubled);
            });
            ReportStrip(from, count);
        }
    }

    /// For work without chance. Every point draws a number all the same.
    template <typename Work>
    void WorkOnRows(Work work) {
        const auto perSide = static_cast<std::size_t>(points_) + 1;
        host_.Chance().Discard(perSide * perSide);
        WorkOnStrip(0, points_ + 1, [&](int y, const RowPair& rows, const DoubledRows& doubled) {
            work(rows, points_ + 1, doubled);
            Report(y, points_, host_);
        });
    }

    /// Calls `work` for each row of a strip, with the cells that it reads and the place of those
    /// that it makes.
    template <typename Work>
    void WorkOnStrip(int from, int count, Work work) {
        first_.resize(2 * static_cast<std::size_t>(count));
        second_.resize(first_.size());
        HeightWriter writer(target_);
        Extremes stored{INT32_MAX, INT32_MIN};
        // The last point of each direction has a place for its first half only.
        const int width = std::min(2 * count, target_.Size() + 3 - 2 * from);
        const auto store = [&](const std::vector<Height>& cells, int y) {
            std::copy_n(cells.data(), width, writer.Row(y).data() + 2 * from);
            FindExtremes(cells.data(), width, 1, 0, stored);
        };
        for (int y = 0; y <= points_; ++y) {
            work(y, RowPair{terrain_.Row(y).data() + from, terrain_.Row(y + 1).data() + from},
                 DoubledRows{first_.data(), second_.data()});
            store(first_, 2 * y);
            if (y < points_)
                store(second_, 2 * y + 1);
        }
        writer.Stored(stored.low, stored.high);
    }

    void ReportStrip(int from, int count) {
        for (int x = from; x < from + count; ++x)
            Report(x, points_, host_);
    }

    const clsTerrain& terrain_;
    clsTerrain& target_;
    double roughness_;
    int points_;
    Host& host_;
    std::vector<Height> first_;
    std::vector<Height> second_;
};

clsTerrain Doubled(const clsTerrain& terrain, int mode, int roughness, Host& host) {
    assert(roughness >= 0 && roughness <= 10);
    if (mode < Randomised || mode > PixelRepetition)
        throw Fault("there is no way of resizing with the number " + std::to_string(mode) +
                    " (0 to 2)");
    host.Status("Resize Terrain...");
    host.Busy(true);
    clsTerrain doubled = EmptyLike(terrain, terrain.Size() * std::int64_t{2} + 1);
    host.Progress(0);
    host.Chance().ReseedFromClock();
    host.Yield();
    Doubling(terrain, doubled, roughness / 200.0, host).Run(mode);
    Finish(host);
    return doubled;
}

}  // namespace

void HalveTerrain(clsTerrain& terrain, Host& host) {
    terrain = Halved(terrain, host);
}

void DoubleTerrain(clsTerrain& terrain, Host& host, int mode, int roughness) {
    terrain = Doubled(terrain, mode, roughness, host);
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

}  // namespace

void ResizeTerrain(clsTerrain& terrain, const ResizeRequest& request, Host& host) {
    RequireSize(request.size);
    host.Status("Resize Terrain...");
    host.Yield();
    if (request.isEmpty || terrain.Size() == request.size) {
        clsTerrain empty = QBTools2::EmptyLike(terrain, request.size + 1);
        empty.MinTU(-10);
        empty.MaxTU(10);
        terrain = std::move(empty);
        return;
    }
    const bool adjusts =
        host.Ask({.text = "Adjust the point spacing to keep the real-world size as before?",
                  .title = "Resize terrain",
                  .buttons = Buttons::YesNo}) == Answer::Yes;
    clsTerrain result;
    const clsTerrain* from = &terrain;
    for (int step = 0; step < mostSteps && from->Size() != request.size; ++step) {
        const bool halves = request.size < from->Size();
        result = halves ? QBTools2::Halved(*from, host)
                        : QBTools2::Doubled(*from, request.mode, request.roughness, host);
        if (adjusts)
            ScaleWindow(result, halves ? 0.5 : 2);
        from = &result;
    }
    terrain = std::move(result);
}

}  // namespace quillbrand
