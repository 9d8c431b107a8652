#include "ui/plan/ToolStrip.h"

#include <QAction>
#include <QActionGroup>
#include <QVBoxLayout>
#include <span>

#include "ui/controls/Icons.h"

namespace quillbrand {

namespace {

struct Tool {
    const char* key;
    const char* toolTip;
    const char* icon;
};

constexpr Tool tools[] = {
    {"Pfeil", "Cross", "arrow"},
    {"Pen", "Pen", "pen"},
    {"up", "up", "up"},
    {"down", "down", "down"},
    {"Erode", "Erode", "erode"},
    {"Noise", "Noise", "noise"},
    {"Smooth", "Smooth", "smooth"},
    {"Select", "Select Area", "select"},
    {"SelectRound", "", "select-round"},
};

constexpr Tool penShapes[] = {
    {"PenSquare", "Pen square", "pen-square"},
    {"PenRound", "Pen round", "pen-round"},
    {"PenNoise", "Pen noise", "pen-noise"},
};

constexpr auto roundSelection = "SelectRound";

/// Buttons of which only one is down at a time, once one is.
QToolBar* MakeStrip(const char* name, std::span<const Tool> entries) {
    auto* strip = new QToolBar;
    strip->setObjectName(QLatin1String(name));
    strip->setOrientation(Qt::Vertical);
    strip->setIconSize(QSize(24, 24));
    auto* group = new QActionGroup(strip);
    for (const Tool& tool : entries) {
        QAction* action = strip->addAction(QLatin1String(tool.key));
        action->setObjectName(QLatin1String(tool.key));
        action->setToolTip(QLatin1String(tool.toolTip));
        action->setData(QLatin1String(tool.icon));
        action->setCheckable(true);
        group->addAction(action);
        if (QWidget* button = strip->widgetForAction(action)) {
            button->setObjectName(QLatin1String(tool.key));
            button->setFocusPolicy(Qt::TabFocus);
        }
    }
    // The strip owns the group. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    return strip;
}

PenShape ShapeOf(const QAction* action) {
    for (int i = 0; const Tool& shape : penShapes) {
        ++i;
        if (action->objectName() == QLatin1String(shape.key))
            return static_cast<PenShape>(i);
    }
    return PenShape::None;
}

}  // namespace

ToolStrip::ToolStrip(QWidget* parent)
    : QWidget(parent),
      Toolbar2_(MakeStrip("Toolbar2", tools)),
      ToolBarPen_(MakeStrip("ToolBarPen", penShapes)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Toolbar2_);
    layout->addWidget(ToolBarPen_);
    layout->addStretch();
    Toolbar2_->findChild<QAction*>(QLatin1String(roundSelection))->setVisible(false);
    ShowTool(QLatin1String(firstTool));
    EnablePens(false);
    connect(Toolbar2_, &QToolBar::actionTriggered, this,
            [this](const QAction* action) { emit Toolbar2_ButtonClick(action->objectName()); });
    connect(ToolBarPen_, &QToolBar::actionTriggered, this,
            [this](const QAction* action) { emit ToolBarPen_ButtonClick(ShapeOf(action)); });
    TintIcons(palette());
}

void ToolStrip::ShowTool(const QString& key) {
    Toolbar2_->findChild<QAction*>(key)->setChecked(true);
}

void ToolStrip::EnablePens(bool enable) {
    ToolBarPen_->setEnabled(enable);
}

void ToolStrip::TintIcons(const QPalette& colours) {
    for (QToolBar* strip : {Toolbar2_, ToolBarPen_})
        for (QAction* action : strip->actions())
            action->setIcon(ThemedIcon(action->data().toString(), colours));
}

}  // namespace quillbrand
