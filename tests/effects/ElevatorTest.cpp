#include <gtest/gtest.h>

#include "base/Fault.h"
#include "effects/QBTools2.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

using QBFilter::Area;
using namespace QBTools2;

/// An elevator over a sets file in a folder of its own, with the straight line loaded.
class ElevatorTest : public ::testing::Test {
  protected:
    ElevatorTest() {
        elevator_.ElevatorSetFile = folder_ / "sets.dat";
        LoadElevatorSet(elevator_, 0);
    }

    /// Every column's mark in row `row`.
    void DrawLevel(int row) {
        for (int a = 0; a <= ElevatorMax; ++a)
            elevator_.grid.Drag(a, row);
    }

    /// Runs the armed effect.
    void Shift(clsTerrain& terrain, const Area& area) {
        elevator_.grid.Arm(true);
        QBFilter::FilterElevatorShift(terrain, strength_, area, elevator_, host_);
    }

    float strength_ = 1;
    RecordingHost host_;
    TemporaryFolder folder_;
    Elevator elevator_;
};

TEST_F(ElevatorTest, ClearsTheRowOfAPressAndTheColumnOfADrag) {
    ElevatorGrid& grid = elevator_.grid;
    grid.Press(10.5, 100);
    EXPECT_EQ(grid(10, 100), 1) << "halves go to even";
    EXPECT_EQ(grid(156, 100), 0) << "the line's own mark in that row";
    EXPECT_EQ(grid(10, 246), 1) << "the line's mark in that column stays";
    grid.Drag(10, 400);
    EXPECT_EQ(grid(10, 256), 1);
    EXPECT_EQ(grid(10, 100), 0);
    EXPECT_EQ(grid(10, 246), 0);
    EXPECT_EQ(grid.FirstMark(10), -1) << "row 256 is no mark for the effect";
    EXPECT_EQ(grid.FirstMark(20), 236);
}

TEST_F(ElevatorTest, StoresRecordsOf277BytesBeyondTheEndToo) {
    DrawLevel(200);
    SaveElevatorSet(elevator_, 2, "A name longer than twenty letters");
    const Bytes file = Contents(folder_ / "sets.dat");
    ASSERT_EQ(file.size(), 2 * 277U);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(file.data()) + 277, 20),
              "A name longer than t");
    EXPECT_EQ(std::to_integer<int>(file[277 + 20]), 200);
    EXPECT_EQ(std::to_integer<int>(file[277 + 276]), 200);
    const ElevatorGrid drawn = elevator_.grid;
    LoadElevatorSet(elevator_, 0);
    EXPECT_EQ(LoadElevatorSet(elevator_, 2), "A name longer than t");
    EXPECT_EQ(elevator_.grid, drawn);
    EXPECT_EQ(LoadElevatorSet(elevator_, 3), "");
    EXPECT_EQ(elevator_.grid, ElevatorGrid());
    SaveElevatorSet(elevator_, 0, "line");
    EXPECT_TRUE(Contents(folder_ / "sets.dat") == file);
}

TEST_F(ElevatorTest, KeepsTheByteOfAColumnWithoutAMarkAndTheLowestOfSeveral) {
    DrawLevel(200);
    SaveElevatorSet(elevator_, 1, "");
    elevator_.grid.Clear();
    elevator_.grid(256, 30) = elevator_.grid(256, 90) = 1;
    elevator_.grid(255, 256) = 1;
    SaveElevatorSet(elevator_, 2, "");
    EXPECT_EQ(LoadElevatorSet(elevator_, 2), std::string(20, ' '));
    EXPECT_EQ(elevator_.grid.FirstMark(256), 90);
    EXPECT_EQ(elevator_.grid.FirstMark(255), 200);
}

