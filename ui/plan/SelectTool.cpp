#include "ui/plan/SelectTool.h"

#include "shell/EditingCommands.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/EditState.h"
#include "ui/plan/PictureBox.h"
#include "ui/plan/PlanView.h"

namespace quillbrand {

SelectTool::SelectTool(Workplace& workplace, PlanView& view, const EditState& state)
    : workplace_(workplace), view_(view), state_(state), mnuTerrain_(new QMenu(&view)) {
    mnuTerrain_->setObjectName(QStringLiteral("mnuTerrain"));
    // A click beside the menu closes it and does no more: the frame stands until the next press.
    mnuTerrain_->setAttribute(Qt::WA_NoMouseReplay);
    BuildMenu();
}

void SelectTool::BuildMenu() {
    Host& host = workplace_.TheHost();
    AddCommand("mnuTerFill", "fill",
               [&] { FillArea(TheDocument(), *frame_, state_.pen.height, host); });
    AddCommand("mnuTerRaise", "lift Terrain",
               [&] { LiftArea(TheDocument(), *frame_, state_.depth, host); });
    AddCommand("mnuTerLower", "lower Terrain",
               [&] { LowerArea(TheDocument(), *frame_, state_.depth, host); });
    mnuTerrain_->addSeparator();
    AddReserved("mnuTerTrim", "trim terrain");
    mnuTerrain_->addSeparator();
    AddReserved("mnuTerFlipRight", "Flip right");
    AddReserved("mnuTerFlipLeft", "Flip left");
    AddCommand("mnuTerReflectVert", "Reflect vertically",
               [&] { ReflectArea(TheDocument(), *frame_, Reflection::Vertically, host); });
    AddCommand("mnuTerReflectHorizont", "Reflect horizontally",
               [&] { ReflectArea(TheDocument(), *frame_, Reflection::Horizontally, host); });
    mnuTerrain_->addSeparator();
    AddReserved("mnuTerMakeObject", "Make Object");
    mnuTerrain_->addSeparator();
    QAction* exit = AddReserved("mnuTerExit", "Exit menu");
    exit->setEnabled(true);
    QObject::connect(exit, &QAction::triggered, mnuTerrain_, [this] { RemoveFrame(); });
}

QAction* SelectTool::AddCommand(const char* name, const char* caption,
                                std::function<void()> command) {
    QAction* action = AddReserved(name, caption);
    action->setEnabled(true);
    QObject::connect(
        action, &QAction::triggered, mnuTerrain_,
        [this, action, command = std::move(command)] { RunOnArea(action->text(), command); });
    return action;
}

/// An entry without a command, which stands disabled.
QAction* SelectTool::AddReserved(const char* name, const char* caption) {
    QAction* action = mnuTerrain_->addAction(QString::fromUtf8(caption));
    action->setObjectName(QLatin1String(name));
    action->setEnabled(false);
    return action;
}

Document& SelectTool::TheDocument() {
    return workplace_.TheSession().document;
}

void SelectTool::RunOnArea(const QString& caption, const std::function<void()>& command) {
    if (!frame_)
        return;
    RunCommand(workplace_.Window(), workplace_.TheHost(), caption, [&] {
        command();
        view_.Rebuild();
        workplace_.TheHost().Busy(false);
    });
    RemoveFrame();
    workplace_.TheHost().ActualScreen();
}

void SelectTool::Press(const PlanMouse& mouse) {
    if (mouse.button != Qt::LeftButton)
        return;
    const MousePoint place = PointOf(mouse);
    if (frame_)
        frame_.reset();
    else
        frame_ = Frame{place.x, place.y, place.x, place.y};
    Show();
}

void SelectTool::Move(const PlanMouse& mouse) {
    if (!frame_ || !mouse.held.testFlag(Qt::LeftButton))
        return;
    frame_->right = MovingCorner(PointOf(mouse).x);
    frame_->bottom = MovingCorner(PointOf(mouse).y);
    Show();
}

void SelectTool::Release(const PlanMouse& mouse) {
    if (frame_ && mouse.button == Qt::LeftButton)
        mnuTerrain_->popup(view_.OnScreen(mouse.place));
}

void SelectTool::RemoveFrame() {
    frame_.reset();
    Show();
}

void SelectTool::Show() {
    view_.ShowFrame(frame_);
}

}  // namespace quillbrand
