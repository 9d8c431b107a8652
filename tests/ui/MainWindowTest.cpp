#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QToolBar>

#include "base/Fault.h"
#include "editor/Palette.h"
#include "terrain/TerReader.h"
#include "tests/support/Grids.h"
#include "tests/ui/WindowFixture.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {
namespace {

class MainWindow : public WindowFixture {
  protected:
    bool ToolIsEnabled(const char* key) {
        return Find<QToolBar>("Toolbar1")->findChild<QAction*>(QString::fromUtf8(key))->isEnabled();
    }
};

TEST_F(MainWindow, EndsWithAMessageWhenThereAreNoSets) {
    std::filesystem::remove_all(folder_ / "PS");
    ModalUser user({Press("OK")});
    EXPECT_FALSE(StartWindow());
    EXPECT_EQ(user.seen, QStringList("ERROR: Perlinsets not found !! Please install Perlinsets in "
                                     "Quillbrandsubfolder \\PS !"));
}

TEST_F(MainWindow, ProducesWhatTheBatchProgramProduces) {
    ASSERT_TRUE(StartWindow());
    Find<QSlider>("sldIteration")->setValue(4);
    Find<QSlider>("sldStructure")->setValue(1);
    Produce("654321");
    EXPECT_FALSE(session_.document.TerrainEmpty);

    QProcess batch;
    batch.setWorkingDirectory(QString::fromStdString(folder_.Path().string()));
    batch.start(QB_BATCH_PROGRAM,
                {"--home", ".", "generate size=128 iterations=4 structure=1 seed=654321 resize=0",
                 "save file=batch.ter"});
    ASSERT_TRUE(batch.waitForFinished());
    ASSERT_EQ(batch.exitCode(), 0) << batch.readAllStandardError().toStdString();
    clsTerrain expected;
    StoreTer(ParseTer(Contents(folder_ / "batch.ter"), "batch.ter"), expected);
    // The batch terrain had 257 points; the window's has too: only the first 129 are produced.
    EXPECT_TRUE(TextOf(session_.document.CurrentTerrain) == TextOf(expected));

    const Picture& shown = Find<PictureBox>("Picture1")->Raster();
    EXPECT_EQ(
        shown.Point(40, 60),
        PaletteTable(HeightToPaletteIndex(session_.document.CurrentTerrain.GetPoint(40, 60)), 0));
}

TEST_F(MainWindow, LeavesTheTerrainAloneInAPreview) {
    ASSERT_TRUE(StartWindow());
    Produce("111");
    const auto before = Heights();
    ModalUser user({[](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "Preview");
        const auto* picture = modal->findChild<PictureBox*>();
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(picture->Raster().Width(), 129);
        QTest::keyClick(modal, Qt::Key_Escape);
    }});
    Click("cmdPreview");
    EXPECT_TRUE(user.IsDone());
    EXPECT_EQ(Heights(), before);
    EXPECT_FALSE(session_.TerrainBusy);
}

TEST_F(MainWindow, AsksAtTheExitAndFollowsEachAnswer) {
    ASSERT_TRUE(StartWindow());
    Produce("222");
    const QString question = "EXIT: The terrain is not saved!  Do you want to save?";
    {
        ModalUser user({Press("Cancel")});
        EXPECT_FALSE(window_->close());
        EXPECT_EQ(user.seen, QStringList(question));
    }
    {
        ModalUser user({Press("Yes"), Press("Cancel")});
        EXPECT_FALSE(window_->close());
    }
    {
        ModalUser user(
            {Press("Yes"), Press("TerraGen-File [.TER]"), ChoosePath(folder_ / "x.ter")});
        EXPECT_TRUE(window_->close());
        EXPECT_TRUE(std::filesystem::exists(folder_ / "x.ter"));
    }
    session_.document.TerrainSaved = false;
    window_->show();
    ModalUser user({Press("No")});
    EXPECT_TRUE(window_->close());
}

