#include "ui/plan/EditTools.h"

#include <QEvent>
#include <QShortcut>
#include <utility>

#include "ui/panels/EditPanel.h"
#include "ui/plan/PictureBox.h"
#include "ui/plan/PlanView.h"
#include "ui/plan/ToolStrip.h"

namespace quillbrand {

EditTools::EditTools(Workplace& workplace, PlanView& view, ToolStrip& strip, EditPanel& panel)
    : workplace_(workplace),
      view_(view),
      strip_(strip),
      panel_(panel),
      pen_(workplace, view, panel.State()),
      brush_(workplace, view, panel.State()),
      select_(workplace, view, panel.State()),
      toolKey_(QLatin1String(ToolStrip::firstTool)) {
    connect(&strip_, &ToolStrip::Toolbar2_ButtonClick, this, &EditTools::Toolbar2_ButtonClick);
    connect(&strip_, &ToolStrip::ToolBarPen_ButtonClick, &panel_, &EditPanel::ChooseShape);
    connect(&panel_, &EditPanel::WhiteChosen, this, &EditTools::Command1_Click);
    connect(&panel_, &EditPanel::SizeChanged, this, &EditTools::ShowOutline);
    ConnectMouse();
    ConnectKeys(workplace_.Window());
}

void EditTools::ConnectMouse() {
    PictureBox* const Picture1 = &view_.Box();
    connect(Picture1, &PictureBox::MouseDown, this, &EditTools::Picture1_MouseDown);
    connect(Picture1, &PictureBox::MouseMove, this, &EditTools::Picture1_MouseMove);
    connect(Picture1, &PictureBox::MouseUp, this, &EditTools::Picture1_MouseUp);
    connect(Picture1, &PictureBox::MouseLeft, this, &EditTools::Picture1_MouseLeft);
    connect(Picture1, &PictureBox::WheelTurned, this, &EditTools::Picture1_WheelTurned);
    Picture1->installEventFilter(this);
}

void EditTools::ConnectKeys(QWidget* window) {
    const auto onKey = [this, window](const char* key, int steps) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(key)), window);
        connect(shortcut, &QShortcut::activated, this, [this, steps] { ChangeSize(steps); });
    };
    onKey("[", -1);
    onKey("]", 1);
}

/// A release that the picture will not see any more.
bool EditTools::eventFilter(QObject* watched, QEvent* event) {
    const bool isGone = event->type() == QEvent::Hide ||
                        event->type() == QEvent::WindowDeactivate ||
                        (event->type() == QEvent::EnabledChange && !view_.Box().isEnabled());
    if (isGone) {
        pen_.Interrupt();
        Picture1_MouseLeft();
    }
    return QObject::eventFilter(watched, event);
}

void EditTools::Use(PlanTool* tool) {
    if (tool_ != nullptr)
        tool_->Interrupt();
    tool_ = tool;
}

void EditTools::UseBrush(StrokeTool brush) {
    brush_.Choose(brush);
    Use(&brush_);
    panel_.ArmPick(false);
}

void EditTools::Toolbar2_ButtonClick(const QString& key) {
    if (workplace_.TheHost().CommandRuns()) {
        strip_.ShowTool(toolKey_);
        return;
    }
    workplace_.ShowPlanView();
    HideOutline();
    panel_.PutPenDown();
    strip_.EnablePens(false);
    toolKey_ = key;
    TakeUp(key);
}

void EditTools::TakeUp(const QString& key) {
    if (key == QLatin1String("Pfeil")) {
        Use(nullptr);
        panel_.TickPick(false);
        select_.RemoveFrame();
    } else if (key == QLatin1String("Pen")) {
        Use(&pen_);
        if (!workplace_.TheSession().document.TerrainEmpty)
            panel_.TickPick(true);
        panel_.TakePen();
        strip_.EnablePens(true);
    } else if (key == QLatin1String("up")) {
        UseBrush(StrokeTool::Up);
    } else if (key == QLatin1String("down")) {
        UseBrush(StrokeTool::Down);
    } else if (key == QLatin1String("Erode")) {
        UseBrush(StrokeTool::Erode);
    } else if (key == QLatin1String("Noise")) {
        UseBrush(StrokeTool::Noise);
    } else if (key == QLatin1String("Smooth")) {
        UseBrush(StrokeTool::Smooth);
    } else if (key == QLatin1String("Select")) {
        Use(&select_);
        panel_.TickPick(false);
    }
}

void EditTools::Command1_Click() {
    HideOutline();
    panel_.PaintWhite();
}

void EditTools::DeactEdit() {
    Use(nullptr);
    panel_.TickPick(false);
    toolKey_ = QLatin1String(ToolStrip::firstTool);
    strip_.ShowTool(toolKey_);
    panel_.PutPenDown();
    HideOutline();
    strip_.EnablePens(false);
    select_.RemoveFrame();
}

void EditTools::Picture1_MouseDown(const PlanMouse& mouse) {
    // A stroke that is still open has lost its release.
    if (mouse.button == Qt::LeftButton)
        pen_.Interrupt();
    // The second press of a double click only redraws.
    if (mouse.isDouble || workplace_.TheHost().CommandRuns())
        return;
    hover_.reset();
    HideOutline();
    if (mouse.button == Qt::LeftButton && panel_.State().PickActive)
        panel_.Pick(PointOf(mouse));
    if (tool_ != nullptr)
        tool_->Press(mouse);
}

void EditTools::Picture1_MouseMove(const PlanMouse& mouse) {
    if (tool_ != nullptr)
        tool_->Move(mouse);
    hover_.reset();
    if (mouse.held == Qt::NoButton)
        hover_ = mouse;
    ShowOutline();
}

void EditTools::Picture1_MouseUp(const PlanMouse& mouse) {
    if (tool_ != nullptr)
        tool_->Release(mouse);
    if (!workplace_.TheHost().CommandRuns())
        workplace_.TheHost().ActualScreen();
}

void EditTools::Picture1_MouseLeft() {
    hover_.reset();
    HideOutline();
}

/// One size more or less for each notch of the wheel.
void EditTools::Picture1_WheelTurned(const PlanMouse& mouse, int angle) {
    constexpr int notch = 120;
    if (!mouse.keys.testFlag(Qt::ControlModifier))
        return;
    wheelRest_ += angle;
    ChangeSize(wheelRest_ / notch);
    wheelRest_ %= notch;
}

void EditTools::ChangeSize(int steps) {
    const bool hasSize = tool_ == &pen_ || tool_ == &brush_;
    if (hasSize && !workplace_.TheHost().CommandRuns())
        panel_.ChangeSize(steps);
}

void EditTools::ShowOutline() {
    if (hover_ && tool_ != nullptr && !workplace_.TheHost().CommandRuns())
        view_.ShowOutline(tool_->Outline(*hover_));
    else
        HideOutline();
}

void EditTools::HideOutline() {
    view_.ShowOutline({});
}

}  // namespace quillbrand
