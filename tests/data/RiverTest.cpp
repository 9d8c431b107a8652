#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "data/river/RiverPicture.h"
#include "data/river/Wear.h"

namespace quillbrand::river {
namespace {

constexpr int gridSide = 129;

/// A bowl with a rough bottom: all its water would stay.
Relief Bowl() {
    Relief bowl{gridSide, 1.0, {}};
    for (int y = 0; y < gridSide; ++y) {
        for (int x = 0; x < gridSide; ++x) {
            const int out = (x - 64) * (x - 64) + (y - 64) * (y - 64);
            bowl.height.push_back(0.001 * out + 0.1 * ((x * 37 + y * 101) % 17));
        }
    }
    return bowl;
}

/// Follows the water of every point; counts the points whose water comes to the rim, falling all
/// the way.
std::size_t DrainedPoints(const Relief& relief, const Flow& flow) {
    std::vector<char> drained(relief.height.size(), 0);
    std::size_t count = 0;
    for (const int point : flow.upwards) {
        const auto i = static_cast<std::size_t>(point);
        const auto down = static_cast<std::size_t>(flow.receiver[i]);
        const bool onRim = relief.IsRim(point % relief.side, point / relief.side);
        if (onRim ? down == i : drained[down] != 0 && relief.height[down] < relief.height[i]) {
            drained[i] = 1;
            ++count;
        }
    }
    return count;
}

double RimArea(const Relief& relief, const Flow& flow) {
    double area = 0.0;
    for (int i = 0; i < relief.side * relief.side; ++i)
        if (relief.IsRim(i % relief.side, i / relief.side))
            area += flow.area[static_cast<std::size_t>(i)];
    return area;
}

TEST(Drainage, BringsTheWaterOfEveryPointDownToTheRim) {
    const Relief bowl = Bowl();
    Relief filled = bowl;
    FillPits(filled);
    for (std::size_t i = 0; i < bowl.height.size(); ++i)
        ASSERT_GE(filled.height[i], bowl.height[i]) << i;
    const Flow flow = RouteFlow(filled, 1);
    EXPECT_EQ(DrainedPoints(filled, flow), filled.height.size());
    EXPECT_EQ(RimArea(filled, flow), gridSide * gridSide);
}

TEST(Wear, MakesTreesOfValleysInALandThatRises) {
    Relief land = Bowl();
    land.cell = 2.0;
    const std::vector<double> softness(land.height.size(), 1.0);
    Evolve(land, softness, {.steps = 40}, 1);

    const Flow flow = RouteFlow(land, 1);
    EXPECT_EQ(DrainedPoints(land, flow), land.height.size());
    EXPECT_EQ(RimArea(land, flow), 4.0 * gridSide * gridSide);
    // Without rivers the mean height would come to more than 13.
    const double sum = std::accumulate(land.height.begin(), land.height.end(), 0.0);
    EXPECT_LT(sum / static_cast<double>(land.height.size()), 11.0);
    // A fair part of the land feeds one river.
    const auto mouth = std::max_element(flow.area.begin(), flow.area.end());
    EXPECT_GT(*mouth, 0.05 * RimArea(land, flow));
    EXPECT_GT(land.height[land.At(64, 64)],
              land.height[static_cast<std::size_t>(mouth - flow.area.begin())] + 1.0)
        << "the bowl is gone";
}

TEST(Wear, KeepsThePlacesOfTheOldPointsWhenRefined) {
    const Relief coarse = Bowl();
    const Relief fine = Refined(coarse);
    ASSERT_EQ(fine.side, 257);
    EXPECT_EQ(fine.cell, 0.5);
    EXPECT_EQ(fine.height[fine.At(20, 254)], coarse.height[coarse.At(10, 127)]);
    EXPECT_DOUBLE_EQ(fine.height[fine.At(21, 0)],
                     (coarse.height[coarse.At(10, 0)] + coarse.height[coarse.At(11, 0)]) / 2.0);
}

TEST(RiverPicture, FillsTheSixteenBitsSmoothlyAndTheSameOnEveryRun) {
    const LevelPicture picture = MakeRiverPicture(gridSide);
    EXPECT_TRUE(MakeRiverPicture(gridSide).levels == picture.levels);
    ASSERT_EQ(picture.levels.size(), static_cast<std::size_t>(gridSide * gridSide));
    const auto [low, high] = std::minmax_element(picture.levels.begin(), picture.levels.end());
    EXPECT_EQ(*low, 0);
    EXPECT_EQ(*high, 65535);
    // Grain would show as points that stand out from both their neighbours.
    int standOut = 0;
    for (std::size_t i = 1; i + 1 < picture.levels.size(); ++i) {
        const int left = picture.levels[i] - picture.levels[i - 1];
        const int right = picture.levels[i] - picture.levels[i + 1];
        standOut += left * right > 500 * 500 ? 1 : 0;
    }
    EXPECT_LT(standOut, gridSide * gridSide / 100);
}

}  // namespace
}  // namespace quillbrand::river
