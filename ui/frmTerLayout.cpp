#include <QHBoxLayout>
#include <QProgressBar>
#include <QStackedLayout>
#include <QTabWidget>
#include <QTimer>

#include "ui/StatusPanels.h"
#include "ui/controls/Controls.h"
#include "ui/frmTer.h"
#include "ui/panels/EditPanel.h"
#include "ui/panels/EffectsPanel.h"
#include "ui/panels/GeneratorPanel.h"
#include "ui/panels/GlobalPanel.h"
#include "ui/panels/ObjectsPanel.h"
#include "ui/plan/EditTools.h"
#include "ui/plan/PlanView.h"
#include "ui/plan/ToolStrip.h"
#include "ui/plan/ZViewPanel.h"

// Where the parts of the main window stand; what they do is in frmTer.cpp.
namespace quillbrand {

namespace {

constexpr int heartbeatMs = 200;
constexpr int rightColumnWidth = 372;

}  // namespace

void frmTer::BuildWindow() {
    toolbar_ = new Toolbar1(Buttons(), this);
    addToolBar(Qt::TopToolBarArea, toolbar_);
    sBar_ = new StatusPanels(this);
    setStatusBar(sBar_);

    auto* centre = new QWidget(this);
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    toolStrip_ = new ToolStrip;
    layout->addWidget(toolStrip_);
    layout->addWidget(BuildPictures(), 1);
    layout->addWidget(BuildRightColumn());
    setCentralWidget(centre);
    editTools_ = std::make_unique<EditTools>(*this, *planView_, *toolStrip_, *editPanel_);
    resize(1280, 800);

    Timer1_ = new QTimer(this);
    Timer1_->setObjectName(QStringLiteral("Timer1"));
    Timer1_->start(heartbeatMs);
}

QWidget* frmTer::BuildPictures() {
    pictures_ = new QWidget;
    pictures_->setObjectName(QStringLiteral("PictureArea"));
    pictures_->setMinimumSize(640, 480);

    planView_ = new PlanView(*this);
    PicZ_ = new ZViewPanel(*this);
    views_ = new QStackedLayout(pictures_);
    views_->addWidget(planView_);
    views_->addWidget(PicZ_);
    return pictures_;
}

QWidget* frmTer::BuildRightColumn() {
    auto* column = new QWidget;
    column->setFixedWidth(rightColumnWidth);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    auto* top = new QHBoxLayout;
    top->addWidget(BuildViewFrame());
    top->addWidget(BuildInfoFrame(), 1);
    layout->addLayout(top);
    BuildTabs();
    layout->addWidget(SSTab1_, 1);
    return column;
}

QWidget* frmTer::BuildViewFrame() {
    auto* frame = MakeFrame("View");
    auto* layout = new QHBoxLayout(frame);
    OptXYView_ = Named(new QRadioButton(QStringLiteral("X-Y")), "OptXYView", "select normal-view");
    optZView_ = Named(new QRadioButton(QStringLiteral("Z")), "optZView", "select z-view");
    OptXYView_->setChecked(true);
    layout->addWidget(OptXYView_);
    layout->addWidget(optZView_);
    return frame;
}

QWidget* frmTer::BuildInfoFrame() {
    auto* frame = MakeFrame("Info");
    auto* layout = new QVBoxLayout(frame);
    InfoText_ = Named(new QLabel(QStringLiteral("Ready")), "InfoText");
    InfoText_->setMinimumWidth(10);
    PB_ = Named(new QProgressBar, "PB", "Process announcement");
    PB_->setRange(0, 100);
    PB_->setFixedHeight(16);
    layout->addWidget(InfoText_);
    layout->addWidget(PB_);
    return frame;
}

void frmTer::BuildTabs() {
    SSTab1_ = Named(new QTabWidget, "SSTab1");
    SSTab1_->setUsesScrollButtons(false);
    globalPanel_ = new GlobalPanel(*this);
    generatorPanel_ = new GeneratorPanel(*this);
    editPanel_ = new EditPanel(*this);
    effectsPanel_ = new EffectsPanel(*this);
    objectsPanel_ = new ObjectsPanel(*this);
    SSTab1_->addTab(globalPanel_, QStringLiteral("Global"));
    SSTab1_->addTab(generatorPanel_, QStringLiteral("Generator"));
    SSTab1_->addTab(editPanel_, QStringLiteral("Edit"));
    SSTab1_->addTab(effectsPanel_, QStringLiteral("Effects"));
    SSTab1_->addTab(objectsPanel_, QStringLiteral("Objects"));
    SSTab1_->setCurrentWidget(generatorPanel_);
}

}  // namespace quillbrand
