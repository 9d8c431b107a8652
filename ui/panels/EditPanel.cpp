#include "ui/panels/EditPanel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editor/Palette.h"
#include "editor/PenTexts.h"
#include "ui/controls/Controls.h"
#include "ui/controls/LabelledSlider.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

namespace {

constexpr int swatchSide = 40;
constexpr int readingWidth = 64;

constexpr Colour white = ColourOf(255, 255, 255);

QLabel* MakeReading(const char* name, const char* toolTip = "") {
    auto* label = Named(new QLabel, name, toolTip);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

LabelledSlider* MakeSlider(const char* name, const SliderRange& range, const char* label,
                           const char* toolTip = "") {
    return new LabelledSlider(QLatin1String(name), range, QString::fromUtf8(label),
                              QString::fromUtf8(toolTip));
}

}  // namespace

EditPanel::EditPanel(Workplace& workplace, QWidget* parent)
    : QWidget(parent), workplace_(workplace) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildMaskFrame());
    layout->addWidget(BuildInfoFrame());
    layout->addWidget(BuildPenFrame());
    layout->addStretch();
    ConnectControls();
}

QWidget* EditPanel::BuildMaskFrame() {
    auto* frame = MakeFrame("Make Mask Picture for Terragen");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    auto* buttons = new QHBoxLayout;
    auto* cmdMask = MakeButton(
        "cmdMask", "Mask..",
        "Here you can disguise heights create around masks for Terragen.Save Mask as BMP-File!");
    cmdMask->setEnabled(false);
    Command1_ = MakeButton("Command1", "color white", "Click on setup color for Mask ");
    Command1_->setEnabled(false);
    buttons->addWidget(cmdMask);
    buttons->addWidget(Command1_);
    layout->addLayout(buttons);
    auto* words = new QLabel(
        QStringLiteral("This function inks everything apart from the chosen colour black."));
    words->setWordWrap(true);
    layout->addWidget(words);
    return frame;
}

QWidget* EditPanel::BuildInfoFrame() {
    auto* frame = MakeFrame("Info");
    auto* layout = new QHBoxLayout(frame);
    layout->setSpacing(gap);
    Picture2_ = Named(new PictureBox, "Picture2", "taken over or adjusted height");
    Picture2_->setFixedSize(swatchSide, swatchSide);
    lblPickHeigh_ = MakeReading("lblPickHeigh");
    chkPick_ = MakeCheck("chkPick", "Pick",
                         "if active, the height of the terrain taken over with mouse-click");
    chkEditSnap_ = MakeCheck("chkEditSnap", "Snap", "snapping into place - ");
    layout->addWidget(Picture2_);
    layout->addWidget(lblPickHeigh_);
    layout->addStretch();
    layout->addWidget(chkPick_);
    layout->addWidget(chkEditSnap_);
    return frame;
}

QWidget* EditPanel::BuildPenFrame() {
    auto* frame = MakeFrame("");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    grid->setColumnMinimumWidth(1, readingWidth);
    grid->setColumnStretch(0, 1);
    const auto addRow = [&](LabelledSlider* slider, QLabel* reading) {
        const int row = grid->rowCount();
        grid->addWidget(slider, row, 0);
        grid->addWidget(reading, row, 1, Qt::AlignRight | Qt::AlignTop);
        return slider->Slider();
    };
    Label39_ = MakeReading("Label39");
    lblHeight_ = MakeReading("lblHeight", "total height");
    Slider1_ = addRow(
        MakeSlider("Slider1",
                   {.low = 1, .high = 60, .start = state_.pen.size, .bigStep = 1, .ticks = 4},
                   "min                           Width                          max"),
        Label39_);
    Slider2_ = addRow(
        MakeSlider(
            "Slider2",
            {.low = 1, .high = 65534, .start = state_.pen.height, .bigStep = 256, .ticks = 4096},
            "min                 Heigth              max"),
        lblHeight_);
    auto* fine = MakeSlider("sliderFineHeight",
                            {.low = -1000, .high = 1000, .start = 0, .bigStep = 50, .ticks = 100},
                            "fine tuning", "Add or sub to Height");
    auto* depth = MakeSlider(
        "sldDepthEffects", {.low = 0, .high = 30, .start = state_.depth, .bigStep = 1, .ticks = 2},
        "min                   Depht of Effects                  max", "select depht of effects");
    sliderFineHeight_ = fine->Slider();
    sldDepthEffects_ = depth->Slider();
    const int row = grid->rowCount();
    grid->addWidget(fine, row, 0);
    grid->addLayout(BuildFineReading(), row, 1);
    grid->addWidget(depth, row + 1, 0, 1, 2);
    return frame;
}

