#pragma once

#include <optional>

#include "shell/EditingCommands.h"
#include "ui/Workplace.h"
#include "ui/plan/PlanTool.h"

namespace quillbrand {

class PlanView;
struct EditState;

/// The pen: writes its height into the grid while the mouse moves, and marks on the raster what it
/// did. From press to release it is the command that runs.
class PenTool : public PlanTool {
  public:
    PenTool(Workplace& workplace, PlanView& view, const EditState& state)
        : workplace_(workplace), view_(view), state_(state) {}

    void Press(const PlanMouse& mouse) override;
    void Move(const PlanMouse& mouse) override;
    void Release(const PlanMouse& mouse) override;
    void Interrupt() override;
    std::optional<PenOutline> Outline(const PlanMouse& mouse) const override;

  private:
    bool Try(const std::function<void()>& work);
    void Draw(const PenMark& mark);

    Workplace& workplace_;
    PlanView& view_;
    const EditState& state_;
    RandomSource markChance_;
    std::optional<CommandScope> command_;
    std::optional<PenStroke> stroke_;
};

}  // namespace quillbrand
