#pragma once

#include <optional>

#include "editor/PenMark.h"
#include "ui/plan/PlanMouse.h"

namespace quillbrand {

inline MousePoint PointOf(const PlanMouse& mouse) {
    return {static_cast<float>(mouse.place.x()), static_cast<float>(mouse.place.y())};
}

/// What the mouse does on the plan view. Events come as the mouse sends them, for every button:
/// nothing is put in between two of them.
class PlanTool {
  public:
    virtual ~PlanTool() = default;

    virtual void Press(const PlanMouse& /*mouse*/) {}
    virtual void Move(const PlanMouse& /*mouse*/) {}
    virtual void Release(const PlanMouse& /*mouse*/) {}

    /// A release that does not come: the window takes the mouse away, or another tool is chosen.
    virtual void Interrupt() {}

    /// What follows the mouse while no button is down; nothing for a tool without a size.
    virtual std::optional<PenOutline> Outline(const PlanMouse& /*mouse*/) const { return {}; }
};

}  // namespace quillbrand
