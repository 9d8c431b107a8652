#include "shell/EditingCommands.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

class Editing : public ::testing::Test {
  protected:
    void SetUp() override {
        session_.tools.gaussTable = GaussTable(GaussTable::standardUpper);
        document_.CurrentTerrain.Init(129);
        document_.history.Mode(HistoryMode::Steps);
    }

    std::vector<Height> Heights() const { return AllCells(document_.CurrentTerrain); }

    static Stroke DeepStroke(StrokeTool tool) { return {.tool = tool, .size = 4, .depth = 30}; }

    StrokeMap MapOf(const MousePoint& point) const {
        StrokeMap map;
        map.Clear(document_.CurrentTerrain.XPoints());
        map.Press(point);
        return map;
    }

    Session session_;
    Document& document_ = session_.document;
    RecordingHost host_;
};

TEST_F(Editing, EachCommandIsOneStepUnderItsName) {
    const Frame frame{.left = 60, .top = 50, .right = 30, .bottom = 20};
    FillArea(document_, frame, 60000, host_);
    EXPECT_FALSE(document_.TerrainEmpty);
    LiftArea(document_, frame, 7, host_);
    // Across the frame, so that a mirror changes something.
    LowerArea(document_, {.left = 20, .top = 10, .right = 45, .bottom = 35}, 9, host_);
    ReflectArea(document_, frame, Reflection::Vertically, host_);
    LiftArea(document_, {.left = 0, .top = 0, .right = 30, .bottom = 20}, 7, host_);
    ReflectArea(document_, frame, Reflection::Horizontally, host_);
    for (const StrokeTool tool :
         {StrokeTool::Up, StrokeTool::Down, StrokeTool::Noise, StrokeTool::Smooth})
        StartStroke(document_, session_.tools, session_.settings, DeepStroke(tool), MapOf({50, 50}),
                    host_);
    PenStroke stroke(document_, host_.Chance());
    stroke.Press({.shape = PenShape::Square}, {20, 20});
    stroke.Move({.shape = PenShape::Square}, {30, 20});
    stroke.End();
    host_.answers = {Answer::Yes};
    EXPECT_EQ(ResizeDocument(document_, 256, 2, 0, host_), "Resized from 128 x 128 to 256 x 256");
    EXPECT_FALSE(host_.isBusy);

    std::string steps;
    for (const History::Entry& entry : document_.history.Entries())
        steps += entry.name + "; ";
    EXPECT_EQ(steps,
              "fill; lift Terrain; lower Terrain; Reflect vertically; lift Terrain; Reflect "
              "horizontally; up; down; Noise; Smooth; Pen; Resize; ");
}

TEST_F(Editing, AStrokeOfThePenThatDoesNotEndPutsBackWhatThePressFound) {
    const auto before = Heights();
    {
        PenStroke stroke(document_, host_.Chance());
        stroke.Press({.shape = PenShape::Round, .height = 60000}, {50, 50});
        EXPECT_NE(Heights(), before);
    }
    EXPECT_EQ(Heights(), before);
    EXPECT_TRUE(document_.TerrainEmpty);
    EXPECT_FALSE(document_.history.CanUndo());
}

TEST_F(Editing, AFaultLeavesTheDocumentAndNoStep) {
    document_.CurrentTerrain.SetPoint(50, 50, 2147483600);
    const auto before = Heights();
    EXPECT_THROW(StartStroke(document_, session_.tools, session_.settings,
                             DeepStroke(StrokeTool::Up), MapOf({50, 50}), host_),
                 Fault);
    EXPECT_THROW(LiftArea(document_, {.left = 40, .top = 40, .right = 60, .bottom = 60}, 30, host_),
                 Fault);
    EXPECT_THROW(ReflectArea(document_, {.left = -9, .top = 0, .right = 9, .bottom = 9},
                             Reflection::Vertically, host_),
                 Fault);
    EXPECT_THROW(ResizeDocument(document_, 100, 2, 0, host_), Fault);
    EXPECT_EQ(Heights(), before);
    EXPECT_TRUE(document_.TerrainEmpty);
    EXPECT_FALSE(document_.history.CanUndo());
}

TEST_F(Editing, ResizingAnEmptyTerrainOrToItsOwnSizeThrowsItAway) {
    const std::string flat = "A flat terrain of 256 x 256 has taken the old one's place";
    EXPECT_EQ(ResizeDocument(document_, 256, 2, 0, host_), flat) << "it is empty";
    document_.TerrainEmpty = false;
    EXPECT_EQ(ResizeDocument(document_, 256, 2, 0, host_), flat);
    EXPECT_TRUE(host_.questions.empty());
}

}  // namespace
}  // namespace quillbrand
