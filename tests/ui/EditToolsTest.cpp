#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTabWidget>
#include <QToolBar>
#include <QWheelEvent>

#include "editor/Palette.h"
#include "tests/support/Grids.h"
#include "tests/ui/WindowFixture.h"
#include "ui/plan/PictureBox.h"

// Working by hand on the plan view, with the mouse on the picture and the controls around it.
namespace quillbrand {
namespace {

constexpr QRgb white = 0xFFFFFFFF;

class EditingByHand : public WindowFixture {
  protected:
    void SetUp() override {
        WindowFixture::SetUp();
        ASSERT_TRUE(StartWindow());
        Produce("4711");
        ShowTab("Edit");
        picture_ = Find<PictureBox>("Picture1");
    }

    /// A bed for "Erode".
    void WriteRiverBed() {
        Picture bed(256, 256);
        for (int y = 0; y < 256; ++y)
            for (int x = 0; x < 256; ++x)
                bed.Row(y)[x] = qRgb(x, x, y);
        bed.Save(folder_ / "bed.png");
        std::filesystem::rename(folder_ / "bed.png", folder_ / "erode0.flt");
    }

    void Choose(const char* strip, const char* key) {
        auto* tools = Find<QToolBar>(strip);
        ClickWhenReady(tools->widgetForAction(tools->findChild<QAction*>(key)));
    }
    void ChooseTool(const char* key) { Choose("Toolbar2", key); }

    /// The pen with a shape, its height from the slider and not from the terrain.
    void ChoosePen(const char* shape) {
        ChooseTool("Pen");
        Choose("ToolBarPen", shape);
        Find<QCheckBox>("chkPick")->setChecked(false);
    }

    void Send(QEvent::Type type, QPointF units, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers keys = Qt::NoModifier) {
        const QPointF place = picture_->InPixels(units);
        QMouseEvent event(type, place, picture_->mapToGlobal(place), button, held, keys);
        QApplication::sendEvent(picture_, &event);
    }
    void Press(QPointF units, Qt::MouseButton button = Qt::LeftButton) {
        ASSERT_TRUE(QTest::qWaitFor([this] { return picture_->isEnabled(); }));
        Send(QEvent::MouseButtonPress, units, button, button);
    }
    void Drag(QPointF units, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        Send(QEvent::MouseMove, units, Qt::NoButton, Qt::LeftButton, keys);
    }
    void Hover(QPointF units) { Send(QEvent::MouseMove, units, Qt::NoButton, Qt::NoButton); }
    void Release(QPointF units, Qt::MouseButton button = Qt::LeftButton) {
        Send(QEvent::MouseButtonRelease, units, button, Qt::NoButton);
    }
    void Click(QPointF units, Qt::MouseButton button = Qt::LeftButton) {
        Press(units, button);
        Release(units, button);
    }
    void DragFrame(QPointF from, QPointF to) {
        Press(from);
        Drag(to);
        Release(to);
    }

    clsTerrain& Terrain() { return session_.document.CurrentTerrain; }
    QMenu* Menu() { return Find<QMenu>("mnuTerrain"); }
    std::string LastStep() { return session_.document.history.NameOfUndo(); }
    QString Text(const char* name) { return Find<QLabel>(name)->text(); }
    bool IsTicked(const char* name) { return Find<QCheckBox>(name)->isChecked(); }
    bool IsEnabled(const char* name) { return Find<QWidget>(name)->isEnabled(); }
    int Value(const char* name) { return Find<QSlider>(name)->value(); }
    QString ChosenTool() {
        for (const QAction* action : Find<QToolBar>("Toolbar2")->actions())
            if (action->isChecked())
                return action->objectName();
        return {};
    }

