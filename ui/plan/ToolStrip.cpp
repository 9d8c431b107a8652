#include "ui/plan/ToolStrip.h"

#include <QAction>
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

QToolBar* MakeStrip(const char* name, std::span<const Tool> entries) {
    auto* strip = new QToolBar;
    strip->setObjectName(QLatin1String(name));
    strip->setOrientation(Qt::Vertical);
    strip->setIconSize(QSize(24, 24));
    for (const Tool& tool : entries) {
        QAction* action = strip->addAction(QLatin1String(tool.key));
        action->setObjectName(QLatin1String(tool.key));
        action->setToolTip(QLatin1String(tool.toolTip));
        action->setData(QLatin1String(tool.icon));
    }
    strip->setEnabled(false);
    return strip;
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
    TintIcons(palette());
}

void ToolStrip::TintIcons(const QPalette& colours) {
    for (QToolBar* strip : {Toolbar2_, ToolBarPen_})
        for (QAction* action : strip->actions())
            action->setIcon(ThemedIcon(action->data().toString(), colours));
}

}  // namespace quillbrand
