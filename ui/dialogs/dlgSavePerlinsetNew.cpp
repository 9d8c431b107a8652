#include "ui/dialogs/dlgSavePerlinsetNew.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "shell/TerrainCommands.h"
#include "ui/controls/Controls.h"
#include "ui/dialogs/FileDialogs.h"
#include "ui/dialogs/Messages.h"

namespace quillbrand {

dlgSavePerlinsetNew::dlgSavePerlinsetNew(Workplace& workplace)
    : QDialog(workplace.Window()), workplace_(workplace) {
    setObjectName(QStringLiteral("dlgSavePerlinsetNew"));
    setWindowTitle(QStringLiteral("Sichere Perlinset Neu"));
    Text1_ = MakeText("Text1", "");
    Text1_->setMinimumWidth(240);
    auto* OKButton = MakeButton("OKButton", "OK");
    auto* CancelButton = MakeButton("CancelButton", "Abbrechen");
    OKButton->setDefault(true);

    auto* grid = new QGridLayout(this);
    grid->setSpacing(gap);
    grid->addWidget(MakeLabel("Name", Text1_), 0, 0);
    grid->addWidget(Text1_, 0, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    grid->addLayout(buttons, 1, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    connect(OKButton, &QPushButton::clicked, this, &dlgSavePerlinsetNew::OKButton_Click);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void dlgSavePerlinsetNew::OKButton_Click() {
    RunPart(this, workplace_.TheHost(), windowTitle(), [this] { SavePerlinSet(); });
}

void dlgSavePerlinsetNew::SavePerlinSet() {
    Session& session = workplace_.TheSession();
    const auto chosen = ChooseToSave(this, {.title = QStringLiteral("PerlinSets save ..."),
                                            .filter = QStringLiteral("PerlinSets|*.QPS"),
                                            .defaultExtension = QStringLiteral("QPS"),
                                            .startFolder = session.settings.ProgramFolder,
                                            .fileName = Text1_->text().trimmed()});
    if (!chosen)
        return;
    Host& host = workplace_.TheHost();
    SaveAsPerlinSet(session.document, chosen->path, Text1_->text().toStdString(), host);
    host.Busy(false);
    host.ActualScreen();
    accept();
}

}  // namespace quillbrand
