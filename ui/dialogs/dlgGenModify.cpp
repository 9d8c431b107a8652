#include "ui/dialogs/dlgGenModify.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "generator/GeneratorSettings.h"
#include "ui/controls/Controls.h"

namespace quillbrand {

dlgGenModify::dlgGenModify(int mode, QWidget* parent) : QDialog(parent), given_(mode) {
    setObjectName(QStringLiteral("dlgGenModify"));
    setWindowTitle(QStringLiteral("Modify Terrain"));
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildOptions());

    auto* info = MakeFrame("Info");
    auto* words =
        new QLabel(QStringLiteral("Setting the option to the calculation the overlaying terrain"));
    words->setWordWrap(true);
    (new QVBoxLayout(info))->addWidget(words);
    layout->addWidget(info);

    auto* OKButton = MakeButton("OKButton", "&OK");
    auto* CancelButton = MakeButton("CancelButton", "&Cancel");
    OKButton->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* dlgGenModify::BuildOptions() {
    auto* frame = MakeFrame("Options");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    optModifyTerrain_ = new QButtonGroup(this);
    constexpr int rows = 3;
    for (int mode = ModifyModes::Add; mode <= ModifyModes::lowest; ++mode) {
        const std::string_view caption = modifyCaptions.at(std::size_t(mode));
        auto* option =
            new QRadioButton(QString::fromUtf8(caption.data(), qsizetype(caption.size())));
        option->setObjectName(QStringLiteral("optModifyTerrain%1").arg(mode));
        option->setProperty("Index", mode);
        option->setChecked(mode == given_);
        optModifyTerrain_->addButton(option, mode);
        const int place = mode - ModifyModes::Add;
        grid->addWidget(option, place % rows, place / rows, Qt::AlignLeft);
    }
    return frame;
}

int dlgGenModify::Mode() const {
    const int ticked = optModifyTerrain_->checkedId();
    return ticked < 0 ? given_ : ticked;
}

}  // namespace quillbrand
