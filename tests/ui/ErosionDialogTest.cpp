#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "effects/QBFilter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/dlgFltErosion.h"

namespace quillbrand {
namespace {

void ClickIn(QWidget* dialog, const char* name) {
    QTest::mouseClick(dialog->findChild<QWidget*>(name), Qt::LeftButton);
}

void ExpectValues(QWidget* dialog, const std::array<int, 4>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        const QString name = QStringLiteral("Slider%1").arg(i + 1);
        EXPECT_EQ(dialog->findChild<QSlider*>(name)->value(), values[i]) << i;
        EXPECT_EQ(dialog->findChild<QLabel*>("lbl" + name)->text(), QString::number(values[i]));
    }
}

class Erosion : public WindowFixture {
  protected:
    void SetUp() override {
        WindowFixture::SetUp();
        ASSERT_TRUE(StartWindow());
    }

    void ChooseNaturalErosion() {
        Produce("777");
        ShowTab("Effects");
        Click("optFilter11");
        // As if the heights did not fill their range.
        Edit([&](clsTerrain& terrain) { terrain.SetPoint(50, 50, 40000); });
    }

    /// What the effect makes of the terrain with these settings, and with the window's chance.
    std::vector<Height> Expected(const std::optional<ErosionSettings>& settings) {
        clsTerrain terrain = session_.document.CurrentTerrain;
        RecordingHost host;
        host.chance = chance_;
        QBFilter::RiverBed riverBed;
        QBFilter::ApplyEffect(12, terrain, 1, {.extent = terrain.XPoints()},
                              {session_.tools.elevator, riverBed, [&] { return settings; }}, host);
        return AllCells(terrain);
    }
};

TEST_F(Erosion, OnlyScalesWhenTheDialogIsCancelled) {
    ChooseNaturalErosion();
    const auto before = Heights();
    const auto expected = Expected(std::nullopt);
    ModalUser user({[](QWidget* modal) {
        ClickIn(modal, "Slider1");
        PressEscape()(modal);
    }});
    Click("cmdStartEffects");
    EXPECT_TRUE(Heights() == expected);
    EXPECT_FALSE(Heights() == before);
    EXPECT_FALSE(session_.TerrainBusy);
}

TEST_F(Erosion, RunsWithTheSlidersWhileInputStaysOut) {
    ChooseNaturalErosion();
    const auto expected = Expected(ErosionSettings{1000, 9, 10, 3});
    ModalUser user({[&](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "Erosion Setting");
        EXPECT_TRUE(session_.TerrainBusy);
        QTest::keyClick(modal->findChild<QWidget*>("Slider1"), Qt::Key_Home);
        QTest::keyClick(modal->findChild<QWidget*>("Slider3"), Qt::Key_End);
        ClickIn(modal, "OKButton");
    }});
    Click("cmdStartEffects");
    EXPECT_TRUE(user.IsDone());
    EXPECT_TRUE(Heights() == expected);
    EXPECT_FALSE(session_.TerrainBusy);

    for (const std::array<int, 4>& values : {std::array{1000, 9, 10, 3}, {10000, 9, 4, 3}}) {
        ModalUser again({[&](QWidget* modal) {
            ExpectValues(modal, values);
            PressEscape()(modal);
        }});
        Click("cmdStartEffects");
    }
}

TEST_F(Erosion, StepsAndKeepsItsSettingsInAFile) {
    dlgFltErosion dialog(*window_);
    dialog.show();
    const auto key = [&](const char* name, Qt::Key which) {
        QTest::keyClick(dialog.findChild<QWidget*>(name), which);
    };
    for (const char* name : {"Slider1", "Slider2", "Slider3", "Slider4"})
        key(name, Qt::Key_PageUp);
    key("Slider1", Qt::Key_Right);
    ExpectValues(&dialog, {11100, 12, 7, 4});
    {
        ModalUser user({ChoosePath(folder_ / "mine"), PressEscape()});
        ClickIn(&dialog, "Command1");
        key("Slider2", Qt::Key_Home);
        ClickIn(&dialog, "Command2");
        ExpectValues(&dialog, {11100, 1, 7, 4});
    }
    ModalUser user({[&](QWidget* modal) {
                        EXPECT_EQ(modal->windowTitle(), "Load Setting");
                        ChoosePath(folder_ / "mine.par")(modal);
                    },
                    ChoosePath(folder_ / "mine.par")});
    ClickIn(&dialog, "Command2");
    ExpectValues(&dialog, {11100, 12, 7, 4});
    WriteText(folder_ / "mine.par", "[Erosion]\nDropwith=99\n");
    ClickIn(&dialog, "Command2");
    ExpectValues(&dialog, {1000, 20, 1, 4});
}

}  // namespace
}  // namespace quillbrand
