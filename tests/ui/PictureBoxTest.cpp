#include "ui/plan/PictureBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBackingStore>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>

#include "base/NumberText.h"
#include "tests/support/Grids.h"

// Run at several scales of the screen, see CMakeLists.txt.
namespace quillbrand {
namespace {

Picture RandomPicture(int width, int height, RandomSource& chance) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.Row(y)[x] =
                qRgb(AnyOf(0, 255, chance), AnyOf(0, 255, chance), AnyOf(0, 255, chance));
    return picture;
}

class Square : public Overlay {
  public:
    QRectF Bounds() const override { return place; }
    void Paint(QPainter& painter) const override { painter.fillRect(place, Qt::magenta); }

    QRectF place;
};

class PictureBoxes : public ::testing::Test {
  protected:
    void Show(int width, int height) {
        box_.setFixedSize(width, height);
        box_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&box_));
        QApplication::processEvents();
    }

    /// What has been painted up to now, as it stands on the screen.
    QImage Screen() {
        QApplication::processEvents();
        auto* painted = dynamic_cast<QImage*>(box_.backingStore()->paintDevice());
        const QSize pixels = (QSizeF(box_.size()) * box_.devicePixelRatioF()).toSize();
        return painted != nullptr ? painted->copy(QRect(QPoint(), pixels)) : QImage();
    }

    QColor ScreenAt(double x, double y) {
        const double ratio = box_.devicePixelRatioF();
        return Screen().pixelColor((QPointF(x, y) * ratio).toPoint());
    }

    void Send(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QMouseEvent event(type, place, box_.mapToGlobal(place), button, held, keys);
        QApplication::sendEvent(&box_, &event);
    }

    RandomSource chance_{3};
    PictureBox box_;
};

/// The mean of the points under a pixel, each by the part of it that is covered.
double MeanUnder(const Picture& picture, QRectF part, int shift) {
    double sum = 0;
    for (int y = int(part.top()); y < part.bottom(); ++y)
        for (int x = int(part.left()); x < part.right(); ++x) {
            const QRectF covered = QRectF(x, y, 1, 1) & part;
            sum += ((picture.Row(y)[x] >> shift) & 255) * covered.width() * covered.height();
        }
    return sum / (part.width() * part.height());
}

TEST_F(PictureBoxes, ShowTheMeanOfThePointsThatShareAPixel) {
    Show(90, 40);
    box_.SetRaster(RandomPicture(301, 257, chance_));
    const QImage shown = box_.Shown();
    ASSERT_EQ(shown.size(), (QSizeF(90, 40) * box_.devicePixelRatioF()).toSize());
    const double wide = 301.0 / shown.width();
    const double high = 257.0 / shown.height();
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            for (const int shift : {0, 8, 16})
                ASSERT_NEAR(
                    (shown.pixel(x, y) >> shift) & 255,
                    MeanUnder(box_.Raster(),
                              QRectF(x * wide, y * high, wide * 0.999999, high * 0.999999), shift),
                    2.5)
                    << x << " " << y;
    EXPECT_EQ(Screen(), shown);
}

TEST_F(PictureBoxes, ShowSharpPointsWhereOneSpansSeveralPixels) {
    Show(90, 70);
    box_.SetRaster(RandomPicture(13, 29, chance_));
    const QImage shown = Screen();
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            const int column = int((x + 0.5) * 13 / shown.width());
            const int row = int((y + 0.5) * 29 / shown.height());
            ASSERT_EQ(shown.pixel(x, y), box_.Raster().Row(row)[column]) << x << " " << y;
        }
}

TEST_F(PictureBoxes, ScaleAChangedPartAsIfAllWereScaled) {
    for (int round = 0; round < 60; ++round) {
        const int wide = AnyOf(1, 150, chance_);
        const int high = AnyOf(1, 150, chance_);
        Show(AnyOf(1, 120, chance_), AnyOf(1, 120, chance_));
        box_.SetRaster(RandomPicture(wide, high, chance_));
        Screen();
        for (int change = AnyOf(1, 3, chance_); change > 0; --change) {
            const QRect part(AnyOf(-5, wide - 1, chance_), AnyOf(-5, high - 1, chance_),
                             AnyOf(1, 40, chance_), AnyOf(1, 40, chance_));
            const Picture fresh = RandomPicture(wide, high, chance_);
            QPainter(&box_.EditRaster().Image()).drawImage(part, fresh.Image(), part);
            box_.RasterChanged(part);
        }
        const QImage partly = Screen();
        box_.RasterChanged();
        ASSERT_EQ(partly, Screen())
            << wide << " " << high << " in " << box_.width() << " " << box_.height();
        ASSERT_EQ(partly, box_.Shown());
    }
}

TEST_F(PictureBoxes, ShowOverlaysAboveARasterThatStaysAsItIs) {
    Show(200, 200);
    box_.SetUnits(100);
    box_.SetRaster(RandomPicture(101, 101, chance_));
    const QImage raster = box_.Raster().Image().copy();
    const QImage bare = Screen();
    Square square;
    square.place = QRectF(10, 10, 20, 20);
    box_.Add(square);
    EXPECT_EQ(ScreenAt(40, 40), QColor(Qt::magenta));
    EXPECT_NE(ScreenAt(70, 70), QColor(Qt::magenta));
    square.place = QRectF(90, 90, 300, 300);
    box_.OverlayChanged(square);
    EXPECT_EQ(ScreenAt(195, 195), QColor(Qt::magenta));
    EXPECT_NE(ScreenAt(40, 40), QColor(Qt::magenta)) << "it left its old place";
    EXPECT_EQ(box_.Raster().Image(), raster);
    EXPECT_EQ(box_.Shown(), bare);
    square.place = QRectF();
    box_.OverlayChanged(square);
    EXPECT_EQ(Screen(), bare);
    square.place = QRectF(0, 0, 50, 50);
    box_.OverlayChanged(square);
    EXPECT_EQ(ScreenAt(5, 5), QColor(Qt::magenta));
    box_.Remove(square);
    EXPECT_EQ(Screen(), bare);
}

