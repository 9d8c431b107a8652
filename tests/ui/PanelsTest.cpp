#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <limits>

#include "effects/QBFilter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/ui/WindowFixture.h"
#include "ui/panels/GlobalPanel.h"

namespace quillbrand {
namespace {

class Panels : public WindowFixture {
  protected:
    void SetUp() override {
        WindowFixture::SetUp();
        ASSERT_TRUE(StartWindow());
    }

    QString Text(const char* name) { return Find<QLineEdit>(name)->text(); }
    int Value(const char* name) { return Find<QSlider>(name)->value(); }
    bool IsTicked(const char* name) { return Find<QAbstractButton>(name)->isChecked(); }

    void Keys(const char* name, std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            QTest::keyClick(Find<QWidget>(name), key);
    }
};

class Effects : public Panels {
  protected:
    void SetUp() override {
        Panels::SetUp();
        ShowTab("Effects");
    }
};

constexpr auto smooth = "optFilter0";
constexpr auto riverErosion = "optFilter4";
constexpr auto optimized = "optFilter10";

TEST_F(Effects, KeepsStrengthsOneOff) {
    Keys("sldEffectFactor", {Qt::Key_Right, Qt::Key_Right});
    EXPECT_EQ(session_.tools.EffectStrength[0], 1);
    EXPECT_EQ(session_.tools.EffectStrength[1], 3);

    session_.tools.EffectStrength[10] = 7;
    Click(optimized);
    EXPECT_EQ(Value("sldEffectFactor"), 7);
    EXPECT_EQ(session_.tools.EffectStrength[11], 7) << "the slider moved, so it wrote one above";
    Keys("sldEffectFactor", {Qt::Key_End});
    EXPECT_EQ(session_.tools.EffectStrength[10], 7);
    EXPECT_EQ(session_.tools.EffectStrength[11], 10);

    Click(smooth);
    EXPECT_EQ(Value("sldEffectFactor"), 1);
    EXPECT_EQ(session_.tools.EffectStrength[1], 1);
    session_.tools.EffectStrength[1] = 9;
    Click(smooth);
    EXPECT_EQ(session_.tools.EffectStrength[1], 9) << "the slider stayed, so it wrote nothing";
}

TEST_F(Effects, PushOneLimitByTheOther) {
    Keys("sldZMax", {Qt::Key_Home, Qt::Key_PageUp});
    Keys("sldZMin", {Qt::Key_PageUp, Qt::Key_PageUp});
    EXPECT_EQ(Value("sldZMin"), 8192);
    EXPECT_EQ(Value("sldZMax"), 8193);
    Keys("sldZMax", {Qt::Key_PageDown});
    EXPECT_EQ(Value("sldZMax"), 4097);
    EXPECT_EQ(Value("sldZMin"), 4096);
    Keys("sldZMin", {Qt::Key_End});
    EXPECT_EQ(Value("sldZMax"), 65536) << "no further than the end";
    Keys("sldZMax", {Qt::Key_Home});
    EXPECT_EQ(Value("sldZMin"), 0);
}

TEST_F(Effects, ShowTheLimitsInMetresAndResetThem) {
    Find<QSlider>("sldZMin")->setValue(32768);
    EXPECT_EQ(Text("txtZMin"), "300");
    Keys("sldZMax", {Qt::Key_Left});
    EXPECT_EQ(Text("txtZmax"), "899.9817");
    session_.document.CurrentTerrain.ScaleT(10);
    host_->ActualScreen();
    EXPECT_EQ(Text("txtZMin"), "100");
    Click("cmdZrangeReset");
    EXPECT_EQ(Value("sldZMin"), 0);
    EXPECT_EQ(Value("sldZMax"), 65536);
    EXPECT_EQ(Text("txtZMin"), "-100");
    EXPECT_EQ(Text("txtZmax"), "300");
}

TEST_F(Effects, RunWithTheStrengthAndTheLimitsOfThePanel) {
    Produce("135");
    session_.tools.EffectStrength[0] = 0;
    session_.tools.EffectStrength[1] = 6;
    Click("optZView");
    ShowTab("Effects");
    Keys("sldZMin", {Qt::Key_PageUp, Qt::Key_PageUp});
    clsTerrain expected = session_.document.CurrentTerrain;
    RecordingHost host;
    QBFilter::RiverBed riverBed;
    QBFilter::ApplyEffect(1, expected, 6, {.extent = expected.XPoints(), .zMin = 8192 - 32768},
                          {session_.tools.elevator, riverBed, {}}, host);
    const auto before = Heights();
    Click("cmdStartEffects");
    EXPECT_EQ(Heights(), AllCells(expected));
    EXPECT_NE(Heights(), before);
    EXPECT_TRUE(Find<QWidget>("Picture1")->isVisible());
    EXPECT_FALSE(session_.TerrainBusy);

    session_.tools.EffectStrength[1] = 0;
    Click("cmdStartEffects");
    EXPECT_EQ(Heights(), AllCells(expected)) << "too weak to smooth";
}

TEST_F(Effects, TakeTheSeedOfTheGeneratorForTheRiverBed) {
    Picture bed(1025, 1025);
    for (int y = 0; y < 1025; ++y)
        for (int x = 0; x < 1025; ++x)
            bed.Row(y)[x] = qRgb(0, x % 251, y % 61);
    bed.Save(folder_ / "bed.png");
    std::filesystem::rename(folder_ / "bed.png", folder_ / "erode0.flt");
    Produce("314159");
    ShowTab("Effects");
    Click(riverErosion);
    clsTerrain expected = session_.document.CurrentTerrain;
    RecordingHost host;
    QBFilter::RiverBed riverBed{folder_.Path(), "", "314"};
    QBFilter::ApplyEffect(5, expected, 1, {.extent = expected.XPoints()},
                          {session_.tools.elevator, riverBed, {}}, host);
    Click("cmdStartEffects");
    EXPECT_TRUE(Heights() == AllCells(expected));
}

TEST_F(Panels, TickTheSizeThatFitsAndNoOther) {
    GlobalPanel panel(*window_);
    const auto ticked = [&] {
        QStringList names;
        for (const auto* option : panel.findChildren<QRadioButton*>())
            if (option->isChecked())
                names += option->objectName();
        return names;
    };
    panel.TickSize(512);
    EXPECT_EQ(ticked(), QStringList("optTerSize2"));
    EXPECT_EQ(session_.tools.chosenSize, 512);
    panel.TickSize(300);
    EXPECT_EQ(ticked(), QStringList());
    EXPECT_EQ(session_.tools.chosenSize, std::nullopt);
    panel.show();
    for (const char* name : {"optTerSize4", "optTerSize0"})
        QTest::mouseClick(panel.findChild<QRadioButton*>(name), Qt::LeftButton);
    EXPECT_EQ(ticked(), QStringList("optTerSize0"));
    EXPECT_EQ(session_.tools.chosenSize, 128);
}

TEST_F(Panels, ShowTheHeaderOfTheTerrain) {
    ShowTab("Global");
    clsTerrain& terrain = session_.document.CurrentTerrain;
    terrain.ScaleT(250.5F);
    terrain.CRAD(1737.6F);
    terrain.CRVM(1);
    host_->ActualScreen();
    EXPECT_EQ(Text("txtMetersPoint"), "100.");
    EXPECT_EQ(Text("txtTerSizeMeters"), "64128");
    EXPECT_EQ(Text("txtPlanetRadius"), "1738");
    EXPECT_TRUE(IsTicked("chkCurved"));
    // A file can hold a scale that is no number; the window must live on.
    terrain.ScaleT(std::numeric_limits<float>::quiet_NaN());
    host_->ActualScreen();
    EXPECT_EQ(Text("txtMinTerrain"), "?");
    EXPECT_EQ(Text("txtZMin"), "?");
}

TEST_F(Panels, HandTheUsersChoicesToTheTerrain) {
    ShowTab("Global");
    Click("chkCurved");
    Click("chkFixHeight");
    host_->ActualScreen();
    EXPECT_EQ(session_.document.CurrentTerrain.CRVM(), 1);
    EXPECT_TRUE(IsTicked("chkCurved"));
    EXPECT_TRUE(session_.document.CurrentTerrain.FixHeight());
}

}  // namespace
}  // namespace quillbrand
