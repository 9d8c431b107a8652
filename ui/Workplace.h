#pragma once

#include <optional>
#include <string>

#include "base/Host.h"
#include "shell/Session.h"

class QWidget;

namespace quillbrand {

/// What the panels need of the window around them.
class Workplace {
  public:
    virtual ~Workplace() = default;

    virtual Session& TheSession() = 0;
    virtual Host& TheHost() = 0;
    virtual QWidget* Window() = 0;

    /// Back to the plan view (`OptXYView_Click`).
    virtual void ShowPlanView() = 0;

    /// `ResizePic` to the terrain's size; the zoom is multiplied by `factor`, 0 goes back to 1.
    virtual void ResizePicture(double factor = 1) = 0;

    /// `BuildHeightPicture` into the plan view.
    virtual void RebuildPicture() = 0;

    /// The size that is ticked among the terrain's grid points, or nothing.
    virtual std::optional<int> ChosenSize() = 0;

    /// The generator's seed as its text stands.
    virtual std::string SeedText() = 0;
};

}  // namespace quillbrand