TEST_F(ElevatorTest, OpensWithTheLineWhereTheSetsFileIsMissingOrShort) {
    EXPECT_THROW(LoadElevatorSet(elevator_, 1), Fault);
    elevator_.ElevatorSetIndex = 1;
    ElevatorList list = OpenElevator(elevator_);
    EXPECT_EQ(list.names, std::vector<std::string>{"nothing"});
    EXPECT_NE(list.trouble.find("sets.dat"), std::string::npos);
    EXPECT_EQ(elevator_.ElevatorSetIndex, 0);
    EXPECT_EQ(elevator_.grid(100, 156), 1);

    WriteText(folder_ / "sets.dat", std::string(277 + 100, 'a'));
    list = OpenElevator(elevator_);
    EXPECT_EQ(list.names.size(), 2U);
    EXPECT_NE(list.trouble.find("377 bytes"), std::string::npos);
    WriteText(folder_ / "sets.dat", std::string(277, 'a'));
    EXPECT_EQ(OpenElevator(elevator_).trouble, "");
    EXPECT_THROW(ChooseElevatorSet(elevator_, 2), Fault);
    EXPECT_EQ(elevator_.ElevatorSetIndex, 0);
    EXPECT_EQ(elevator_.grid(100, 156), 1);

    WriteText(folder_ / "sets.dat", std::string(277, '\0'));
    elevator_.ElevatorSetIndex = 1;
    OpenElevator(elevator_);
    EXPECT_EQ(elevator_.grid(100, 0), 1);
    EXPECT_FALSE(elevator_.grid.IsArmed()) << "by a mark in the first column's top row";
}

TEST_F(ElevatorTest, ShiftsOnlyWhenArmedAndStaysSo) {
    clsTerrain terrain = GridFrom("-32000 0 / 1 20000");
    const auto before = AllCells(terrain);
    QBFilter::FilterElevatorShift(terrain, strength_, {.extent = 2}, elevator_, host_);
    EXPECT_EQ(AllCells(terrain), before);
    EXPECT_EQ(host_.statuses.back(), "Elevator shift...");
    EXPECT_TRUE(host_.progress.empty());
    DrawLevel(192);
    Shift(terrain, {.extent = 2});
    EXPECT_EQ(TextOf(terrain), "256 0 / 1 32") << "512 * 64 with what 512 leaves of the height";
    EXPECT_TRUE(elevator_.grid.IsArmed());
}

TEST_F(ElevatorTest, RepeatsThePointBeforeWhereTheStraightLineHasNoMark) {
    clsTerrain terrain = GridFrom("-32768 -31744 -31488 / -32700 -32512 -32511 / -20000 0 -32767");
    Shift(terrain, {.extent = 2});
    EXPECT_EQ(TextOf(terrain), "-32768 -31744 -31488 / -32768 -31744 -31999 / -19488 0 -31999");
}

TEST_F(ElevatorTest, AgreesWithTheSlowTwinOnRandomCurvesAreasAndLimits) {
    RandomSource chance(3);
    const auto any = [&](int low, int high) { return AnyOf(low, high, chance); };
    for (int turn = 0; turn < 300; ++turn) {
        elevator_.grid.Clear();
        for (int marks = any(1, 600); marks > 0; --marks)
            elevator_.grid(any(0, 256), any(0, 256)) = 1;
        elevator_.grid(0, 0) = 0;
        const int points = any(1, 80);
        clsTerrain fast = RandomGrid(points, -33024, turn % 2 == 0 ? 32767 : 98560, chance);
        Area area{.extent = fast.XPoints()};
        if (turn % 3 == 1)
            area = {any(0, 100), any(-30, 60), any(-30, 60)};
        area.zMin = turn % 4 == 0 ? any(-33000, 0) : -40000;
        area.zMax = turn % 4 == 0 ? any(0, 32768) : 98561;
        clsTerrain slow = fast;
        Shift(fast, area);
        elevator_.grid.Arm(false);
        SlowTwins::FilterElevatorShift(slow, area, elevator_.grid);
        ASSERT_TRUE(SameGrid(fast, slow)) << turn;
    }
}

TEST_F(ElevatorTest, RefusesHeightsBeyondTheCurveWithTheTerrainUnchanged) {
    clsTerrain terrain = GridFrom("0 1 / 98561 -33025");
    const auto before = AllCells(terrain);
    EXPECT_THROW(Shift(terrain, {.extent = 2, .zMax = 200000}), Fault);
    EXPECT_EQ(AllCells(terrain), before);
    EXPECT_TRUE(elevator_.grid.IsArmed());
    EXPECT_NO_THROW(Shift(terrain, {.extent = 2})) << "they lie outside the limits";
}

}  // namespace
}  // namespace quillbrand
