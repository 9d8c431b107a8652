#include "ui/panels/GeneratorPanel.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

#include "shell/GeneratorCommands.h"
#include "ui/controls/Controls.h"
#include "ui/controls/LabelledSlider.h"
#include "ui/dialogs/FileDialogs.h"
#include "ui/dialogs/Messages.h"
#include "ui/dialogs/dlgGenModify.h"
#include "ui/dialogs/dlgPreview.h"

namespace quillbrand {

GeneratorPanel::GeneratorPanel(Workplace& workplace, QWidget* parent)
    : QWidget(parent), workplace_(workplace) {
    BuildControls();
    ConnectControls();
}

void GeneratorPanel::BuildControls() {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildSetFrame());
    layout->addLayout(BuildButtons());
    layout->addStretch();
}

QWidget* GeneratorPanel::BuildSetFrame() {
    auto* frame = MakeFrame("Generator Setup");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    lstPerlinSets_ = Named(new QListWidget, "lstPerlinSets", "Select Perlinset");
    lstPerlinSets_->setMinimumHeight(96);
    layout->addWidget(lstPerlinSets_, 1);

    const auto addSlider = [&](const char* name, const SliderRange& range, const char* label,
                               const char* toolTip) {
        auto* slider = new LabelledSlider(QLatin1String(name), range, QString::fromUtf8(label),
                                          QString::fromUtf8(toolTip));
        layout->addWidget(slider);
        return slider->Slider();
    };
    sldIteration_ = addSlider("sldIteration", {.low = 1, .high = 11, .start = 1, .ticks = 1},
                              "min       Iteration      max", "max. iteration of Perlin Noise");
    sldGenHeigth_ =
        addSlider("sldGenHeigth", {.low = 1, .high = 100, .start = 100, .bigStep = 10, .ticks = 10},
                  "min      Heigth        max", "Overall height");
    sldStructure_ = addSlider("sldStructure", {.low = 0, .high = 4, .start = 2, .ticks = 1},
                              "max     Structure    min", "Structure size");
    roughness_ = addSlider("Slider3", {.low = 0, .high = 10, .start = 0, .bigStep = 5, .ticks = 1},
                           "0        roughness    max", "");
    connect(roughness_, &QSlider::valueChanged, this,
            [this](int value) { workplace_.TheSession().tools.roughness = value; });
    layout->addLayout(BuildSeedRow());
    chkHighResolution_ = MakeCheck("chkHighResolution", "finer Structures",
                                   "create finer structures. Need more computing time");
    chkClearTerrain_ =
        MakeCheck("chkClearTerrain", "clear Terrain",
                  "the existing terrain deletes, before the new terrain is generated");
    auto* checks = new QHBoxLayout;
    checks->addWidget(chkHighResolution_);
    checks->addWidget(chkClearTerrain_);
    layout->addLayout(checks);
    return frame;
}

QLayout* GeneratorPanel::BuildSeedRow() {
    auto* row = new QHBoxLayout;
    txtRandom_ = MakeText("txtRandom", "", "input new random seed  ( 0-999999)");
    cmdRandom_ = MakeButton("cmdRandom", "RND", "Set new random seed of Perlin");
    row->addWidget(txtRandom_, 1);
    row->addWidget(cmdRandom_);
    return row;
}

QLayout* GeneratorPanel::BuildButtons() {
    cmdGenModify_ = MakeButton("cmdGenModify", "Modify Options",
                               "select modify options for overlay this terrain");
    // The two tool tips stand the wrong way round, and stay so.
    save_ = MakeButton("cmdGeneratorSaveSetting", "save", "load generator settings");
    load_ = MakeButton("cmdGenLoadSetting", "load", "save generator settings ");
    cmdPreview_ =
        MakeButton("cmdPreview", "Preview", "Preview then new Terrain with the random seed");
    cmdGenerator_ = MakeButton("cmdGenerator", "Produce terrain !", "Produce terrain");
    auto* settings = new QHBoxLayout;
    settings->addWidget(cmdGenModify_, 2);
    settings->addWidget(save_, 1);
    settings->addWidget(load_, 1);
    auto* run = new QHBoxLayout;
    run->addWidget(cmdPreview_, 1);
    run->addWidget(cmdGenerator_, 1);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(gap);
    rows->addLayout(settings);
    rows->addLayout(run);
    return rows;
}

void GeneratorPanel::ConnectControls() {
    const auto onClick = [this](QPushButton* button, void (GeneratorPanel::*handler)()) {
        connect(button, &QPushButton::clicked, this, [this, button, handler] {
            RunCommand(this, workplace_.TheHost(), button->text(),
                       [this, handler] { (this->*handler)(); });
        });
    };
    onClick(cmdGenerator_, &GeneratorPanel::cmdGenerator_Click);
    onClick(cmdPreview_, &GeneratorPanel::cmdPreview_Click);
    onClick(cmdRandom_, &GeneratorPanel::cmdRandom_Click);
    onClick(cmdGenModify_, &GeneratorPanel::cmdGenModify_Click);
    onClick(save_, &GeneratorPanel::cmdGeneratorSaveSetting_Click);
    onClick(load_, &GeneratorPanel::cmdGenLoadSetting_Click);
    connect(txtRandom_, &QLineEdit::textChanged, this, [this](const QString& text) {
        workplace_.TheSession().tools.seedText = text.toStdString();
    });
    connect(txtRandom_, &QLineEdit::textEdited, this, &GeneratorPanel::txtRandom_Change);
    connect(chkClearTerrain_, &QCheckBox::toggled, this,
            [this](bool ticked) { cmdGenModify_->setEnabled(!ticked); });
}

