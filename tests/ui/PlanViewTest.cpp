#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "editor/Palette.h"
#include "tests/ui/LonePlan.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {
namespace {

class PlanViews : public ::testing::Test {
  protected:
    void SetUp() override { plan_.ResizePicture(1); }

    QRgb ColourAt(int x, int y) { return plan_.view.Raster().Row(y)[x]; }

    LonePlan plan_{500};
    LoneHost& host_ = plan_.host;
    PictureBox& box_ = plan_.view.Box();
};

bool IsAll(const Picture& raster, QRgb colour) {
    for (int y = 0; y < raster.Height(); ++y)
        if (std::count(raster.Row(y), raster.Row(y) + raster.Width(), colour) != raster.Width())
            return false;
    return true;
}

TEST_F(PlanViews, ShowTheOldRasterUntilTheNewOneIsWhole) {
    const auto& strip = PaletteStrip(0);
    for (const int points : {257, 513}) {
        plan_.Terrain().Fill(-32768);
        plan_.RebuildPicture();
        plan_.Terrain().Init(points);
        plan_.Terrain().Fill(32767);
        plan_.ResizePicture(1);
        int yields = 0;
        host_.onYield = [&] {
            ++yields;
            ASSERT_TRUE(IsAll(plan_.view.Raster(), strip[0])) << points;
        };
        plan_.RebuildPicture();
        host_.onYield = [] {};
        EXPECT_GT(yields, points);
        EXPECT_EQ(plan_.view.Raster().Width(), points);
        EXPECT_TRUE(IsAll(plan_.view.Raster(), strip[PaletteMax]));
    }
}

TEST_F(PlanViews, WipeMarksWhenTheyAreDoubleClickedButNotWithinACommand) {
    plan_.RebuildPicture();
    const QRgb plain = ColourAt(5, 3);
    const auto mark = [&] {
        box_.EditRaster().Row(3)[5] = qRgb(1, 2, 3);
        box_.RasterChanged(QRect(5, 3, 1, 1));
    };
    mark();
    {
        const CommandScope scope(host_);
        QTest::mouseDClick(&box_, Qt::LeftButton);
        EXPECT_EQ(ColourAt(5, 3), qRgb(1, 2, 3));
    }
    QTest::mouseDClick(&box_, Qt::RightButton);
    EXPECT_EQ(ColourAt(5, 3), qRgb(1, 2, 3));
    QTest::mouseDClick(&box_, Qt::LeftButton);
    EXPECT_EQ(ColourAt(5, 3), plain);
    EXPECT_EQ(host_.statuses.back(), "Ready");
    EXPECT_FALSE(plan_.session.TerrainBusy);
}

TEST_F(PlanViews, PrintWhatStandsOnTheScreenWithoutOverlays) {
    class Everywhere : public Overlay {
        QRectF Bounds() const override { return {0, 0, 999, 999}; }
        void Paint(QPainter& painter) const override { painter.fillRect(Bounds(), Qt::green); }
    };
    plan_.RebuildPicture();
    const QImage bare = box_.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(plan_.view.PrintPicture(), bare);
    const Everywhere green;
    box_.Add(green);
    EXPECT_NE(box_.grab().toImage().convertToFormat(QImage::Format_RGB32), bare);
    EXPECT_EQ(plan_.view.PrintPicture(), bare);
    box_.Remove(green);
}

TEST_F(PlanViews, TellThePointUnderTheMouseWithAndWithoutAButton) {
    QStringList texts(6);
    QObject::connect(&plan_.view, &PlanView::PanelText, [&](int panel, const std::string& text) {
        texts[panel - 1] = QString::fromStdString(text);
    });
    plan_.ResizePicture(0);
    EXPECT_EQ(texts[0], "256 x 256   Zoom =100.%");
    plan_.view.show();
    plan_.Terrain().SetPoint(13, 17, 1000);
    const double pixels = box_.width() / 256.0;
    for (const Qt::MouseButton button : {Qt::NoButton, Qt::LeftButton, Qt::RightButton}) {
        texts.fill("");
        QMouseEvent move(QEvent::MouseMove, QPointF(13.2, 17.3) * pixels, QPointF(), Qt::NoButton,
                         button, Qt::NoModifier);
        QApplication::sendEvent(&box_, &move);
        EXPECT_EQ(texts.mid(1).join("|"), "5.46 TU|1000 Pixel|X=13|Y=239|163.733 m") << button;
    }
}

}  // namespace
}  // namespace quillbrand