TEST_F(MainWindow, ComesBackToABackupAndRemovesItAtAnExitWithoutAQuestion) {
    ASSERT_TRUE(StartWindow());
    Produce("333");
    const auto before = Heights();
    EXPECT_FALSE(ToolIsEnabled("Restore"));
    ClickTool("Backup");
    EXPECT_TRUE(std::filesystem::exists(folder_ / "Backup.qbt"));
    {
        ModalUser user({Press("Yes")});
        ClickTool("Löschen");
    }
    EXPECT_NE(Heights(), before);
    ClickTool("Restore");
    EXPECT_EQ(Heights(), before);
    {
        ModalUser user({Press("TerraGen-File [.TER]"), ChoosePath(folder_ / "x.ter")});
        ClickTool("Speichern");
    }
    EXPECT_EQ(session_.document.CurrentFile, (folder_ / "x.ter").string());
    EXPECT_EQ(window_->windowTitle(),
              QString::fromStdString("Quillbrand  [" + (folder_ / "x.ter").string() + "]"));
    EXPECT_TRUE(window_->close());
    EXPECT_FALSE(std::filesystem::exists(folder_ / "Backup.qbt"));
}

TEST_F(MainWindow, StaysAsItWasWhenAFileCannotBeReadOrWritten) {
    ASSERT_TRUE(StartWindow());
    Produce("444");
    const auto before = Heights();
    WriteText(folder_ / "short.ter", "TERRAGENTERRAIN SIZE");
    {
        ModalUser user({ChoosePath(folder_ / "short.ter"), Press("OK")});
        ClickTool("Öffnen");
        ASSERT_EQ(user.seen.size(), 1);
        EXPECT_TRUE(user.seen[0].contains("short.ter is cut short")) << user.seen[0].toStdString();
    }
    EXPECT_EQ(Heights(), before);
    EXPECT_EQ(session_.document.CurrentFile, "noname");
    std::filesystem::create_directory(folder_ / "folder.ter");
    session_.document.CurrentFile = (folder_ / "folder.ter").string();
    {
        ModalUser user({Press("OK")});
        ClickTool("Speichern");
        ASSERT_EQ(user.seen.size(), 1);
        EXPECT_TRUE(user.seen[0].contains("Is a directory")) << user.seen[0].toStdString();
    }
    EXPECT_EQ(Heights(), before);
    EXPECT_FALSE(session_.document.TerrainSaved);
    EXPECT_FALSE(session_.TerrainBusy);
    WaitUntilReady();
}

TEST_F(MainWindow, OpensAFileNamedAtTheStartAndOneThatIsDropped) {
    ASSERT_TRUE(StartWindow());
    Produce("555");
    {
        ModalUser user({Press("TerraGen-File [.TER]"), ChoosePath(folder_ / "x.ter")});
        ClickTool("SpeichernAls");
    }
    const auto saved = TextOf(session_.document.CurrentTerrain);
    window_.reset();
    session_ = Session();
    ASSERT_TRUE(StartWindow((folder_ / "x.ter").string()));
    EXPECT_TRUE(TextOf(session_.document.CurrentTerrain) == saved);
    EXPECT_FALSE(session_.document.TerrainEmpty);
    EXPECT_EQ(session_.document.CurrentFile, (folder_ / "x.ter").string());

    WaitUntilReady();
    Edit([&](clsTerrain& terrain) { terrain.Fill(0); });
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString((folder_ / "x.ter").string()))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    EXPECT_TRUE(QTest::qWaitFor([&] { return TextOf(session_.document.CurrentTerrain) == saved; }));
}

TEST_F(MainWindow, BeatsItsHeartByTheBusyFlag) {
    ASSERT_TRUE(StartWindow());
    session_.TerrainBusy = true;
    session_.document.CurrentTerrain.pProgress = 137;
    Find<QLabel>("InfoText")->setText("work");
    auto* tools = Find<QToolBar>("Toolbar1");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !tools->isEnabled(); }));
    for (const char* name : {"SSTab1", "Picture1", "PicZ"})
        EXPECT_FALSE(Find<QWidget>(name)->isEnabled()) << name;
    EXPECT_EQ(Find<QProgressBar>("PB")->value(), 100);
    EXPECT_EQ(Find<QLabel>("InfoText")->text(), "work");
    session_.TerrainBusy = false;
    ASSERT_TRUE(QTest::qWaitFor([&] { return tools->isEnabled(); }));
    EXPECT_TRUE(Find<QWidget>("SSTab1")->isEnabled());
    EXPECT_EQ(Find<QLabel>("InfoText")->text(), "Ready");
    EXPECT_EQ(Find<QProgressBar>("PB")->value(), 0);
}

