#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>

#include "tests/support/Grids.h"
#include "tests/ui/WindowFixture.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {
namespace {

constexpr auto question =
    "Change Value: The size was changed. Shall the Terrain height also be adjusted?";

/// The tab "Global" by keyboard and mouse: 257 points, 30 m apart, -300 to 900 m.
class Landscape : public WindowFixture {
  protected:
    void SetUp() override {
        WindowFixture::SetUp();
        ASSERT_TRUE(StartWindow());
        ShowTab("Global");
    }

    QString Text(const char* name) { return Find<QLineEdit>(name)->text(); }

    /// Puts the caret into the field and replaces what it holds.
    void Type(const char* name, const char* text) {
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        auto* field = Find<QLineEdit>(name);
        QTest::mouseClick(field, Qt::LeftButton);
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    /// Leaves the field with the focus by Tab; the messages that come get `answers`.
    QStringList Leave(QList<ModalUser::Action> answers = {}) {
        ModalUser user(std::move(answers));
        QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(QTest::qWaitFor([&] { return user.IsDone(); }));
        QCoreApplication::processEvents();
        return user.seen;
    }

    clsTerrain& terrain_ = session_.document.CurrentTerrain;
};

TEST_F(Landscape, TakesPlanetsFromTheirButtons) {
    for (const auto& [name, radius] :
         {std::pair("cmdMoon", 1738.0F), {"cmdMars", 3390.0F}, {"cmdEarth", 6370.0F}}) {
        Click(name);
        EXPECT_EQ(terrain_.CRAD(), radius);
    }
    EXPECT_EQ(Text("txtPlanetRadius"), "6370");
    Click("cmdPlanetRender");
    EXPECT_EQ(Text("txtPlanetRadius"), "6");
    EXPECT_EQ(Text("txtTerSizeMeters"), "1280");
    EXPECT_EQ(Text("txtMetersPoint"), "5.");
    EXPECT_TRUE(Find<QAbstractButton>("chkCurved")->isChecked());
}

TEST_F(Landscape, TakesKeysOfNumbersOnlyAndLimitsTheRadiusAtOnce) {
    Type("txtMinTerrain", "-1a2,5.,");
    EXPECT_EQ(Text("txtMinTerrain"), "-12,5");
    Type("txtPlanetRadius", "20000");
    EXPECT_EQ(Text("txtPlanetRadius"), "10000");
    EXPECT_EQ(terrain_.CRAD(), 6370) << "until a button of the tool bar is pressed";
    ClickTool("Zoom100");
    EXPECT_EQ(terrain_.CRAD(), 10000);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(window_->focusWidget(), Qt::Key_Backspace);
    EXPECT_EQ(Text("txtPlanetRadius"), "1");
    QTest::keyClicks(window_->focusWidget(), "77");
    EXPECT_EQ(Text("txtPlanetRadius"), "77");
    host_->ActualScreen();
    EXPECT_EQ(Text("txtPlanetRadius"), "10000");
}

TEST_F(Landscape, WritesTheEndsOfTheHeightsWhenTheirFieldsAreLeft) {
    Type("txtMinTerrain", "-600");
    EXPECT_EQ(terrain_.MinTU(), -10);
    EXPECT_EQ(Leave(), QStringList());
    EXPECT_EQ(terrain_.MinTU(), -20);
    EXPECT_EQ(window_->focusWidget()->objectName(), "txtMaxTerrain");
    QTest::keyClicks(window_->focusWidget(), "99999999");
    EXPECT_EQ(Leave({Press("OK")}),
              QStringList("max. heigth of Terrain in meters: a height of 99999999 m does not fit: "
                          "with 30 m per point it must lie within -983040 to 983010 m, and no more "
                          "than 983010 m from the other end of the heights"));
    EXPECT_EQ(Text("txtMaxTerrain"), "900");
}

TEST_F(Landscape, AsksWhatANewSideIsToChange) {
    Type("txtTerSizeMeters", "15360");
    EXPECT_EQ(Leave({Press("Yes")}), QStringList(question));
    EXPECT_EQ(terrain_.ScaleT(), 60);
    EXPECT_EQ(Text("txtMaxTerrain"), "1800");
    Type("txtTerSizeMeters", "3840");
    EXPECT_EQ(Leave({PressEscape()}), QStringList(question));
    EXPECT_EQ(terrain_.ScaleT(), 15);
    EXPECT_EQ(Text("txtMinTerrain"), "-600");
    EXPECT_EQ(Text("txtMaxTerrain"), "1800");
    Type("txtTerSizeMeters", "999999");
    ModalUser user({Press("Yes")});
    Click("cmdMoon");
    EXPECT_EQ(user.seen, QStringList(question)) << "before the click acts";
    EXPECT_EQ(Text("txtTerSizeMeters"), "100000");
    EXPECT_EQ(Text("txtMetersPoint"), "100.");
}

TEST_F(Landscape, AsksNothingForASideThatTheUserLeftAlone) {
    terrain_.ScaleT(30.001F);
    host_->ActualScreen();
    Type("txtTerSizeMeters", "7680");
    EXPECT_EQ(Leave(), QStringList());
    EXPECT_EQ(terrain_.ScaleT(), 30) << "the text's value, all the same";
    Type("txtTerSizeMeters", "5120");
    ModalUser user({Press("OK")});
    ClickTool("Terragen");
    EXPECT_EQ(user.seen, QStringList("Save: Terrain empty !"));
    EXPECT_EQ(Leave(), QStringList()) << "the command's end has shown the terrain again";
    EXPECT_EQ(terrain_.ScaleT(), 30);
}

TEST_F(Landscape, ResizesToTheSizeThatIsTicked) {
    Produce("4711");
    ShowTab("Global");
    const std::string window = HeaderText(terrain_);
    const auto before = Heights();
    Click("optTerSize0");
    {
        ModalUser user({Press("No")});
        Click("CmdResize");
        EXPECT_EQ(user.seen,
                  QStringList("Resize terrain: Adjust the point spacing to keep the real-world "
                              "size as before?"));
    }
    EXPECT_EQ(terrain_.Size(), 128);
    EXPECT_EQ(Find<QStatusBar>("sBar")->currentMessage(), "Resized from 256 x 256 to 128 x 128");
    EXPECT_EQ(Find<QLabel>("sBarPanel1")->text().left(9), "128 x 128");
    EXPECT_EQ(Find<PictureBox>("Picture1")->Raster().Width(), 129);
    EXPECT_FALSE(session_.TerrainBusy);
    ClickTool("Undo");
    EXPECT_EQ(Heights(), before);
    EXPECT_EQ(HeaderText(terrain_), window);
    EXPECT_TRUE(Find<QAbstractButton>("optTerSize1")->isChecked());

    Click("optTerSize2");
    const int highest = terrain_.MaxTU();
    ModalUser user({Press("Yes")});
    Click("CmdResize");
    EXPECT_EQ(terrain_.Size(), 512);
    EXPECT_EQ(terrain_.MaxTU(), 2 * highest);
}

TEST_F(Landscape, ThrowsTheTerrainAwayAtTheSizeThatItHasAndUndoBringsItBack) {
    Produce("4711");
    ShowTab("Global");
    const auto before = Heights();
    Click("optTerSize1");
    {
        ModalUser user({});
        Click("CmdResize");
        EXPECT_EQ(user.seen, QStringList()) << "no question";
    }
    EXPECT_NE(Heights(), before);
    EXPECT_EQ(terrain_.MaxTU(), 10);
    EXPECT_EQ(Find<QStatusBar>("sBar")->currentMessage(),
              "A flat terrain of 256 x 256 has taken the old one's place");
    ClickTool("Undo");
    EXPECT_EQ(Heights(), before);
}

TEST_F(Landscape, SaysThatNoSizeIsChosen) {
    Edit([](clsTerrain& terrain) { terrain.Init(301); });
    window_->ResizePicture();
    ModalUser user({Press("OK")});
    Click("CmdResize");
    EXPECT_EQ(user.seen, QStringList("Resize: No size of the grid is chosen"));
    EXPECT_EQ(terrain_.Size(), 300);
}

}  // namespace
}  // namespace quillbrand
