#pragma once

#include <QObject>

#include "ui/plan/BrushTool.h"
#include "ui/plan/PenTool.h"
#include "ui/plan/SelectTool.h"

namespace quillbrand {

class EditPanel;
class PlanView;
class ToolStrip;

/// The edit modes: which tool the mouse works with on the plan view, as the tool strip says, and
/// what pens, tools and selection have in common.
class EditTools : public QObject {
    Q_OBJECT

  public:
    /// All of these must outlive it.
    EditTools(Workplace& workplace, PlanView& view, ToolStrip& strip, EditPanel& panel);

    /// Ends every edit mode: the first tool, no pen, no picking, no frame.
    void DeactEdit();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ConnectMouse();
    void ConnectKeys(QWidget* window);
    void Toolbar2_ButtonClick(const QString& key);
    void TakeUp(const QString& key);
    void Command1_Click();
    void Use(PlanTool* tool);
    void UseBrush(StrokeTool brush);

    void Picture1_MouseDown(const PlanMouse& mouse);
    void Picture1_MouseMove(const PlanMouse& mouse);
    void Picture1_MouseUp(const PlanMouse& mouse);
    void Picture1_MouseLeft();
    void Picture1_WheelTurned(const PlanMouse& mouse, int angle);
    void ChangeSize(int steps);
    void ShowOutline();
    void HideOutline();

    Workplace& workplace_;
    PlanView& view_;
    ToolStrip& strip_;
    EditPanel& panel_;
    PenTool pen_;
    BrushTool brush_;
    SelectTool select_;
    PlanTool* tool_ = nullptr;  ///< nothing for "Cross"
    QString toolKey_;
    std::optional<PlanMouse> hover_;  ///< where the mouse is while no button is down
    int wheelRest_ = 0;               ///< turned, and less than a notch
};

}  // namespace quillbrand
