#include "ui/panels/ObjectsPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/Controls.h"

namespace quillbrand {

namespace {

QPushButton* MakeDisabled(const char* name, const char* caption, const char* toolTip) {
    auto* button = MakeButton(name, caption, toolTip);
    button->setEnabled(false);
    return button;
}

}  // namespace

ObjectsPanel::ObjectsPanel(Workplace& /*workplace*/, QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildObjects());
    layout->addWidget(BuildObjectMaker());
    layout->addStretch();
}

QWidget* ObjectsPanel::BuildObjects() {
    auto* frame = MakeFrame("Objects");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    layout->addWidget(MakeDisabled("cmdObjLoad", "&Add Objects", "Load Overlay Graphic File"));
    auto* all = new QHBoxLayout;
    all->addWidget(MakeDisabled("cmdObjMergeAll", "Merge all", "merge all objects"));
    all->addWidget(MakeDisabled("cmdObjDeleteAll", "Delete all", "delete all objects"));
    layout->addLayout(all);
    auto* Label27 = Named(new QLabel, "Label27");
    Label27->setText(
        QStringLiteral("Adjusting properties of an object, click with the right mouse button on "
                       "the object. Moving the object with the left mouse button. Pictures must "
                       "be square!"));
    Label27->setWordWrap(true);
    layout->addWidget(Label27);
    return frame;
}

QWidget* ObjectsPanel::BuildObjectMaker() {
    auto* frame = MakeFrame("");
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(MakeDisabled("cmdObjektmaker", "ObjectMaker", ""));
    return frame;
}

}  // namespace quillbrand
