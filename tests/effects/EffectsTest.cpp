#include <gtest/gtest.h>

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

TEST(ApplyEffect, GivesSmoothTheStrengthPlusTwoAndThePanelsLimits) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("100 200 300 / 400 5000 600 / 700 800 900");
    const auto before = AllCells(terrain);
    QBFilter::ApplyEffect(1, terrain, 0, {.extent = 3}, host);
    EXPECT_EQ(AllCells(terrain), before);
    QBFilter::ApplyEffect(1, terrain, 1, {.extent = 3, .zMin = 100, .zMax = 5000}, host);
    EXPECT_EQ(terrain.GetPoint(1, 1), 5000);
    EXPECT_NE(AllCells(terrain), before);
    EXPECT_EQ(host.statuses.back(), "smoothes....");
    EXPECT_FALSE(host.isBusy);
}

TEST(ApplyEffect, ScalesForOptimizedAndDoesNothingForRainAndUnknownCodes) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    for (const int code : {9, 0, 13, -1})
        QBFilter::ApplyEffect(code, terrain, 5, {.extent = 2}, host);
    EXPECT_EQ(TextOf(terrain), "1 2 / 3 4");
    QBFilter::ApplyEffect(11, terrain, 5, {.extent = 2}, host);
    EXPECT_EQ(terrain.Range(), 49152);
    EXPECT_EQ(host.statuses.back(), "Scale Terrain...");
    EXPECT_EQ(host.screens, 1);
}

TEST(ApplyEffect, RefusesWhatIsNotBuiltYetWithTheTerrainUnchanged) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    for (const auto& effect : QBFilter::Effects()) {
        if (effect.available)
            continue;
        EXPECT_THROW(QBFilter::ApplyEffect(effect.code, terrain, 1, {.extent = 2}, host), Fault);
        EXPECT_EQ(TextOf(terrain), "1 2 / 3 4");
        EXPECT_FALSE(host.isBusy);
    }
}

}  // namespace
}  // namespace quillbrand
