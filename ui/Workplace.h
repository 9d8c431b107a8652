#pragma once

#include <QString>
#include <optional>
#include <string>

#include "shell/Session.h"
#include "ui/WindowHost.h"

class QWidget;

namespace quillbrand {

/// What the panels need of the window around them.
class Workplace {
  public:
    virtual ~Workplace() = default;

    virtual Session& TheSession() = 0;
    virtual WindowHost& TheHost() = 0;
    virtual QWidget* Window() = 0;

    /// Back to the plan view (`OptXYView_Click`).
    virtual void ShowPlanView() = 0;

    /// `ResizePic` to the terrain's size; the zoom is multiplied by `factor`, 0 goes back to 1.
    virtual void ResizePicture(double factor = 1) = 0;

    /// `BuildHeightPicture` into the plan view.
    virtual void RebuildPicture() = 0;

    /// A line on what happened, which stays for a while in the status bar.
    virtual void Say(const QString& text) = 0;

    /// Shows the terrain's "fix Height" after it came from elsewhere than its check box.
    virtual void ShowFixHeight() = 0;
};

}  // namespace quillbrand
