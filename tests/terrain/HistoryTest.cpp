#include "terrain/History.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <tuple>

#include "base/Fault.h"
#include "terrain/HeightsChange.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/terrain/MemoryRequests.h"

namespace quillbrand {
namespace {

Bytes BytesOf(const TerHeader& header) {
    Bytes bytes;
    ByteWriter writer(bytes);
    header.Append(writer);
    return bytes;
}

/// Everything that a step must bring back.
struct Snapshot {
    explicit Snapshot(const Document& document)
        : cells(AllCells(document.CurrentTerrain)),
          values(document.CurrentTerrain.Values()),
          empty(document.TerrainEmpty),
          file(document.CurrentFile) {}

    bool SameButExtremes(const Snapshot& other) const {
        return std::tie(cells, values.FixHeight, empty, file) ==
                   std::tie(other.cells, other.values.FixHeight, other.empty, other.file) &&
               BytesOf(values.header) == BytesOf(other.values.header);
    }
    bool operator==(const Snapshot& other) const {
        return SameButExtremes(other) && values.extremes == other.values.extremes;
    }
    Snapshot Tagged() const {
        Snapshot tagged = *this;
        tagged.values.header.FillTags();
        return tagged;
    }

    std::vector<Height> cells;
    TerrainValues values;
    bool empty;
    std::string file;
};

struct Interrupted {};

void ChangeSomething(Document& document, RandomSource& chance) {
    clsTerrain& terrain = document.CurrentTerrain;
    const int last = terrain.Size() + 2;
    const int far = chance.Uniform() < 0.2 ? (1 << 30) - 1 : 300;
    switch (AnyOf(0, 14, chance)) {
        case 0:
            return FillWithChance(terrain, -far, far, chance);
        case 1:
            return terrain.Init(AnyOf(1, 140, chance));
        case 2:
            return terrain.ScaleT(static_cast<float>(AnyOf(1, 3, chance)));
        case 3:
            return terrain.FixHeight(!terrain.FixHeight());
        case 4:
            document.TerrainEmpty = chance.Uniform() < 0.5;
            return;
        case 5:
            document.CurrentFile = "file " + std::to_string(AnyOf(0, 2, chance));
            return terrain.CRAD(terrain.CRAD() + 1);
        case 6:
            return terrain.FillHeaderTags();
        case 7:
            terrain.Range();
            return;
        case 8:
            return terrain.Size(AnyOf(0, terrain.Size(), chance));
        default:
            for (int i = AnyOf(0, 5, chance); i > 0; --i)
                terrain.SetPoint(AnyOf(0, last, chance), AnyOf(0, last, chance),
                                 AnyOf(-far, far, chance));
    }
}

/// A change with another one in it, which an exception ends or not.
void ChangeAndFail(Document& document, bool fails, RandomSource& chance) {
    HeightsChange change(document, "Outer");
    ChangeSomething(document, chance);
    {
        HeightsChange inner(document, "Inner");
        ChangeSomething(document, chance);
        if (chance.Uniform() < 0.5)
            inner.Commit();
    }
    ChangeSomething(document, chance);
    document.TerrainSaved = true;
    if (fails)
        throw Interrupted();
    change.Commit();
}

/// Changes, undoes and redoes at random, beside a list of the states before and after each step.
struct RandomChain {
    Document& document;
    RandomSource& chance;
    std::vector<std::pair<Snapshot, Snapshot>> steps;
    int done = 0;

    void Change() {
        const Snapshot before(document);
        ChangeAndFail(document, false, chance);
        const Snapshot after(document);
        if (after.Tagged().SameButExtremes(before.Tagged()))
            return;
        steps.erase(steps.begin() + done, steps.end());
        steps.emplace_back(before, after);
        ++done;
    }

    void Fail() {
        const Snapshot before(document);
        document.TerrainSaved = false;
        EXPECT_THROW(ChangeAndFail(document, true, chance), Interrupted);
        EXPECT_EQ(Snapshot(document), before);
        EXPECT_FALSE(document.TerrainSaved);
    }