TEST_F(PictureBoxes, ShowTheBackColourWithoutARaster) {
    Show(50, 50);
    box_.SetBackColor(Qt::cyan);
    EXPECT_EQ(ScreenAt(25, 25), QColor(Qt::cyan));
    EXPECT_EQ(box_.Shown(), Screen());
}

/// Sums up what a widget is asked to paint.
class PaintWatch : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
                pixels += part.width() * part.height();
        return false;
    }

    int pixels = 0;
};

TEST_F(PictureBoxes, PaintOnlyWhatChanged) {
    Show(300, 300);
    box_.SetUnits(300);
    box_.SetRaster(RandomPicture(600, 600, chance_));
    Square square;
    square.place = QRectF(10, 10, 20, 20);
    box_.Add(square);
    Screen();
    PaintWatch watch;
    box_.installEventFilter(&watch);
    square.place = QRectF(250, 250, 20, 20);
    box_.OverlayChanged(square);
    QApplication::processEvents();
    EXPECT_GE(watch.pixels, 2 * 20 * 20);
    EXPECT_LT(watch.pixels, 2 * 33 * 33);
    watch.pixels = 0;
    box_.RasterChanged(QRect(100, 100, 60, 60));
    QApplication::processEvents();
    EXPECT_GE(watch.pixels, 30 * 30);
    EXPECT_LT(watch.pixels, 35 * 35);
}

/// Writes down what the mouse did.
class MouseWatch {
  public:
    explicit MouseWatch(PictureBox& box) {
        const auto note = [this](const char* what) {
            return [this, what](const PlanMouse& mouse) { Note(what, mouse); };
        };
        QObject::connect(&box, &PictureBox::MouseDown, &context_, note("down"));
        QObject::connect(&box, &PictureBox::MouseMove, &context_, note("move"));
        QObject::connect(&box, &PictureBox::MouseUp, &context_, note("up"));
        QObject::connect(&box, &PictureBox::DoubleClicked, &context_, note("double"));
        QObject::connect(&box, &PictureBox::Clicked, &context_, [this] { ++clicks; });
        QObject::connect(&box, &PictureBox::WheelTurned, &context_,
                         [this](const PlanMouse& mouse, int turned) {
                             Note("wheel", mouse);
                             angle = turned;
                         });
    }

    std::string TakeSeen() { return std::exchange(seen_, {}); }

    PlanMouse last;
    int clicks = 0;
    int angle = 0;

  private:
    void Note(const char* what, const PlanMouse& mouse) {
        const auto number = [](double value) { return " " + Format(value, "0.#"); };
        seen_ += what + number(mouse.place.x()) + number(mouse.place.y()) + ";";
        last = mouse;
    }

    QObject context_;
    std::string seen_;
};

TEST_F(PictureBoxes, TellPlacesInUnitsWithinAndBeyondForEveryButton) {
    Show(200, 100);
    box_.SetUnits(50);
    MouseWatch watch(box_);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        Send(QEvent::MouseButtonPress, QPointF(20, 31), button, button, Qt::ShiftModifier);
        EXPECT_EQ(watch.TakeSeen(), "down 5. 15.5;");
        EXPECT_EQ(watch.last.button, button);
        EXPECT_EQ(watch.last.held, Qt::MouseButtons(button));
        EXPECT_EQ(watch.last.keys, Qt::ShiftModifier);
        Send(QEvent::MouseMove, QPointF(-30, 140), Qt::NoButton, button, Qt::ControlModifier);
        EXPECT_EQ(watch.TakeSeen(), "move -7.5 70.;");
        EXPECT_EQ(watch.last.button, Qt::NoButton);
        EXPECT_EQ(watch.last.held, Qt::MouseButtons(button));
        EXPECT_EQ(watch.last.keys, Qt::ControlModifier);
        Send(QEvent::MouseButtonRelease, QPointF(260, -10), button, Qt::NoButton);
        EXPECT_EQ(watch.TakeSeen(), "up 65. -5.;");
        EXPECT_EQ(watch.last.button, button);
        EXPECT_EQ(watch.last.held, Qt::MouseButtons(Qt::NoButton));
    }
    EXPECT_EQ(watch.clicks, 0) << "no release was above the box";
    QTest::mouseClick(&box_, Qt::RightButton);
    EXPECT_EQ(watch.clicks, 0);
    QTest::mouseClick(&box_, Qt::LeftButton);
    EXPECT_EQ(watch.clicks, 1);
}

TEST_F(PictureBoxes, TellDoubleClicksAndTheWheel) {
    Show(200, 100);
    MouseWatch watch(box_);
    Send(QEvent::MouseButtonDblClick, QPointF(20, 30), Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(watch.TakeSeen(), "down 20. 30.;double 20. 30.;");
    QWheelEvent wheel(QPointF(20, 30), box_.mapToGlobal(QPointF(20, 30)), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box_, &wheel);
    EXPECT_EQ(watch.TakeSeen(), "wheel 20. 30.;");
    EXPECT_EQ(watch.angle, -120);
    EXPECT_EQ(watch.last.keys, Qt::ControlModifier);
}

}  // namespace
}  // namespace quillbrand
