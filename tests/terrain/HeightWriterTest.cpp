#include "terrain/HeightWriter.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/Grids.h"

namespace quillbrand {
namespace {

/// Any rectangle of the grid, now and then an empty one.
GridRect AnyRect(const clsTerrain& terrain, RandomSource& chance) {
    const int last = terrain.Cells().x1;
    return GridRect::Cut(AnyOf(-3, last, chance), AnyOf(-3, last, chance),
                         AnyOf(0, last + 3, chance), AnyOf(0, last + 3, chance), terrain.Cells());
}

/// Calls `use` with every point of the rectangle.
template <typename Use>
void ForEachCell(const GridRect& rect, Use use) {
    for (int y = rect.y0; y <= rect.y1; ++y)
        for (int x = rect.x0; x <= rect.x1; ++x)
            use(x, y);
}

TEST(GridRect, IsCutHoweverFarOutItsEndsAre) {
    const GridRect grid{0, 0, 9, 9};
    constexpr std::int64_t far = std::int64_t{1} << 40;
    EXPECT_EQ(GridRect::Cut(-far, 2, far, 5, grid), (GridRect{0, 2, 9, 5}));
    EXPECT_EQ(GridRect::Cut(far, 0, far + 1, 9, grid), GridRect());
    EXPECT_EQ(GridRect::Cut(0, -far - 1, 9, -far, grid), GridRect());
    const GridRect part{3, 4, 12, 4};
    EXPECT_EQ(part.CutTo(grid), (GridRect{3, 4, 9, 4}));
    EXPECT_FALSE(grid.Contains(part));
    EXPECT_FALSE(part.Contains(9, 5));
    EXPECT_TRUE(part.Contains(GridRect{5, 5, 2, 9})) << "it is empty";
    EXPECT_EQ((GridRect{5, 5, 2, 9}).Columns(), 0);
}

constexpr Height noHeight = 99999;  ///< lies in no grid

/// A pass that stores `height(x, y)` in every cell of a rectangle, in one of the ways of a writer,
/// or in every second cell.
template <typename HeightAt>
void Store(clsTerrain& terrain, const GridRect& rect, int way, HeightAt height) {
    const std::ptrdiff_t length = rect.Rows() + way;
    std::vector<Height> columns(static_cast<std::size_t>(rect.Columns() * length), noHeight);
    HeightWriter writer(terrain, rect);
    for (int y = rect.y0; y <= rect.y1; ++y) {
        if (way == 0) {
            const auto row = writer.Row(y);
            ASSERT_EQ(row.size(), static_cast<std::size_t>(rect.Columns()));
            for (int x = rect.x0; x <= rect.x1; ++x)
                row[static_cast<std::size_t>(x - rect.x0)] = height(x, y);
        } else if (way == 1) {
            const auto row = writer.UnmeasuredRow(y);
            for (int x = rect.x0; x <= rect.x1; ++x) {
                if ((x + y) % 2 == 0)
                    continue;
                row[static_cast<std::size_t>(x - rect.x0)] = height(x, y);
                writer.Stored().Widen(height(x, y));
            }
        }
    }
    if (way < 2)
        return;
    ForEachCell(rect, [&](int x, int y) {
        columns[static_cast<std::size_t>((x - rect.x0) * length + y - rect.y0)] = height(x, y);
        writer.Stored().Widen(height(x, y));
    });
    writer.StoreColumns(rect, columns, length);
}

TEST(HeightWriter, StoresAndWidensTheExtremesAsSetPointDoes) {
    RandomSource chance(8);
    for (int turn = 0; turn < 300; ++turn) {
        clsTerrain fast;
        fast.Init(1 + turn % 23);  // its zeroes are no part of the extremes
        clsTerrain slow = fast;
        const GridRect rect = AnyRect(fast, chance);
        const int way = turn % 3;
        const auto height = [&](int x, int y) { return 1000 + turn + 7 * x - 13 * y; };
        Store(fast, rect, way, height);
        ForEachCell(rect, [&](int x, int y) {
            if (way != 1 || (x + y) % 2 != 0)
                slow.SetPoint(x, y, height(x, y));
        });
        ASSERT_TRUE(SameGrid(fast, slow)) << "turn " << turn;
    }
}

TEST(HeightWriter, TurnsRowsIntoColumnsOfAnyLengthAndBack) {
    RandomSource chance(15);
    for (int turn = 0; turn < 200; ++turn) {
        const clsTerrain terrain = RandomGrid(1 + turn % 70, -30000, 30000, chance);
        const GridRect rect = AnyRect(terrain, chance);
        const std::ptrdiff_t length = rect.Rows() + turn % 5;
        std::vector<Height> columns(static_cast<std::size_t>(rect.Columns() * length), noHeight);
        terrain.LoadColumns(rect, columns, length);
        std::size_t strange = 0;
        ForEachCell(rect, [&](int x, int y) {
            const auto place = static_cast<std::size_t>((x - rect.x0) * length + y - rect.y0);
            strange += columns[place] != terrain.GetPoint(x, y) ? 1 : 0;
        });
        ASSERT_EQ(strange, 0u) << turn;
        Extremes extremes;
        for (const Height height : columns)
            if (height != noHeight)
                extremes.Widen(height);
        ASSERT_EQ(terrain.Measure(rect), extremes) << turn;
        clsTerrain stored = RandomGrid(terrain.XPoints(), 50000, 60000, chance);
        clsTerrain expected = stored;
        ForEachCell(rect, [&](int x, int y) { expected.SetPoint(x, y, terrain.GetPoint(x, y)); });
        {
            HeightWriter writer(stored, rect);
            writer.StoreColumns(rect, columns, length);
            writer.Stored().Widen(terrain.Measure(rect));
        }
        ASSERT_TRUE(SameGrid(stored, expected)) << turn;
    }
}

#ifndef NDEBUG
TEST(HeightWriterDeathTest, EndsAPassThatHidesWhatItStored) {
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    const auto pass = [&](Height told) {
        HeightWriter writer(terrain, terrain.Points());
        writer.UnmeasuredRow(1)[0] = 50;
        writer.Stored().Widen(told);
    };
    EXPECT_DEATH(pass(49), "KnowsAllChanges");
    EXPECT_DEATH(HeightWriter(terrain, {0, 0, 4, 0}), "Contains");
    EXPECT_DEATH(terrain.Row(-1), "InGrid");
    pass(50);
    EXPECT_EQ(terrain.max(), 50);
    EXPECT_THROW(
        {
            HeightWriter writer(terrain, terrain.Points());
            writer.UnmeasuredRow(0)[0] = 99;
            throw std::runtime_error("a pass that fails");
        },
        std::runtime_error);
}
#endif

}  // namespace
}  // namespace quillbrand