TEST_F(MainWindow, KeepsOutOfARunningCommand) {
    ASSERT_TRUE(StartWindow());
    Produce("121");
    Edit([&](clsTerrain& terrain) { terrain.SetPoint(3, 3, 99999); });
    auto* start = Find<QAbstractButton>("cmdGenerator");
    start->setFocus();
    const auto before = Heights();
    {
        const CommandScope command(*host_);
        // The flag is clear in the middle of some commands; what counts is that one runs.
        host_->Busy(false);
        Find<QAbstractButton>("optZView")->click();
        EXPECT_FALSE(Find<QWidget>("PicZ")->isVisible());
        EXPECT_FALSE(window_->close());
        QTest::keyClick(window_.get(), Qt::Key_F5);
        Find<QAction>("Löschen")->trigger();
        start->click();
        EXPECT_TRUE(Heights() == before);
        EXPECT_TRUE(start->isEnabled());
        QTest::qWait(30);
        host_->Yield();
        EXPECT_FALSE(start->isEnabled());
        QTest::qWait(250);
        EXPECT_FALSE(start->isEnabled()) << "although the flag is clear";
    }
    EXPECT_TRUE(start->isEnabled());
    EXPECT_EQ(window_->focusWidget(), start);
}

TEST_F(MainWindow, StartsNothingInsideARunThatLetsEventsThrough) {
    ASSERT_TRUE(StartWindow());
    ShowTab("Global");
    Click("optTerSize4");
    ShowTab("Generator");
    Find<QSlider>("sldIteration")->setValue(3);
    WriteText(folder_ / "dropped.ter", std::string(200, 'x'));
    QMimeData dragged;
    dragged.setUrls(
        {QUrl::fromLocalFile(QString::fromStdString((folder_ / "dropped.ter").string()))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    int pressedInside = 0;
    QTimer impatience;
    QObject::connect(&impatience, &QTimer::timeout, [&] {
        if (!host_->CommandRuns())
            return;
        ++pressedInside;
        for (auto* button : {"cmdGenerator", "cmdPreview", "CmdResize"})
            emit Find<QPushButton>(button)->clicked();
        Find<QAction>("Löschen")->trigger();
        EXPECT_EQ(session_.document.CurrentFile, "noname");
    });
    impatience.start(0);
    // Just before the command begins, so that it waits for its end.
    QApplication::sendEvent(window_.get(), &drop);
    emit Find<QPushButton>("cmdGenerator")->clicked();
    EXPECT_GT(pressedInside, 1);
    EXPECT_EQ(session_.document.history.Entries().size(), 1);
    EXPECT_EQ(session_.document.CurrentFile, "noname") << "the file waits";
    impatience.stop();
    EXPECT_TRUE(QTest::qWaitFor([&] { return session_.document.CurrentFile != "noname"; }));
}

TEST_F(MainWindow, TakesCommandsBackAndDoesThemAgain) {
    ASSERT_TRUE(StartWindow());
    const auto flat = Heights();
    EXPECT_FALSE(ToolIsEnabled("Undo"));
    Produce("8128");
    const auto produced = Heights();
    const QImage picture = Find<PictureBox>("Picture1")->Raster().Image();
    Click("chkClearTerrain");
    ShowTab("Effects");
    Click("optFilter2");
    Click("cmdStartEffects");
    const auto inverted = Heights();
    EXPECT_NE(inverted, produced);
    EXPECT_EQ(Find<QAction>("Undo")->toolTip(), "Undo: Invers");
    ClickTool("Undo");
    EXPECT_EQ(Heights(), produced);
    EXPECT_EQ(Find<PictureBox>("Picture1")->Raster().Image(), picture);
    EXPECT_EQ(Find<QAction>("Redo")->toolTip(), "Redo: Invers");
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    QTest::keyClick(window_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Heights(), flat);
    EXPECT_TRUE(session_.document.TerrainEmpty);
    EXPECT_FALSE(ToolIsEnabled("Undo"));
    EXPECT_FALSE(ToolIsEnabled("Speichern"));
    EXPECT_EQ(Find<PictureBox>("Picture1")->Raster().Width(), 257) << "as it was before";
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(window_.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Heights(), inverted);
    EXPECT_FALSE(ToolIsEnabled("Redo"));
}

TEST_F(MainWindow, LivesWithAScaleThatLeavesEveryRange) {
    ASSERT_TRUE(StartWindow());
    Produce("131");
    session_.document.CurrentTerrain.ScaleT(3e38f);
    host_->ActualScreen();
    auto* picture = Find<PictureBox>("Picture1");
    QTest::mouseMove(picture, picture->rect().center());
    EXPECT_EQ(Find<QLabel>("sBarPanel6")->text(), "?");
    Find<QAbstractButton>("chkRealViewZ")->setChecked(true);
    ModalUser user({});
    Click("optZView");
    Find<QSlider>("sldXView")->setValue(77);
    EXPECT_FALSE(session_.TerrainBusy);
}

TEST_F(MainWindow, ZoomsWithinItsLimits) {
    ASSERT_TRUE(StartWindow());
    Produce("777");
    ClickTool("Zoom100");
    EXPECT_EQ(session_.tools.ViewZoom, 1.0);
    EXPECT_EQ(Find<QLabel>("sBarPanel1")->text(), "256 x 256   Zoom =100.%");
    EXPECT_EQ(Find<PictureBox>("Picture1")->width(), 259);
    for (int i = 0; i < 4; ++i)
        ClickTool("Zoom out");
    EXPECT_EQ(session_.tools.ViewZoom, 0.25);
    for (int i = 0; i < 6; ++i)
        ClickTool("Zoom in");
    const auto* area = Find<QWidget>("PictureArea");
    EXPECT_GT(session_.tools.ViewZoom, 2.0);
    EXPECT_LE(Find<PictureBox>("Picture1")->width(), std::min(area->width(), area->height()));
}

TEST_F(MainWindow, ShowsSectionsAndSaysWhyNot) {
    ASSERT_TRUE(StartWindow());
    {
        ModalUser user({Press("OK")});
        Click("optZView");
        EXPECT_EQ(user.seen, QStringList("Z-View: Terrain empty !"));
    }
    Produce("888");
    Click("optZView");
    EXPECT_TRUE(Find<QWidget>("PicZ")->isVisible());
    const QImage first = Find<PictureBox>("frmZView")->Raster().Image();
    EXPECT_EQ(Find<QLabel>("lblViewFrom")->text(), "Y");
    Find<QSlider>("SldYView")->setValue(100);
    EXPECT_EQ(Find<QLabel>("lblViewFrom")->text(), "X");
    EXPECT_NE(Find<PictureBox>("frmZView")->Raster().Image(), first);
    Click("OptXYView");
    EXPECT_FALSE(Find<QWidget>("PicZ")->isVisible());

    Edit([&](clsTerrain& terrain) { terrain.Fill(5); });
    ModalUser user({Press("OK")});
    Click("optZView");
    EXPECT_EQ(user.seen, QStringList("Z-view: Terrain flat"));
    EXPECT_TRUE(Find<QWidget>("Picture1")->isVisible());
}

TEST_F(MainWindow, StoresAndLoadsTheGeneratorsSettings) {
    ASSERT_TRUE(StartWindow());
    ShowTab("Generator");
    Find<QSlider>("sldIteration")->setValue(9);
    Find<QSlider>("Slider3")->setValue(6);
    Find<QCheckBox>("chkHighResolution")->setChecked(true);
    auto* seed = Find<QLineEdit>("txtRandom");
    seed->clear();
    QTest::keyClicks(seed, "98765");
    {
        ModalUser user({ChoosePath(folder_ / "a.par")});
        Click("cmdGeneratorSaveSetting");
    }
    Find<QSlider>("sldIteration")->setValue(1);
    Find<QSlider>("Slider3")->setValue(0);
    Find<QCheckBox>("chkHighResolution")->setChecked(false);
    seed->clear();
    QTest::keyClicks(seed, "1");
    ModalUser user({ChoosePath(folder_ / "a.par")});
    Click("cmdGenLoadSetting");
    EXPECT_EQ(Find<QSlider>("sldIteration")->value(), 9);
    EXPECT_EQ(Find<QSlider>("Slider3")->value(), 6);
    EXPECT_TRUE(Find<QCheckBox>("chkHighResolution")->isChecked());
    EXPECT_EQ(seed->text(), "98765");
    EXPECT_EQ(session_.tools.RandomSeedValue, 98765);
}

}  // namespace
}  // namespace quillbrand
