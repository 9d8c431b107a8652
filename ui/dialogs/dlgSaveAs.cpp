#include "ui/dialogs/dlgSaveAs.h"

#include <QVBoxLayout>

#include "ui/controls/Controls.h"

namespace quillbrand {

namespace {

constexpr int buttonWidth = 256;

}  // namespace

dlgSaveAs::dlgSaveAs(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("dlgSaveAs"));
    setWindowTitle(QStringLiteral("Save as"));
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    const auto addButton = [&](const char* name, const char* caption, int type) {
        auto* button = MakeButton(name, caption);
        button->setMinimumWidth(buttonWidth);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, type] { Choose(type); });
        return button;
    };
    addButton("OKButton", "&TerraGen-File [.TER]", 1)->setDefault(true);
    // There is no export to pictures yet.
    addButton("cmdBMP", "&Bitmap-File (24 Bit) [.BMP]", 2)->setEnabled(false);
    addButton("cmdBMPvariable", "Bitmap-File (variable Size) [.BMP]", 3)->setEnabled(false);
    layout->addSpacing(gap);
    auto* CancelButton = MakeButton("CancelButton", "&Cancel");
    layout->addWidget(CancelButton);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void dlgSaveAs::Choose(int type) {
    SaveType = type;
    accept();
}

}  // namespace quillbrand