void GeneratorPanel::LoadPerlinList() {
    lstPerlinSets_->clear();
    const PerlinSetTable& sets = workplace_.TheSession().tools.PerlinSets;
    for (int row = 0; row < sets.ListedRows(); ++row)
        lstPerlinSets_->addItem(
            QString::fromStdString(sets.rows[static_cast<std::size_t>(row)].name));
    lstPerlinSets_->setCurrentRow(0);
}

void GeneratorPanel::Refresh() {
    const Session& session = workplace_.TheSession();
    cmdGenModify_->setEnabled(!session.document.TerrainEmpty && !chkClearTerrain_->isChecked());
    const QString seed = QString::number(session.tools.RandomSeedValue);
    if (txtRandom_->text() != seed)
        txtRandom_->setText(seed);
}

GeneratorSettings GeneratorPanel::Settings() const {
    GeneratorSettings settings;
    settings.set = lstPerlinSets_->currentRow();
    settings.iterations = sldIteration_->value();
    settings.height = sldGenHeigth_->value();
    settings.structure = sldStructure_->value();
    settings.roughness = roughness_->value();
    settings.seed = workplace_.TheSession().tools.seedText;
    settings.finerStructures = chkHighResolution_->isChecked();
    settings.clearTerrain = chkClearTerrain_->isChecked();
    return settings;
}

void GeneratorPanel::Show(const GeneratorSettings& settings) {
    lstPerlinSets_->setCurrentRow(settings.set);
    sldIteration_->setValue(settings.iterations);
    sldGenHeigth_->setValue(settings.height);
    sldStructure_->setValue(settings.structure);
    roughness_->setValue(settings.roughness);
    chkHighResolution_->setChecked(settings.finerStructures);
}

void GeneratorPanel::cmdGenerator_Click() {
    // Read first: what the picture's resizing ticks must not undo the user's choice.
    const std::optional<int> size = workplace_.TheSession().tools.chosenSize;
    workplace_.ResizePicture();
    workplace_.ShowPlanView();
    if (!size)
        return;
    ProduceTerrain(workplace_.TheSession().document, workplace_.TheSession().tools,
                   workplace_.TheSession().settings.ResizeMode, *size, Settings(),
                   workplace_.TheHost());
    workplace_.ResizePicture();
    workplace_.RebuildPicture();
    workplace_.TheHost().Busy(false);
    workplace_.TheHost().ActualScreen();
}

void GeneratorPanel::cmdPreview_Click() {
    Session& session = workplace_.TheSession();
    Host& host = workplace_.TheHost();
    clsTerrain preview = PreviewTerrain(session.document, session.tools,
                                        session.settings.ResizeMode, Settings(), host);
    dlgPreview dialog(workplace_.Window());
    dialog.ShowHeights(preview, session.settings.PaletteRow, host);
    host.Busy(false);
    dialog.exec();
}

void GeneratorPanel::cmdRandom_Click() {
    RandomSource& chance = workplace_.TheHost().Chance();
    chance.ReseedFromClock();
    workplace_.TheSession().tools.RandomSeedValue = NewSeed(chance);
    workplace_.TheHost().ActualScreen();
}

void GeneratorPanel::txtRandom_Change(const QString& text) {
    workplace_.TheSession().tools.RandomSeedValue = SeedOf(text.toStdString());
}

void GeneratorPanel::cmdGenModify_Click() {
    dlgGenModify dialog(workplace_.TheSession().tools.ModifyMode, workplace_.Window());
    if (dialog.exec() == QDialog::Accepted)
        workplace_.TheSession().tools.ModifyMode = dialog.Mode();
}

void GeneratorPanel::cmdGeneratorSaveSetting_Click() {
    const Session& session = workplace_.TheSession();
    const auto chosen = ChooseToSave(
        workplace_.Window(),
        SettingRequest(QStringLiteral("Save Setting"), session.settings.ProgramFolder));
    if (chosen)
        SaveGeneratorSettings(chosen->path, Settings(), session.tools.ModifyMode);
}

void GeneratorPanel::cmdGenLoadSetting_Click() {
    Session& session = workplace_.TheSession();
    const auto chosen = ChooseToOpen(
        workplace_.Window(),
        SettingRequest(QStringLiteral("Load Setting"), session.settings.ProgramFolder));
    if (!chosen)
        return;
    Show(LoadGenerator(session.tools, chosen->path, lstPerlinSets_->currentRow()));
    workplace_.TheHost().ActualScreen();
}

}  // namespace quillbrand
