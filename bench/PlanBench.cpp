#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QSlider>

#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "tests/ui/LonePlan.h"
#include "ui/panels/EditPanel.h"
#include "ui/plan/EditTools.h"
#include "ui/plan/PictureBox.h"
#include "ui/plan/ToolStrip.h"

// What the plan view costs while the mouse moves, in milliseconds, from the change to the painted
// window: for 2049 points in 717 pixels, and for 129 points at 400 %.
namespace quillbrand {
namespace {

/// Mean and longest of the turns beside the figure aimed at.
template <typename Run>
void MeasureInMilliseconds(benchmark::State& state, double target, Run run) {
    double longest = 0;
    for ([[maybe_unused]] auto turn : state) {
        const auto start = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(spent.count());
        longest = std::max(longest, spent.count());
    }
    state.counters["longest"] = longest * 1000;
    state.counters["target"] = target;
}

/// A ring as large as the outline of the largest pen.
class Ring : public Overlay {
  public:
    QRectF Bounds() const override { return {centre.x() - 61, centre.y() - 61, 122, 122}; }
    void Paint(QPainter& painter) const override {
        painter.setPen(QPen(Qt::white, 0));
        painter.drawEllipse(Bounds());
    }

    QPointF centre;
};

/// A plan view on the screen, wholly painted, and a place that wanders over it.
class ShownPlan {
  public:
    static constexpr double limit = 716;

    explicit ShownPlan(int points) : plan(limit) {
        plan.Terrain() = RollingTerrain(32767);
        if (points != benchPoints)
            plan.Terrain().Init(points);
        plan.ResizePicture(4);
        plan.RebuildPicture();
        plan.view.resize(740, 740);
        plan.view.show();
        QApplication::processEvents();
    }

    QPointF NextPlace() {
        const int size = plan.Terrain().Size();
        turn_ = (turn_ + 7) % size;
        return {double(turn_), double(size - turn_)};
    }

    static void Paint() { QApplication::sendPostedEvents(); }

  private:
    int turn_ = 0;

  public:
    LonePlan plan;
};

void PlanMoveOverlay(benchmark::State& state) {
    ShownPlan shown(static_cast<int>(state.range(0)));
    PictureBox& box = shown.plan.view.Box();
    Ring ring;
    box.Add(ring);
    MeasureInMilliseconds(state, 2, [&] {
        ring.centre = shown.NextPlace();
        box.OverlayChanged(ring);
        ShownPlan::Paint();
    });
    box.Remove(ring);
}
QB_BENCHMARK(PlanMoveOverlay)->Arg(2049)->Arg(129);

void PlanChangeRaster(benchmark::State& state) {
    ShownPlan shown(static_cast<int>(state.range(0)));
    PictureBox& box = shown.plan.view.Box();
    MeasureInMilliseconds(state, 3, [&] {
        const QPoint place = shown.NextPlace().toPoint();
        const QRect part(place.x() - 30, place.y() - 30, 60, 60);
        const QRect inside = part & box.Raster().Image().rect();
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            std::fill_n(box.EditRaster().Row(y) + inside.left(), inside.width(),
                        static_cast<QRgb>(place.x()));
        box.RasterChanged(part);
        ShownPlan::Paint();
    });
}
QB_BENCHMARK(PlanChangeRaster)->Arg(2049)->Arg(129);

/// A plan view with the tools around it, worked by mouse events.
class EditedPlan : public ShownPlan {
  public:
    explicit EditedPlan(int points) : ShownPlan(points) {
        plan.session.document.history.Mode(HistoryMode::Steps);
        panel_.Form_Load();
        panel_.findChild<QSlider*>("Slider1")->setValue(60);
        emit strip_.Toolbar2_ButtonClick("Pen");
        emit strip_.ToolBarPen_ButtonClick(PenShape::Round);
        panel_.findChild<QCheckBox*>("chkPick")->setChecked(false);
    }

    void Send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        PictureBox& box = plan.view.Box();
        const QPointF place = box.InPixels(NextPlace());
        QMouseEvent event(type, place, box.mapToGlobal(place), button, held, Qt::NoModifier);
        QApplication::sendEvent(&box, &event);
        Paint();
    }

  private:
    ToolStrip strip_;
    EditPanel panel_{plan};
    EditTools tools_{plan, plan.view, strip_, panel_};
};

/// A move of the largest pen: grid, mark and painting.
void PlanMovePen(benchmark::State& state) {
    EditedPlan edited(static_cast<int>(state.range(0)));
    edited.Send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    MeasureInMilliseconds(state, 8,
                          [&] { edited.Send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton); });
    edited.Send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
}
QB_BENCHMARK(PlanMovePen)->Arg(2049)->Arg(129);

/// A move of the mouse that only the pen's outline follows.
void PlanMoveOutline(benchmark::State& state) {
    EditedPlan edited(static_cast<int>(state.range(0)));
    MeasureInMilliseconds(state, 2,
                          [&] { edited.Send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton); });
}
QB_BENCHMARK(PlanMoveOutline)->Arg(2049)->Arg(129);

/// Press and release, which open and close a step of the history.
void PlanPenPrint(benchmark::State& state) {
    EditedPlan edited(static_cast<int>(state.range(0)));
    MeasureInMilliseconds(state, 30, [&] {
        edited.Send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        edited.Send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    });
}
QB_BENCHMARK(PlanPenPrint)->Arg(2049);

/// All of the raster scaled and painted anew, as after a command.
void PlanShowNewRaster(benchmark::State& state) {
    ShownPlan shown(static_cast<int>(state.range(0)));
    MeasureInMilliseconds(state, 30, [&] {
        shown.plan.view.Box().RasterChanged();
        ShownPlan::Paint();
    });
}
QB_BENCHMARK(PlanShowNewRaster)->Arg(2049);

}  // namespace
}  // namespace quillbrand
