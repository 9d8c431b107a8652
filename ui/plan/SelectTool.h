#pragma once

#include <QMenu>
#include <QPointer>
#include <functional>
#include <optional>

#include "editor/Frame.h"
#include "ui/Workplace.h"
#include "ui/plan/PlanTool.h"

namespace quillbrand {

class PlanView;
struct EditState;

/// The selection: a drag draws a frame, and at its end the menu `mnuTerrain` opens, whose commands
/// work on what is framed. A menu that is left without a choice leaves the frame; the next press
/// only removes it.
class SelectTool : public PlanTool {
  public:
    SelectTool(Workplace& workplace, PlanView& view, const EditState& state);

    void Press(const PlanMouse& mouse) override;
    void Move(const PlanMouse& mouse) override;
    void Release(const PlanMouse& mouse) override;

    /// Removes the frame, if there is one (`endDrawingbox`).
    void RemoveFrame();

  private:
    QAction* AddCommand(const char* name, const char* caption, std::function<void()> command);
    QAction* AddReserved(const char* name, const char* caption);
    void BuildMenu();
    void RunOnArea(const QString& caption, const std::function<void()>& command);
    void Show();
    Document& TheDocument();

    Workplace& workplace_;
    PlanView& view_;
    const EditState& state_;
    QPointer<QMenu> mnuTerrain_;  ///< owned by the window
    std::optional<Frame> frame_;  ///< while `FrameDrawn`
};

}  // namespace quillbrand