    void Travel(bool back) {
        const int wanted = AnyOf(1, 3, chance);
        const int made = std::min(wanted, back ? done : static_cast<int>(steps.size()) - done);
        EXPECT_EQ(back ? document.Undo(wanted) : document.Redo(wanted), made);
        done += back ? -made : made;
        if (made > 0) {
            EXPECT_EQ(Snapshot(document), back ? steps[done].first : steps[done - 1].second);
        }
        EXPECT_EQ(document.history.Entries().size(), steps.size());
    }
};

TEST(History, BringsBackEveryByteOfRandomChains) {
    RandomSource chance(11);
    for (int chain = 0; chain < 150; ++chain) {
        SCOPED_TRACE(chain);
        Document document;
        document.CurrentTerrain = RandomGrid(AnyOf(1, 140, chance), -500, 500, chance);
        document.history.Mode(HistoryMode::Steps);
        RandomChain follow{document, chance, {}};
        for (int turn = 0; turn < 25 && !HasFailure(); ++turn) {
            const int action = AnyOf(0, 9, chance);
            if (action < 5)
                follow.Change();
            else if (action < 6)
                follow.Fail();
            else
                follow.Travel(action < 8);
        }
    }
}

/// A document of `points` per side that keeps steps, and in it a change named `name` from
/// `action`.
Document WithSteps(int points) {
    Document document;
    document.CurrentTerrain.Init(points);
    document.history.Mode(HistoryMode::Steps);
    return document;
}

void Change(Document& document, const std::string& name, const std::function<void()>& action) {
    HeightsChange change(document, name);
    action();
    change.Commit();
}

/// Every cell anywhere in 32 bits, which nothing can pack.
void AddNoise(Document& document, const std::string& name, RandomSource& chance) {
    Change(document, name,
           [&] { FillWithChance(document.CurrentTerrain, INT32_MIN, INT32_MAX, chance); });
}

/// "1 2 (3) (4)", the undone ones in brackets.
std::string ListOf(const History& history) {
    std::string list;
    for (const History::Entry& entry : history.Entries())
        list += (list.empty() ? "" : " ") + (entry.undone ? "(" + entry.name + ")" : entry.name);
    return list;
}

TEST(History, NamesItsSteps) {
    Document document = WithSteps(3);
    EXPECT_EQ(document.history.NameOfUndo() + document.history.NameOfRedo(), "");
    for (const int z : {1, 2, 3})
        Change(document, std::to_string(z), [&] { document.CurrentTerrain.SetPoint(1, 1, z); });
    document.Undo();
    EXPECT_EQ(ListOf(document.history), "1 2 (3)");
    EXPECT_EQ(document.history.NameOfUndo() + document.history.NameOfRedo(), "23");
    document.history.Clear();
    EXPECT_EQ(document.Undo() + document.Redo(), 0);
}

TEST(History, DropsTheOldestStepsOverItsBudgetButKeepsFive) {
    RandomSource chance(5);
    Document document = WithSteps(200);
    document.history.Megabytes(1);
    std::size_t most = 0;
    for (int i = 1; i <= 10; ++i) {
        AddNoise(document, std::to_string(i), chance);
        most = std::max(most, document.history.Bytes());
    }
    EXPECT_EQ(ListOf(document.history), "5 6 7 8 9 10");
    EXPECT_LE(most, std::size_t{1} << 20);
    EXPECT_GT(most + document.history.Entries()[0].bytes, std::size_t{1} << 20);

    document.history.Megabytes(-1);
    AddNoise(document, "11", chance);
    EXPECT_EQ(ListOf(document.history), "7 8 9 10 11");

    document.history.Megabytes(1);
    const Snapshot eleventh(document);
    AddNoise(document, "12", chance);
    document.Undo(9);
    document.history.Megabytes(0);
    EXPECT_EQ(document.Redo(9), 5);
    EXPECT_EQ(Snapshot(document), eleventh);
}

TEST(History, PacksSmallChangesSmall) {
    RandomSource chance(3);
    Document document = WithSteps(1025);
    AddNoise(document, "Noise", chance);
    Change(document, "Square", [&] { document.CurrentTerrain.GetSquare(500, 500, 30, 40); });
    EXPECT_LT(document.history.Entries()[1].bytes, std::size_t{4} * 4 * 64 * 64 + 4096);
    Change(document, "Flip", [&] {
        for (int i = 0; i < 1027 * 1027; ++i)
            document.CurrentTerrain.SetPoint(
                i % 1027, i / 1027, document.CurrentTerrain.GetPoint(i % 1027, i / 1027) ^ 1);
    });
    EXPECT_LT(document.history.Entries()[2].bytes, std::size_t{1027} * 1027 / 2);
}

TEST(History, KnowsWhichStateIsSaved) {
    Document document = WithSteps(3);
    const auto next = [&] {
        Change(document, "", [&] { document.CurrentTerrain.IncrPoint(1, 1, 1); });
    };
    const auto travel = [&](int steps) {
        steps < 0 ? document.Undo(-steps) : document.Redo(steps);
        return document.TerrainSaved;
    };
    next();
    EXPECT_FALSE(travel(-1));
    travel(1);
    document.MarkSaved();
    next();
    EXPECT_TRUE(travel(-1));
    EXPECT_FALSE(travel(-1));
    EXPECT_FALSE(travel(2));
    EXPECT_TRUE(travel(-1));
    next();
    EXPECT_TRUE(travel(-1));

    Change(document, "Save", [&] {
        document.CurrentTerrain.Fill(8);
        document.MarkSaved();
    });
    EXPECT_FALSE(travel(-1));
    {
        const HeightsChange interrupted(document, "Save");
        document.MarkSaved();
    }
    EXPECT_FALSE(document.TerrainSaved);
    EXPECT_TRUE(travel(1));
}

TEST(History, TakesTheFileNameBackOnlyWhereTheCommandGaveIt) {
    Document document = WithSteps(3);
    Change(document, "Open", [&] {
        document.CurrentFile = "a.ter";
        document.CurrentTerrain.Fill(2);
    });
    Change(document, "Save", [&] { document.CurrentFile = "saved as a.ter"; });
    EXPECT_EQ(document.history.NameOfUndo(), "Open");
    document.CurrentFile = "a.ter";
    Change(document, "Fill", [&] { document.CurrentTerrain.Fill(3); });
    document.CurrentFile = "saved as b.ter";
    document.Undo();
    EXPECT_EQ(document.CurrentFile, "saved as b.ter");
    document.Undo();
    EXPECT_EQ(document.CurrentFile, Document::noFile);
    document.Redo(2);
    EXPECT_EQ(document.CurrentFile, "a.ter");
}

TEST(HeightsChange, KeepsNoStepsInModeRollbackAndDoesNothingInModeNothing) {
    RandomSource chance(21);
    Document document;
    for (int turn = 0; turn < 60; ++turn) {
        const Snapshot before(document);
        EXPECT_THROW(ChangeAndFail(document, true, chance), Interrupted);
        EXPECT_EQ(Snapshot(document), before);
        Change(document, "Size", [&] {
            document.CurrentTerrain = RandomGrid(AnyOf(1, 40, chance), -500, 500, chance);
        });
    }
    document.history.Mode(HistoryMode::Nothing);
    MemoryRequests::CountAndFail(-1);
    {
        const HeightsChange change(document, "Change");
        document.CurrentTerrain.SetPoint(1, 1, 5);
    }
    HeightsChange(document, "Change").Commit();
    EXPECT_EQ(MemoryRequests::count, 0);
    EXPECT_EQ(document.CurrentTerrain.GetPoint(1, 1), 5);
    EXPECT_FALSE(document.history.CanUndo());
}

TEST(HeightsChange, LeavesItsResultAndEmptiesTheHistoryWhereMemoryFails) {
    RandomSource chance(8);
    int failures = 0;
    for (bool lost = true; lost; ++failures) {
        Document document = WithSteps(100);
        AddNoise(document, "First", chance);
        document.CurrentFile = "a name that needs memory of its own";
        Change(document, "Resize", [&] { document.CurrentTerrain.Init(80); });
        MemoryRequests::CountAndFail(failures);
        {
            HeightsChange change(document, "Fill");
            document.CurrentTerrain.Fill(failures);
            change.Commit();
        }
        MemoryRequests::CountAndFail(-1);
        EXPECT_EQ(document.CurrentTerrain.GetPoint(7, 7), failures);
        lost = document.history.LostHistory();
        EXPECT_EQ(ListOf(document.history), lost ? "" : "First Resize Fill");
        const Snapshot filled(document);
        AddNoise(document, "Noise", chance);
        EXPECT_FALSE(document.history.LostHistory());
        EXPECT_EQ(document.Undo(), 1);
        EXPECT_EQ(Snapshot(document), filled);
    }
    EXPECT_GT(failures, 8);
}

TEST(History, UndoesNothingWhereMemoryFails) {
    RandomSource chance(8);
    int failures = 0;
    for (int undone = 0; undone == 0; ++failures) {
        Document document = WithSteps(100);
        document.CurrentFile = "a name that needs memory of its own";
        Change(document, "Open", [&] {
            document.CurrentFile = "a.ter";
            document.CurrentTerrain = RandomGrid(80, -500, 500, chance);
        });
        const Snapshot opened(document);
        MemoryRequests::CountAndFail(failures);
        std::string fault;
        try {
            fault = FaultOf([&] { undone = document.Undo(); });
        } catch (const std::bad_alloc&) {
#ifdef NDEBUG
            throw;
#endif
            break;  // HeightWriter's copy, which it makes for an assertion
        }
        MemoryRequests::CountAndFail(-1);
        if (undone == 0) {
            EXPECT_EQ(fault, "there is not enough memory to undo \"Open\"");
            EXPECT_EQ(Snapshot(document), opened);
            EXPECT_EQ(document.Undo(), 1);
        }
        EXPECT_EQ(document.CurrentTerrain.Size(), 99);
        EXPECT_EQ(document.Redo(), 1);
        EXPECT_EQ(Snapshot(document), opened);
    }
    EXPECT_GE(failures, 4);
}

#ifndef NDEBUG
TEST(HeightsChangeDeathTest, EndsTheProgramWhereSomethingChangedOutside) {
    Document document = WithSteps(100);
    Change(document, "First", [&] { document.CurrentTerrain.Fill(1); });
    document.CurrentTerrain.Range();
    Change(document, "Second", [&] { document.CurrentTerrain.FixHeight(true); });
    document.CurrentTerrain.SetPoint(101, 101, 2);
    EXPECT_DEATH(HeightsChange(document, "Third"), "outside every HeightsChange");
}
#endif

}  // namespace
}  // namespace quillbrand
