#include "ui/plan/PenTool.h"

#include "base/Canvas.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/EditState.h"
#include "ui/plan/PlanView.h"

namespace quillbrand {

/// Runs a part of the stroke. A fault ends the stroke and brings back what the press found.
bool PenTool::Try(const std::function<void()>& work) {
    const bool isWell =
        RunPart(workplace_.Window(), workplace_.TheHost(), QString::fromUtf8(PenStroke::name), [&] {
            try {
                work();
            } catch (...) {
                stroke_.reset();
                throw;
            }
        });
    if (!isWell) {
        command_.reset();
        view_.Redraw();
    }
    return isWell;
}

void PenTool::Press(const PlanMouse& mouse) {
    if (mouse.button != Qt::LeftButton)
        return;
    Interrupt();
    if (workplace_.TheHost().CommandRuns())
        return;
    Session& session = workplace_.TheSession();
    command_.emplace(workplace_.TheHost());
    const bool isWell = Try([&] {
        stroke_.emplace(session.document, workplace_.TheHost().Chance());
        stroke_->Press(state_.pen, PointOf(mouse));
    });
    if (isWell)
        Draw(MarkOfPress(state_.pen, PointOf(mouse), session.document.CurrentTerrain.Size(),
                         session.tools.ViewZoom, markChance_));
}

void PenTool::Move(const PlanMouse& mouse) {
    if (!stroke_)
        return;
    if (!mouse.held.testFlag(Qt::LeftButton)) {
        Interrupt();
        return;
    }
    constexpr auto shiftState = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    if ((mouse.keys & shiftState) == Qt::ShiftModifier)
        return;
    const Session& session = workplace_.TheSession();
    if (Try([&] { stroke_->Move(state_.pen, PointOf(mouse)); }))
        Draw(MarkOfMove(state_.pen, PointOf(mouse), session.document.CurrentTerrain.Size(),
                        session.tools.ViewZoom, markChance_));
}

void PenTool::Release(const PlanMouse& mouse) {
    if (mouse.button == Qt::LeftButton)
        Interrupt();
}

void PenTool::Interrupt() {
    if (!stroke_)
        return;
    Try([this] { stroke_->End(); });
    stroke_.reset();
    command_.reset();
}

std::optional<PenOutline> PenTool::Outline(const PlanMouse& mouse) const {
    return OutlineOf(state_.pen, PointOf(mouse), StrokeTool::None);
}

void PenTool::Draw(const PenMark& mark) {
    if (mark.shape == PenShape::None)
        return;
    view_.Draw([&](Canvas& canvas) {
        canvas.DrawWidth(view_.WidthInRaster(mark.drawWidth));
        canvas.Fill(FillStyle::Solid);
        canvas.FillColour(state_.swatch);
        canvas.ForeColour(state_.swatch);
        if (mark.shape == PenShape::Square)
            return canvas.FilledBox(mark.x - mark.reach, mark.y - mark.reach, mark.x + mark.reach,
                                    mark.y + mark.reach);
        if (mark.shape == PenShape::Round)
            return canvas.Circle(mark.x, mark.y, mark.reach);
        QRect drawn;
        for (const PenMark::Dot& dot : mark.dots)
            drawn |= canvas.Point(dot.x, dot.y);
        return drawn;
    });
}

}  // namespace quillbrand
