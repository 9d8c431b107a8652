#pragma once

#include "editor/StrokeMap.h"
#include "ui/Workplace.h"
#include "ui/plan/PlanTool.h"

namespace quillbrand {

class PlanView;
struct EditState;

/// The tools that work on a whole stroke: while the mouse moves they leave a red trail, and at the
/// release they do their work.
class BrushTool : public PlanTool {
  public:
    BrushTool(Workplace& workplace, PlanView& view, const EditState& state)
        : workplace_(workplace), view_(view), state_(state) {}

    /// Which one it is (`ToolCode`).
    void Choose(StrokeTool tool) { ToolCode_ = tool; }

    void Press(const PlanMouse& mouse) override;
    void Move(const PlanMouse& mouse) override;
    void Release(const PlanMouse& mouse) override;
    void Interrupt() override;
    std::optional<PenOutline> Outline(const PlanMouse& mouse) const override;

  private:
    void RunStroke();

    Workplace& workplace_;
    PlanView& view_;
    const EditState& state_;
    StrokeTool ToolCode_ = StrokeTool::Up;
    StrokeMap StrokeMap_;
};

}  // namespace quillbrand
