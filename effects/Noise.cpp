#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "effects/ColumnPass.h"
#include "effects/QBFilter.h"
#include "terrain/RowKernels.h"

namespace quillbrand::QBFilter {

namespace {

/// The height that a point gets from the next random number.
double Disturbed(Height h, double share, double random) {
    const double d = share * (random - 0.5);
    return h * d + h;
}

/// A whole column, each point with a number of its own; the results must fit into 32 bits.
QB_VECTOR_CLONES void DisturbCells(Height* __restrict cells, const double* __restrict randoms,
                                   std::ptrdiff_t count, double share) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
        cells[i] = static_cast<Height>(std::rint(Disturbed(cells[i], share, randoms[i])));
}

QB_VECTOR_CLONES std::ptrdiff_t CountWithin(const Height* cells, std::ptrdiff_t count, Height zMin,
                                            Height zMax) {
    std::int32_t within = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        within += static_cast<std::int32_t>((zMin < cells[i]) & (cells[i] < zMax));
    return within;
}

/// Hands each point within the limits the next of `drawn`; the others get one that does not count.
void Deal(const Height* __restrict cells, std::ptrdiff_t count, const Area& area,
          const double* __restrict drawn, double* __restrict dealt) {
    const Height zMin = area.zMin;
    const Height zMax = area.zMax;
    std::size_t next = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        dealt[i] = drawn[next];
        next += static_cast<std::size_t>((zMin < cells[i]) & (cells[i] < zMax));
    }
}

/// As DisturbCells, but only for the points within the limits; widens `stored` by the results.
QB_VECTOR_CLONES void DisturbSome(Height* __restrict cells, const double* __restrict randoms,
                                  std::ptrdiff_t count, double share, const Area& area,
                                  Extremes& stored) {
    const Height zMin = area.zMin;
    const Height zMax = area.zMax;
    Height low = stored.low;
    Height high = stored.high;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const Height h = cells[i];
        const Height within = -static_cast<Height>((zMin < h) & (h < zMax));
        const auto disturbed = static_cast<Height>(std::rint(Disturbed(h, share, randoms[i])));
        cells[i] = (disturbed & within) | (h & ~within);
        low = std::min(low, (disturbed & within) | (INT32_MAX & ~within));
        high = std::max(high, (disturbed & within) | (INT32_MIN & ~within));
    }
    stored = {low, high};
}

/// Noise on a square that lies in the grid, with the random numbers of a column drawn at once.
class NoisePass {
  public:
    NoisePass(clsTerrain& terrain, const Area& area, const GridRect& rect, double share)
        : writer_(terrain, rect),
          area_(area),
          share_(share),
          randoms_(static_cast<std::size_t>(rect.Rows()) + 1),
          before_(terrain.Measure(rect)) {}

    /// False where a height could leave 32 bits: each then needs a check of its own.
    bool IsSafe() const {
        const double most = std::max(std::fabs(before_.low), std::fabs(before_.high));
        return most * (1 + std::fabs(share_)) < INT32_MAX;
    }

    /// `beginColumn` comes before each column.
    template <typename BeginColumn>
    void Run(RandomSource& chance, BeginColumn beginColumn) {
        const bool isLimited = !area_.Holds(before_.low) || !area_.Holds(before_.high);
        ForEachColumn(writer_, [&](int x, std::span<Height> column) {
            beginColumn(x);
            if (isLimited)
                DisturbWithinLimits(column, chance);
            else
                DisturbAll(column, chance);
        });
    }

  private:
    void DisturbAll(std::span<Height> column, RandomSource& chance) {
        chance.Fill(std::span(randoms_).first(column.size()));
        const auto count = static_cast<std::ptrdiff_t>(column.size());
        DisturbCells(column.data(), randoms_.data(), count, share_);
        FindExtremes(column, writer_.Stored());
    }

    /// Points outside the limits draw no number.
    void DisturbWithinLimits(std::span<Height> column, RandomSource& chance) {
        const auto count = static_cast<std::ptrdiff_t>(column.size());
        const auto within = CountWithin(column.data(), count, area_.zMin, area_.zMax);
        chance.Fill(std::span(randoms_).first(static_cast<std::size_t>(within)));
        dealt_.resize(column.size());
        Deal(column.data(), count, area_, randoms_.data(), dealt_.data());
        DisturbSome(column.data(), dealt_.data(), count, share_, area_, writer_.Stored());
    }

    HeightWriter writer_;
    const Area& area_;
    double share_;
    std::vector<double> randoms_;  ///< one more than a column has points
    std::vector<double> dealt_;
    Extremes before_;
};

}  // namespace

void FilterNoise(clsTerrain& terrain, float& strength, const Area& area, Host& host) {
    const int extent = area.extent.value_or(terrain.XPoints());
    host.Progress(0);
    host.Status("Noise...");
    host.Busy(true);
    strength = static_cast<float>(double{strength} + 1);
    if (strength < 1.0f)
        return;
    const double share = double{strength} / 20;
    const auto beginColumn = [&](int x) {
        host.Progress(PercentOf(x, extent));
        host.Yield();
        host.Chance().ReseedFromClock();
    };
    const auto run = [&] {
        const GridRect grid = terrain.Cells();
        if (area.LiesIn(grid, extent)) {
            NoisePass pass(terrain, area, area.CutTo(grid, extent), share);
            if (pass.IsSafe())
                return pass.Run(host.Chance(), beginColumn);
        }
        ForEachPoint(terrain, area, extent, beginColumn, [&](Height h) {
            return RoundTo32(Disturbed(h, share, host.Chance().Uniform()));
        });
    };
    if (extent >= 0)
        run();
    host.Progress(100);
    host.Yield();
}

}  // namespace quillbrand::QBFilter
