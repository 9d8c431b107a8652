#include "data/river/RiverPicture.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "data/perlin/Workbench.h"
#include "data/river/Wear.h"

namespace quillbrand::river {

namespace {

using perlin::Module;

constexpr int firstSeed = 20011;

/// The land reaches so far beyond the picture: rivers end at its rim in a row of short valleys that
/// would look cut off.
constexpr int margin = 64;

/// Steps of time on grids with a point every 4, 2 and 1 pixels. The coarse one finds the courses of
/// the rivers, the finer ones add the brooks.
constexpr int stepsOfTime[] = {60, 14, 8};

std::vector<double> Sampled(const Module& noise, const Relief& like) {
    std::vector<double> values;
    values.reserve(like.height.size());
    for (int y = 0; y < like.side; ++y)
        for (int x = 0; x < like.side; ++x)
            values.push_back(noise.GetValue(x * like.cell, y * like.cell, 0.0));
    return values;
}

/// Unlike rock makes rivers wind.
std::vector<double> Softness(const Module& rock, const Relief& like) {
    std::vector<double> softness = Sampled(rock, like);
    for (double& value : softness) {
        const double root = std::max(0.2, 1.0 + 0.25 * value);
        value = root * root;
    }
    return softness;
}

void AddNoise(Relief& relief, const Module& noise, double height) {
    const std::vector<double> values = Sampled(noise, relief);
    for (std::size_t i = 0; i < values.size(); ++i)
        relief.height[i] += height * values[i];
}

Relief WornLand(int side) {
    perlin::Workbench make(77000, 100.0);
    const Module& hills = make.Fractal(260.0, 0.5);
    const Module& grain = make.Fractal(24.0, 0.6, 3.0);
    const Module& rock = make.Fractal(40.0, 0.6);

    Relief land{(side - 1) / 4 + 1, 4.0, {}};
    land.height.resize(static_cast<std::size_t>(land.side) * static_cast<std::size_t>(land.side));
    AddNoise(land, hills, 2.0);
    AddNoise(land, grain, 1.0);
    int seed = firstSeed;
    for (const int steps : stepsOfTime) {
        if (steps != stepsOfTime[0]) {
            land = Refined(land);
            AddNoise(land, grain, 0.3);
        }
        Evolve(land, Softness(rock, land), {.steps = steps}, seed);
        seed += 100;
    }
    return land;
}

/// Lowers the land around (x, y) to a valley floor at the height of that point with banks that rise
/// ever more steeply.
void CutFloor(Relief& land, int x, int y, double level, double width) {
    const int reach = static_cast<int>(2.5 * width);
    const int last = land.side - 1;
    for (int toY = std::max(0, y - reach); toY <= std::min(last, y + reach); ++toY) {
        for (int toX = std::max(0, x - reach); toX <= std::min(last, x + reach); ++toX) {
            const double out2 = ((toX - x) * (toX - x) + (toY - y) * (toY - y)) / (width * width);
            double& there = land.height[land.At(toX, toY)];
            there = std::min(there, level + 0.5 * out2 * std::sqrt(out2));
        }
    }
}

/// Gives rivers a valley floor, the wider the more water they carry.
Relief WithFloors(const Relief& land) {
    const Flow flow = RouteFlow(land, firstSeed);
    Relief wide = land;
    for (int y = 0; y < land.side; ++y) {
        for (int x = 0; x < land.side; ++x) {
            const std::size_t here = land.At(x, y);
            const double width = 0.45 * std::sqrt(std::sqrt(flow.area[here]));
            if (width >= 1.0)
                CutFloor(wide, x, y, land.height[here], width);
        }
    }
    return wide;
}

double HeightBetween(const Relief& land, double x, double y) {
    x = std::clamp(x, 0.0, land.side - 1.001);
    y = std::clamp(y, 0.0, land.side - 1.001);
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const double* above = &land.height[land.At(left, top)];
    const double* below = above + land.side;
    const double u = x - left;
    const double v = y - top;
    return (1.0 - v) * ((1.0 - u) * above[0] + u * above[1]) +
           v * ((1.0 - u) * below[0] + u * below[1]);
}

/// The middle of the land, bent so that no valley runs along the grid for long.
std::vector<double> BentMiddle(const Relief& land, int side) {
    constexpr double reach = 10.0;
    perlin::Workbench make(78000, 100.0);
    const Module& bendX = make.Fractal(90.0, 0.5, 15.0);
    const Module& bendY = make.Fractal(90.0, 0.5, 15.0);
    std::vector<double> heights;
    heights.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            heights.push_back(HeightBetween(land, x + margin + reach * bendX.GetValue(x, y, 0.0),
                                            y + margin + reach * bendY.GetValue(x, y, 0.0)));
    return heights;
}

/// Each of `count` values, `stride` apart, becomes the mean of those up to `radius` away.
void MeanAlong(double* values, int stride, int count, int radius, std::vector<double>& old) {
    old.clear();
    for (int k = 0; k < count; ++k)
        old.push_back(values[k * stride]);
    double sum = 0.0;
    for (int k = -radius; k < count; ++k) {
        if (k + radius < count)
            sum += old[static_cast<std::size_t>(k + radius)];
        if (k > radius)
            sum -= old[static_cast<std::size_t>(k - radius - 1)];
        if (k >= 0)
            values[k * stride] =
                sum / (std::min(count - 1, k + radius) - std::max(0, k - radius) + 1);
    }
}

/// Three means along each direction come near a Gaussian.
void Blur(std::vector<double>& values, int side, int radius) {
    std::vector<double> old;
    for (int pass = 0; pass < 3; ++pass) {
        for (int line = 0; line < side; ++line) {
            MeanAlong(values.data() + line * side, 1, side, radius, old);
            MeanAlong(values.data() + line, side, side, radius, old);
        }
    }
}

/// Takes off what is high or steep over wide parts: the heights against their surroundings, soft
/// limits at both ends.
void Even(std::vector<double>& heights, int side) {
    constexpr int surroundings = 60;
    std::vector<double> mean = heights;
    Blur(mean, side, surroundings);
    std::vector<double> variance(heights.size());
    double whole = 0.0;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        heights[i] -= 0.95 * mean[i];
        variance[i] = heights[i] * heights[i];
        whole += variance[i];
    }
    whole = std::sqrt(whole / static_cast<double>(heights.size()));
    Blur(variance, side, surroundings);
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const double part = 0.55 * heights[i] / (0.4 * whole + 0.6 * std::sqrt(variance[i]));
        heights[i] = part / std::sqrt(1.0 + part * part);
    }
}

}  // namespace

LevelPicture MakeRiverPicture(int side) {
    assert(side % 4 == 1);
    std::vector<double> heights = BentMiddle(WithFloors(WornLand(side + 2 * margin)), side);
    Even(heights, side);
    Blur(heights, side, 1);

    const auto [low, high] = std::minmax_element(heights.begin(), heights.end());
    const double lowest = *low;
    const double scale = 65535.0 / (*high - lowest);
    LevelPicture picture{side, {}};
    picture.levels.reserve(heights.size());
    for (const double height : heights)
        picture.levels.push_back(
            static_cast<std::uint16_t>(std::lround(scale * (height - lowest))));
    return picture;
}

}  // namespace quillbrand::river