    /// The rectangle of points, in "left top right bottom", whose heights differ from `before`.
    std::string Changed(const std::vector<Height>& before) {
        QRect changed;
        const int side = Terrain().Size() + 3;
        const auto now = Heights();
        for (int i = 0; i < side * side; ++i)
            if (now[std::size_t(i)] != before[std::size_t(i)])
                changed |= QRect(i % side, i / side, 1, 1);
        if (changed.isEmpty())
            return "nothing";
        return std::to_string(changed.left()) + " " + std::to_string(changed.top()) + " " +
               std::to_string(changed.right()) + " " + std::to_string(changed.bottom());
    }

    /// Whether the picture on the screen shows something above the raster.
    bool ShowsOverlay() {
        return picture_->grab().toImage().convertToFormat(QImage::Format_RGB32) !=
               picture_->Shown();
    }

    PictureBox* picture_ = nullptr;
};

TEST_F(EditingByHand, PressAndMoveOfThePenWriteAndMarkByItsShape) {
    ChoosePen("PenSquare");
    Find<QSlider>("Slider1")->setValue(3);
    Find<QSlider>("Slider2")->setValue(60000);
    const QRgb mark = PaletteStrip(0)[60000 / 256];
    auto before = Heights();
    Press({40, 50});
    EXPECT_EQ(Changed(before), "35 45 43 53") << "the first print is one point wider";
    EXPECT_EQ(Terrain().GetPoint(39, 49), 60000 - 32768);
    EXPECT_EQ(picture_->Raster().Row(50)[40], mark);
    EXPECT_NE(picture_->Raster().Row(50)[47], mark);
    before = Heights();
    Drag({70, 50});
    EXPECT_EQ(Changed(before), "66 46 72 52") << "nothing is put between two places";
    Release({70, 50});
    EXPECT_EQ(LastStep(), "Pen");
    EXPECT_EQ(picture_->Raster().Row(50)[70], mark) << "marks stay";

    Choose("ToolBarPen", "PenRound");
    before = Heights();
    Click({100, 30});
    EXPECT_EQ(Changed(before), "95 25 103 33");
    EXPECT_EQ(Terrain().GetPoint(95, 25), before[std::size_t(25 * (Terrain().Size() + 3) + 95)]);
    Choose("ToolBarPen", "PenNoise");
    before = Heights();
    Click({20, 100});
    EXPECT_NE(Heights(), before);
}

TEST_F(EditingByHand, AStrokeOfThePenIsOneStepFromPressToRelease) {
    ChoosePen("PenSquare");
    Find<QSlider>("Slider2")->setValue(65000);
    const auto before = Heights();
    Press({40, 50});
    Drag({50, 60});
    Drag({-30, 300});
    Find<QToolBar>("Toolbar1")->findChild<QAction*>("Undo")->trigger();
    EXPECT_NE(Heights(), before) << "no command starts within a stroke";
    Release({-30, 300});
    EXPECT_NE(Heights(), before);
    ClickTool("Undo");
    EXPECT_EQ(Heights(), before);
    ClickTool("Redo");
    EXPECT_NE(Heights(), before);
}

TEST_F(EditingByHand, AStrokeThatLosesItsReleaseEndsAllTheSame) {
    ChoosePen("PenSquare");
    Press({40, 50});
    EXPECT_TRUE(host_->CommandRuns());
    Hover({60, 60});
    EXPECT_FALSE(host_->CommandRuns());
    EXPECT_EQ(LastStep(), "Pen");
    Press({40, 80});
    Find<QTabWidget>("SSTab1")->setCurrentIndex(0);
    EXPECT_FALSE(host_->CommandRuns());
    ChoosePen("PenSquare");
    Press({40, 90});
    picture_->hide();
    EXPECT_FALSE(host_->CommandRuns());
}

TEST_F(EditingByHand, ThePenWritesNothingWithShiftRightButtonOrWithoutAShape) {
    session_.document.TerrainEmpty = true;
    ChooseTool("Pen");
    EXPECT_FALSE(IsTicked("chkPick")) << "there is nothing to pick from";
    auto before = Heights();
    Click({40, 50});
    EXPECT_EQ(Heights(), before) << "no shape was chosen";
    EXPECT_FALSE(session_.document.TerrainEmpty);

    ChoosePen("PenSquare");
    Press({40, 50}, Qt::RightButton);
    Release({40, 50}, Qt::RightButton);
    EXPECT_EQ(Heights(), before);
    Press({40, 50});
    before = Heights();
    Drag({60, 60}, Qt::ShiftModifier);
    EXPECT_EQ(Heights(), before);
    EXPECT_EQ(Text("sBarPanel4"), "X=60") << "the status bar follows all the same";
    Drag({60, 60}, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_NE(Heights(), before);
    Release({60, 60});

    before = Heights();
    Press({500, -500});
    Release({500, -500});
    EXPECT_EQ(Heights(), before);
}

TEST_F(EditingByHand, ThePenTilesTheTerrainWithSnap) {
    ChoosePen("PenSquare");
    Find<QSlider>("Slider2")->setValue(65534);
    Find<QCheckBox>("chkEditSnap")->setChecked(true);
    const auto before = Heights();
    Click({37.4, 59.9});
    EXPECT_EQ(Changed(before), "19 39 41 61") << "around 31, 51";
}

TEST_F(EditingByHand, PickTakesOverTheHeightUnderTheMouseOnce) {
    Edit([](clsTerrain& terrain) { terrain.SetPoint(40, 50, -12768); });
    ChooseTool("Pen");
    EXPECT_TRUE(IsTicked("chkPick"));
    Click({40, 50});
    EXPECT_EQ(Value("Slider2"), 20000);
    EXPECT_FALSE(IsTicked("chkPick"));
    const double metres =
        30.0 * (-12768.0 * Terrain().HeightScale() / 65536) + 30.0 * Terrain().BaseHeight();
    EXPECT_NEAR(Text("lblPickHeigh").toDouble(), metres, 0.11);
    EXPECT_TRUE(Text("lblPickHeigh").endsWith("0")) << "to a tenth, in two places";
    EXPECT_NEAR(Text("lblHeight").toDouble(), metres, 0.011);
    EXPECT_EQ(Find<PictureBox>("Picture2")->grab().toImage().pixel(5, 5),
              PaletteStrip(0)[20000 / 256]);
    Edit([](clsTerrain& terrain) { terrain.SetPoint(60, 60, 500); });
    Click({60, 60});
    EXPECT_EQ(Value("Slider2"), 20000) << "it picks once";
    Find<QCheckBox>("chkPick")->setChecked(true);
    Click({61, 61});
    EXPECT_NE(Value("Slider2"), 20000);
}

TEST_F(EditingByHand, SlidersShowTheHeightAndTheSwatchAndEndPicking) {
    Find<QCheckBox>("chkPick")->setChecked(true);
    Find<QSlider>("Slider2")->setValue(65534);
    EXPECT_FALSE(IsTicked("chkPick"));
    const auto swatch = [this] {
        return Find<PictureBox>("Picture2")->grab().toImage().pixel(5, 5);
    };
    EXPECT_EQ(swatch(), PaletteStrip(0)[255]);
    Find<QCheckBox>("chkPick")->setChecked(true);
    Find<QSlider>("sliderFineHeight")->setValue(-1000);
    EXPECT_FALSE(IsTicked("chkPick"));
    EXPECT_EQ(swatch(), PaletteStrip(0)[64534 / 256]);
    const double span = Find<QLineEdit>("txtMaxTerrain")->text().toDouble() -
                        Find<QLineEdit>("txtMinTerrain")->text().toDouble();
    EXPECT_NEAR(Text("lblFineHeight").toDouble(), -span * 1000 / 65535, 0.0006);
    Find<QCheckBox>("chkPick")->setChecked(true);
    WindowFixture::Click("cmdResetFineHeight");
    EXPECT_EQ(Value("sliderFineHeight"), 0);
    EXPECT_EQ(Text("lblFineHeight"), "0.000");
    Find<QCheckBox>("chkPick")->setChecked(true);
    WindowFixture::Click("cmdResetFineHeight");
    EXPECT_FALSE(IsTicked("chkPick")) << "its handler runs even when nothing moves";
    Find<QSlider>("Slider1")->setValue(17);
    EXPECT_EQ(Text("Label39"), "17");
}

TEST_F(EditingByHand, ColorWhitePaintsWhiteAtTheTopOfTheRange) {
    ChoosePen("PenSquare");
    Find<QCheckBox>("chkPick")->setChecked(true);
    WindowFixture::Click("Command1");
    EXPECT_EQ(Value("Slider2"), 65534);
    EXPECT_FALSE(IsTicked("chkPick"));
    Click({50, 50});
    EXPECT_EQ(picture_->Raster().Row(50)[50], white);
    EXPECT_EQ(Terrain().GetPoint(49, 49), 65534 - 32768);
}

TEST_F(EditingByHand, EachToolSetsTheStatesOfTheControlsAroundIt) {
    ChoosePen("PenSquare");
    EXPECT_TRUE(IsEnabled("ToolBarPen"));
    EXPECT_TRUE(IsEnabled("Command1"));
    Find<QCheckBox>("chkPick")->setChecked(true);
    for (const char* key : {"up", "down", "Erode", "Noise", "Smooth"}) {
        ChooseTool(key);
        EXPECT_EQ(ChosenTool(), key);
        EXPECT_TRUE(IsTicked("chkPick")) << key << " leaves it";
        EXPECT_FALSE(IsEnabled("ToolBarPen")) << key;
        EXPECT_FALSE(IsEnabled("Command1")) << key;
    }
    const int height = Value("Slider2");
    ChooseTool("Noise");
    Press({20, 20});
    EXPECT_EQ(Value("Slider2"), height) << "the tick alone picks nothing";
    Release({20, 20});
    for (const char* key : {"Select", "Pfeil"}) {
        WaitUntilReady();
        Find<QCheckBox>("chkPick")->setChecked(true);
        ChooseTool(key);
        EXPECT_FALSE(IsTicked("chkPick")) << key;
    }
}

TEST_F(EditingByHand, EveryModeEndsWithATabAButtonOfTheToolBarAndTheZView) {
    const auto expectCross = [this](const char* after) {
        EXPECT_EQ(ChosenTool(), "Pfeil") << after;
        EXPECT_FALSE(IsTicked("chkPick")) << after;
        EXPECT_FALSE(IsEnabled("ToolBarPen")) << after;
        EXPECT_FALSE(IsEnabled("Command1")) << after;
        const auto before = Heights();
        Click({30, 30});
        EXPECT_EQ(Heights(), before) << after;
    };
    ChoosePen("PenSquare");
    ShowTab("Global");
    expectCross("a change of tabs");
    ChoosePen("PenSquare");
    ClickTool("Zoom in");
    expectCross("a button");
    ChoosePen("PenSquare");
    WindowFixture::Click("optZView");
    EXPECT_EQ(ChosenTool(), "Pfeil");
    ChooseTool("Pen");
    EXPECT_TRUE(picture_->isVisible()) << "a tool leads back to the plan view";
    WindowFixture::Click("optZView");
    WindowFixture::Click("OptXYView");
    expectCross("the Z-view");
}

TEST_F(EditingByHand, AStrokeOfAToolWorksAtTheReleaseAndIsOneStep) {
    WriteRiverBed();
    Find<QSlider>("Slider1")->setValue(5);
    for (const char* key : {"up", "down", "Noise", "Smooth", "Erode"}) {
        session_.document.TerrainSaved = true;
        Find<QSlider>("sldDepthEffects")->setValue(key == std::string("Erode") ? 10 : 30);
        ChooseTool(key);
        const auto before = Heights();
        Press({60, 60});
        Drag({64, 64});
        EXPECT_EQ(Heights(), before) << key;
        EXPECT_EQ(picture_->Raster().Row(64)[64], qRgb(255, 20, 20)) << key;
        Release({64, 64});
        EXPECT_NE(Heights(), before) << key;
        EXPECT_EQ(LastStep(), key);
        EXPECT_FALSE(session_.document.TerrainSaved) << key;
        EXPECT_FALSE(session_.TerrainBusy);
        EXPECT_EQ(picture_->Raster().Point(64, 64),
                  PaletteTable(HeightToPaletteIndex(Terrain().GetPoint(64, 64)), 0))
            << "the picture is a new one";
        ClickTool("Undo");
        EXPECT_EQ(Heights(), before) << key;
    }
}

TEST_F(EditingByHand, AStrokeThatFailsLeavesHeightsAndNoTrail) {
    Edit([](clsTerrain& terrain) { terrain.SetPoint(60, 60, 2147483600); });
    Find<QSlider>("sldDepthEffects")->setValue(30);
    ChooseTool("up");
    const auto before = Heights();
    Press({60, 60});
    Drag({62, 60});
    ModalUser user({quillbrand::Press("OK")});
    Release({62, 60});
    ASSERT_EQ(user.seen.size(), 1);
    EXPECT_TRUE(user.seen[0].startsWith("up: ")) << user.seen[0].toStdString();
    EXPECT_EQ(Heights(), before);
    EXPECT_NE(picture_->Raster().Row(60)[62], qRgb(255, 20, 20));
    EXPECT_FALSE(session_.TerrainBusy);
}

TEST_F(EditingByHand, APressOfAnyButtonForgetsTheStroke) {
    Find<QSlider>("sldDepthEffects")->setValue(30);
    Find<QSlider>("Slider1")->setValue(2);
    ChooseTool("up");
    const auto before = Heights();
    Press({20, 20});
    Drag({25, 20});
    Press({60, 60}, Qt::RightButton);
    Release({60, 60}, Qt::RightButton);
    Drag({100, 100});
    Release({100, 100});
    EXPECT_EQ(Changed(before), "99 99 101 101") << "only what came after it";
}

TEST_F(EditingByHand, TheOutlineFollowsTheMouseInSizeAndForm) {
    EXPECT_FALSE(ShowsOverlay());
    Hover({60, 60});
    EXPECT_FALSE(ShowsOverlay()) << "the arrow has none";
    ChoosePen("PenSquare");
    const auto shownAt = [this](QPointF units) {
        const QPoint place = picture_->InPixels(units).toPoint();
        const QImage with = picture_->grab().toImage();
        const QImage bare = picture_->Shown();
        for (int i = -2; i <= 2; ++i)
            for (int j = -2; j <= 2; ++j)
                if (with.pixel(place.x() + i, place.y() + j) !=
                    bare.pixel(place.x() + i, place.y() + j))
                    return true;
        return false;
    };
    Hover({60, 60});
    EXPECT_TRUE(shownAt({49, 49})) << "the corner of the square, one point beyond the size";
    EXPECT_TRUE(shownAt({71, 60}));
    EXPECT_FALSE(shownAt({60, 60}));
    ChooseTool("down");
    Hover({60, 60});
    EXPECT_FALSE(shownAt({49, 49})) << "a circle";
    EXPECT_TRUE(shownAt({49, 60}));
    Press({60, 60});
    EXPECT_FALSE(ShowsOverlay());
    Release({60, 60});
    WaitUntilReady();
    Hover({60, 60});
    EXPECT_TRUE(ShowsOverlay());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(picture_, &leave);
    EXPECT_FALSE(ShowsOverlay());
}

TEST_F(EditingByHand, BracketsAndTheWheelChangeTheSizeOfPensAndTools) {
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    const auto wheel = [this](int angle, Qt::KeyboardModifiers keys) {
        QWheelEvent event(QPointF(50, 50), picture_->mapToGlobal(QPointF(50, 50)), {},
                          QPoint(0, angle), Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(picture_, &event);
    };
    QTest::keyClick(window_.get(), Qt::Key_BracketRight);
    wheel(120, Qt::ControlModifier);
    EXPECT_EQ(Value("Slider1"), 10) << "the arrow has no size";
    for (const char* key : {"Pen", "Smooth"}) {
        ChooseTool(key);
        Find<QSlider>("Slider1")->setValue(10);
        QTest::keyClick(window_.get(), Qt::Key_BracketRight);
        EXPECT_EQ(Value("Slider1"), 11) << key;
        QTest::keyClick(window_.get(), Qt::Key_BracketLeft);
        QTest::keyClick(window_.get(), Qt::Key_BracketLeft);
        EXPECT_EQ(Value("Slider1"), 9) << key;
        wheel(240, Qt::ControlModifier);
        EXPECT_EQ(Value("Slider1"), 11) << key;
        wheel(-60, Qt::ControlModifier);
        wheel(-60, Qt::ControlModifier);
        EXPECT_EQ(Value("Slider1"), 10) << "two halves of a notch";
        wheel(120, Qt::NoModifier);
        EXPECT_EQ(Value("Slider1"), 10);
    }
}

TEST_F(EditingByHand, TheMenuOfTheSelectionHasItsEntriesInOrder) {
    QStringList entries;
    for (const QAction* action : Menu()->actions())
        entries += action->isSeparator() ? "-"
                                         : action->objectName() + "=" + action->text() +
                                               (action->isEnabled() ? "" : " (disabled)");
    EXPECT_EQ(entries.join("; ").toStdString(),
              "mnuTerFill=fill; mnuTerRaise=lift Terrain; mnuTerLower=lower Terrain; -; "
              "mnuTerTrim=trim terrain (disabled); -; mnuTerFlipRight=Flip right (disabled); "
              "mnuTerFlipLeft=Flip left (disabled); mnuTerReflectVert=Reflect vertically; "
              "mnuTerReflectHorizont=Reflect horizontally; -; "
              "mnuTerMakeObject=Make Object (disabled); -; mnuTerExit=Exit menu");
}

TEST_F(EditingByHand, ASelectionGoesFromDragToMenuToFrame) {
    ChooseTool("Select");
    const auto before = Heights();
    Press({30, 40});
    Drag({50, 60});
    EXPECT_TRUE(ShowsOverlay());
    EXPECT_FALSE(Menu()->isVisible());
    Release({50, 60});
    EXPECT_TRUE(Menu()->isVisible());
    EXPECT_EQ(Menu()->pos(), picture_->mapToGlobal(picture_->InPixels({50, 60})).toPoint());
    EXPECT_TRUE(ShowsOverlay());
    QTest::keyClick(Menu(), Qt::Key_Escape);
    EXPECT_FALSE(Menu()->isVisible());
    EXPECT_TRUE(ShowsOverlay()) << "a menu that is left leaves the frame";
    Click({35, 45});
    EXPECT_FALSE(ShowsOverlay()) << "a press only removes it";
    EXPECT_FALSE(Menu()->isVisible());
    Press({10, 10});
    Drag({20, 20});
    EXPECT_TRUE(ShowsOverlay());
    ChooseTool("Pfeil");
    EXPECT_FALSE(ShowsOverlay());
    EXPECT_EQ(Heights(), before);
}

TEST_F(EditingByHand, CommandsOfTheSelectionWorkOnWhatIsFramed) {
    struct Case {
        const char* name;
        const char* caption;
        std::string changed;
    };
    Find<QSlider>("Slider2")->setValue(65000);
    Find<QSlider>("sliderFineHeight")->setValue(500);
    for (const Case& test : {Case{"mnuTerFill", "fill", "30 40 50 60"},
                             {"mnuTerRaise", "lift Terrain", "30 40 50 60"},
                             {"mnuTerLower", "lower Terrain", "30 40 50 60"},
                             {"mnuTerReflectVert", "Reflect vertically", "30 40 50 60"},
                             {"mnuTerReflectHorizont", "Reflect horizontally", "30 40 50 60"}}) {
        ChooseTool("Select");
        const auto before = Heights();
        DragFrame({50, 60}, {30, 40});
        Menu()->findChild<QAction*>(test.name)->trigger();
        Menu()->close();
        EXPECT_EQ(Changed(before), test.changed) << test.name;
        EXPECT_EQ(LastStep(), test.caption);
        EXPECT_FALSE(ShowsOverlay()) << test.name;
        EXPECT_FALSE(session_.TerrainBusy);
        EXPECT_EQ(picture_->Raster().Point(40, 50),
                  PaletteTable(HeightToPaletteIndex(Terrain().GetPoint(40, 50)), 0));
        if (test.name == std::string("mnuTerFill")) {
            EXPECT_EQ(Terrain().GetPoint(40, 50), 65000 - 32768) << "without the fine tuning";
        }
        ClickTool("Undo");
        EXPECT_EQ(Heights(), before) << test.name;
    }
}

TEST_F(EditingByHand, TheMenuOfTheSelectionIsWorkedByKeys) {
    ChooseTool("Select");
    const auto before = Heights();
    DragFrame({30, 40}, {50, 60});
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(Menu(), key);
    EXPECT_EQ(LastStep(), "lift Terrain");
    EXPECT_NE(Heights(), before);
    WaitUntilReady();
    const auto lifted = Heights();
    DragFrame({30, 40}, {50, 60});
    QTest::keyClick(Menu(), Qt::Key_Up);
    QTest::keyClick(Menu(), Qt::Key_Return);
    EXPECT_FALSE(ShowsOverlay()) << "\"Exit menu\" removes the frame";
    EXPECT_EQ(Heights(), lifted);
}

TEST_F(EditingByHand, AFrameBeyondThePictureIsCutOrRefused) {
    Find<QSlider>("Slider2")->setValue(65000);
    ChooseTool("Select");
    const auto before = Heights();
    DragFrame({100, 100}, {400, 400});
    Menu()->findChild<QAction*>("mnuTerFill")->trigger();
    Menu()->close();
    EXPECT_EQ(Changed(before), "100 100 258 258");
    WaitUntilReady();
    const auto filled = Heights();
    DragFrame({100, 100}, {-40, 50});
    ModalUser user({quillbrand::Press("OK")});
    Menu()->findChild<QAction*>("mnuTerReflectVert")->trigger();
    Menu()->close();
    ASSERT_EQ(user.seen.size(), 1);
    EXPECT_TRUE(user.seen[0].startsWith("Reflect vertically: ")) << user.seen[0].toStdString();
    EXPECT_EQ(Heights(), filled);
    EXPECT_FALSE(ShowsOverlay());
}

TEST_F(EditingByHand, ADoubleClickWithThePenRedrawsAndPrintsOnce) {
    ChoosePen("PenSquare");
    Find<QSlider>("Slider2")->setValue(65534);
    Click({50, 50});
    EXPECT_NE(picture_->Raster().Row(60)[60], PaletteStrip(0)[127]);
    const std::size_t steps = session_.document.history.Entries().size();
    Send(QEvent::MouseButtonDblClick, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_FALSE(host_->CommandRuns());
    EXPECT_EQ(session_.document.history.Entries().size(), steps);
    for (int y = 0; y < 257; ++y)
        for (int x = 0; x < 257; ++x)
            ASSERT_EQ(picture_->Raster().Point(x, y),
                      PaletteTable(HeightToPaletteIndex(Terrain().GetPoint(x, y)), 0));
}

}  // namespace
}  // namespace quillbrand