QLayout* EditPanel::BuildFineReading() {
    lblFineHeight_ = MakeReading("lblFineHeight");
    cmdResetFineHeight_ = MakeButton("cmdResetFineHeight", "Reset");
    cmdResetFineHeight_->setFixedWidth(readingWidth);
    auto* layout = new QVBoxLayout;
    layout->addWidget(lblFineHeight_);
    layout->addWidget(cmdResetFineHeight_);
    return layout;
}

void EditPanel::ConnectControls() {
    connect(Slider1_, &QSlider::valueChanged, this, &EditPanel::Slider1_Change);
    connect(Slider2_, &QSlider::valueChanged, this, &EditPanel::Slider2_Change);
    connect(sliderFineHeight_, &QSlider::valueChanged, this, &EditPanel::sliderFineHeight_Change);
    connect(sldDepthEffects_, &QSlider::valueChanged, this,
            [this](int depth) { state_.depth = depth; });
    connect(cmdResetFineHeight_, &QPushButton::clicked, this, [this] {
        sliderFineHeight_->setValue(0);
        sliderFineHeight_Change();
    });
    connect(chkPick_, &QCheckBox::toggled, this, &EditPanel::ArmPick);
    connect(chkEditSnap_, &QCheckBox::toggled, this, [this](bool snap) { state_.pen.snap = snap; });
    connect(Command1_, &QPushButton::clicked, this, &EditPanel::WhiteChosen);
}

void EditPanel::Form_Load() {
    Slider1_Change();
    sliderFineHeight_Change();
    Slider2_Change();
}

void EditPanel::SetAltitudes(double low, double high) {
    lowest_ = low;
    highest_ = high;
}

void EditPanel::Slider1_Change() {
    state_.pen.size = Slider1_->value();
    Label39_->setText(QString::number(state_.pen.size));
    emit SizeChanged();
}

void EditPanel::Slider2_Change() {
    state_.pen.height = Slider2_->value();
    const clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    lblHeight_->setText(QString::fromStdString(SliderHeightText(terrain, state_.pen)));
    lblPickHeigh_->setText(QString::fromStdString(PenHeightText(terrain, state_.pen)));
    chkPick_->setChecked(false);
    ShowSwatchOf(state_.pen.height + state_.pen.fine);
}

void EditPanel::sliderFineHeight_Change() {
    state_.pen.fine = sliderFineHeight_->value();
    const clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    lblFineHeight_->setText(QString::fromStdString(FineHeightText(state_.pen, highest_, lowest_)));
    chkPick_->setChecked(false);
    ShowSwatchOf(state_.pen.height + state_.pen.fine);
    lblPickHeigh_->setText(QString::fromStdString(PenHeightText(terrain, state_.pen)));
}

void EditPanel::ShowSwatch(Colour colour) {
    state_.swatch = colour;
    Picture2_->SetBackColor(ToQColor(colour));
}

void EditPanel::ShowSwatchOf(int height) {
    ShowSwatch(PaletteTable(SwatchIndex(height), workplace_.TheSession().settings.PaletteRow));
}

void EditPanel::ShowMiddle() {
    ShowSwatchOf(Pen{}.height);
}

void EditPanel::ChangeSize(int steps) {
    Slider1_->setValue(Slider1_->value() + steps);
}

void EditPanel::TakePen() {
    Command1_->setEnabled(true);
    ShowSwatchOf(state_.pen.height);
}

void EditPanel::PutPenDown() {
    Command1_->setEnabled(false);
}

void EditPanel::TickPick(bool pick) {
    chkPick_->setChecked(pick);
    ArmPick(pick);
}

void EditPanel::Pick(const MousePoint& mouse) {
    const PickedHeight picked =
        PickHeight(workplace_.TheSession().document.CurrentTerrain, state_.pen, mouse);
    // Its handler ends the picking where the height is another one; what it shows is shown anew.
    Slider2_->setValue(picked.height);
    lblHeight_->setText(QString::fromStdString(picked.lblHeight));
    lblPickHeigh_->setText(QString::fromStdString(picked.lblPickHeigh));
    ShowSwatch(PaletteTable(picked.swatch, workplace_.TheSession().settings.PaletteRow));
}

void EditPanel::PaintWhite() {
    Slider2_->setValue(Slider2_->maximum());
    TickPick(false);
    ShowSwatch(white);
}

}  // namespace quillbrand
