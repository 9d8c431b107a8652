#include "ui/plan/BrushTool.h"

#include "base/Canvas.h"
#include "editor/View.h"
#include "shell/EditingCommands.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/EditState.h"
#include "ui/plan/PlanView.h"

namespace quillbrand {

namespace {

constexpr Colour trailColour = ColourOf(255, 20, 20);

}  // namespace

void BrushTool::Press(const PlanMouse& mouse) {
    StrokeMap_.Clear(workplace_.TheSession().document.CurrentTerrain.XPoints());
    if (mouse.button == Qt::LeftButton)
        StrokeMap_.Press(PointOf(mouse));
}

void BrushTool::Move(const PlanMouse& mouse) {
    if (!mouse.held.testFlag(Qt::LeftButton) || workplace_.TheHost().CommandRuns())
        return;
    const MousePoint place = StrokeMap_.Move(PointOf(mouse));
    view_.Draw([&](Canvas& canvas) {
        canvas.DrawWidth(view_.WidthInRaster(TrailWidth(workplace_.TheSession().tools.ViewZoom)));
        return canvas.Point(place.x, place.y, trailColour);
    });
}

void BrushTool::Release(const PlanMouse& mouse) {
    if (mouse.button != Qt::LeftButton)
        return;
    WindowHost& host = workplace_.TheHost();
    const QString name = QString::fromStdString(NameOf(ToolCode_));
    const Ended ended = RunCommand(workplace_.Window(), host, name, [this] { RunStroke(); });
    // The heights are what they were, but the trail is still there.
    if (ended == Ended::WithFault)
        view_.Redraw();
}

void BrushTool::RunStroke() {
    Session& session = workplace_.TheSession();
    WindowHost& host = workplace_.TheHost();
    StartStroke(session.document, session.tools, session.settings,
                {.tool = ToolCode_, .size = state_.pen.size, .depth = state_.depth}, StrokeMap_,
                host);
    view_.Rebuild();
    host.Busy(false);
}

void BrushTool::Interrupt() {
    StrokeMap_.Clear(workplace_.TheSession().document.CurrentTerrain.XPoints());
}

std::optional<PenOutline> BrushTool::Outline(const PlanMouse& mouse) const {
    return OutlineOf(state_.pen, PointOf(mouse), ToolCode_);
}

}  // namespace quillbrand
