#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "effects/Gauss.h"
#include "effects/QBFilter.h"
#include "terrain/ScaleTerrainStep.h"

namespace quillbrand::QBFilter {

namespace {

struct Place {
    int x;
    int y;
    bool operator==(const Place&) const = default;
};

/// The lowest of the place and its four diagonal neighbours; `place` moves there, or to 0, 0 where
/// no neighbour is lower. Of equal ones the first counts.
Height FindLowestDiagonal(const clsTerrain& terrain, Place& place) {
    Height low = terrain.GetPoint(place.x, place.y);
    Place best{0, 0};
    for (const int i : {place.x - 1, place.x + 1}) {
        for (const int j : {place.y - 1, place.y + 1}) {
            const Height h = terrain.GetPoint(i, j);
            if (h < low) {
                low = h;
                best = {i, j};
            }
        }
    }
    place = best;
    return low;
}

/// What each point of a patch loses: depth times its weight, to be added.
QB_VECTOR_CLONES void FillAmounts(const double* __restrict weights, std::ptrdiff_t count,
                                  double depth, Height* __restrict amounts) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
        amounts[i] = static_cast<Height>(std::rint(-(depth * weights[i])));
}

/// Cuts patches of one size. The weight of a point depends only on its place in the patch, so all
/// of them are made once.
class ErodeBrush {
  public:
    explicit ErodeBrush(int radius)
        : first_(static_cast<int>(std::floor(-radius / 2.0))),
          side_(static_cast<int>(std::floor(radius / 2.0)) - first_ + 1) {
        assert(radius > 0);
        for (int i = 0; i < side_; ++i)
            for (int j = 0; j < side_; ++j)
                weights_.push_back(GaussWeight(i, j, 0, 0, radius, radius));
        heaviest_ = *std::ranges::max_element(weights_);
        amounts_.resize(weights_.size());
    }

    void Cut(clsTerrain& terrain, const Place& place, double depth) {
        // Shallow cuts round to nothing everywhere; the running extremes still hear of them.
        if (depth * heaviest_ <= 0.5) {
            terrain.IncrPoint(place.x, place.y, 0);
            return;
        }
        RequireFits(depth);
        FillAmounts(weights_.data(), static_cast<std::ptrdiff_t>(weights_.size()), depth,
                    amounts_.data());
        const Height* amount = amounts_.data();
        for (int i = place.x + first_; i < place.x + first_ + side_; ++i)
            for (int j = place.y + first_; j < place.y + first_ + side_; ++j)
                terrain.IncrPoint(i, j, *amount++);
    }

  private:
    void RequireFits(double depth) const { RoundTo32(depth * heaviest_); }

    int first_;
    int side_;
    std::vector<double> weights_;
    double heaviest_ = 0;
    std::vector<Height> amounts_;
};

/// One run of drops over a terrain.
class Drops {
  public:
    Drops(clsTerrain& terrain, const Area& area, int extent, const ErosionSettings& settings,
          Host& host)
        : terrain_(terrain),
          area_(area),
          extent_(extent),
          erosionDepth_(settings.erosionDepth),
          brush_(settings.slideDepth),
          host_(host) {}

    void RollOne() {
        RandomSource& chance = host_.Chance();
        const int x = StartOf(chance.Uniform());
        const int y = StartOf(chance.Uniform());
        if (area_.Holds(terrain_.GetPoint(x, y)))
            Roll({x, y});
    }

  private:
    int StartOf(double random) const { return static_cast<int>(std::floor(extent_ * random)) + 2; }

    bool HasLeft(const Place& place) const {
        return place.x <= 0 || place.x >= extent_ || place.y <= 0 || place.y >= extent_;
    }

    void Roll(Place place) {
        const int size = terrain_.Size();
        for (int k = 0; k < size; ++k) {
            const Height h = terrain_.GetPoint(place.x, place.y);
            host_.Yield();
            const Place before = place;
            const Height low = FindLowestDiagonal(terrain_, place);
            if (place == before || HasLeft(place))
                return;
            if (low > h) {
                // A drop that cannot go on leaves what it carries.
                terrain_.IncrPoint(before.x, before.y, 1);
                return;
            }
            const double drop = double{1} * h - low;
            brush_.Cut(terrain_, before, std::fabs(erosionDepth_ * (drop / 20)));
        }
    }

    clsTerrain& terrain_;
    const Area& area_;
    int extent_;
    double erosionDepth_;
    ErodeBrush brush_;
    Host& host_;
};

}  // namespace

void FilterNaturalErosion(clsTerrain& terrain, float& strength, const Area& area,
                          const StartErosion& startErosion, Host& host) {
    const int extent = area.extent.value_or(terrain.XPoints() - 2);
    ScaleTerrainStep(terrain, host);
    host.Progress(0);
    host.Status("Terrain erode ...");
    host.Busy(true);
    strength = 0;
    const auto settings = startErosion();
    if (!settings)
        return;
    strength = static_cast<float>(settings->dropCount);
    Drops drops(terrain, area, extent, *settings, host);
    for (int i = 1; i <= settings->dropCount; ++i) {
        drops.RollOne();
        host.Progress(static_cast<int>(RoundHalfEven(100.0 / settings->dropCount * i)));
        host.Yield();
    }
    host.Progress(100);
    host.Yield();
}

}  // namespace quillbrand::QBFilter
