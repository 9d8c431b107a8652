#include "ui/panels/EditPanel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/Controls.h"
#include "ui/controls/LabelledSlider.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

namespace {

constexpr int swatchSide = 40;
constexpr int readingWidth = 64;

/// A reading before there is a pen to read from.
constexpr auto noReading = "-";

template <typename Control>
Control* Disabled(Control* control) {
    control->setEnabled(false);
    return control;
}

QLabel* MakeReading(const char* name, const char* text, const char* toolTip = "") {
    auto* label = Disabled(Named(new QLabel(QString::fromUtf8(text)), name, toolTip));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

LabelledSlider* MakeSlider(const char* name, const SliderRange& range, const char* label,
                           const char* toolTip = "") {
    return Disabled(new LabelledSlider(QLatin1String(name), range, QString::fromUtf8(label),
                                       QString::fromUtf8(toolTip)));
}

}  // namespace

EditPanel::EditPanel(Workplace& /*workplace*/, QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildMaskFrame());
    layout->addWidget(BuildInfoFrame());
    layout->addWidget(BuildPenFrame());
    layout->addStretch();
}

QWidget* EditPanel::BuildMaskFrame() {
    auto* frame = MakeFrame("Make Mask Picture for Terragen");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Disabled(MakeButton(
        "cmdMask", "Mask..",
        "Here you can disguise heights create around masks for Terragen.Save Mask as BMP-File!")));
    buttons->addWidget(
        Disabled(MakeButton("Command1", "color white", "Click on setup color for Mask ")));
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
    Picture2_ = Disabled(Named(new PictureBox, "Picture2", "taken over or adjusted height"));
    Picture2_->setFixedSize(swatchSide, swatchSide);
    layout->addWidget(Picture2_);
    layout->addWidget(MakeReading("lblPickHeigh", noReading));
    layout->addStretch();
    layout->addWidget(Disabled(MakeCheck(
        "chkPick", "Pick", "if active, the height of the terrain taken over with mouse-click")));
    layout->addWidget(Disabled(MakeCheck("chkEditSnap", "Snap", "snapping into place - ")));
    return frame;
}

void EditPanel::SetSwatch(QColor colour) {
    Picture2_->SetBackColor(colour);
}

QWidget* EditPanel::BuildPenFrame() {
    auto* frame = MakeFrame("");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    grid->setColumnMinimumWidth(1, readingWidth);
    grid->setColumnStretch(0, 1);
    const auto addRow = [&](LabelledSlider* slider, QWidget* reading) {
        const int row = grid->rowCount();
        grid->addWidget(slider, row, 0);
        grid->addWidget(reading, row, 1, Qt::AlignRight | Qt::AlignTop);
    };
    addRow(MakeSlider("Slider1", {.low = 1, .high = 60, .start = 10, .bigStep = 1, .ticks = 4},
                      "min                           Width                          max"),
           MakeReading("Label39", "10"));
    addRow(MakeSlider("Slider2",
                      {.low = 1, .high = 65534, .start = 32768, .bigStep = 256, .ticks = 4096},
                      "min                 Heigth              max"),
           MakeReading("lblHeight", noReading, "total height"));

    auto* cmdResetFineHeight = Disabled(MakeButton("cmdResetFineHeight", "Reset"));
    cmdResetFineHeight->setFixedWidth(readingWidth);
    auto* fine = new QVBoxLayout;
    fine->addWidget(MakeReading("lblFineHeight", noReading));
    fine->addWidget(cmdResetFineHeight);
    const int row = grid->rowCount();
    grid->addWidget(
        MakeSlider("sliderFineHeight",
                   {.low = -1000, .high = 1000, .start = 0, .bigStep = 50, .ticks = 100},
                   "fine tuning", "Add or sub to Height"),
        row, 0);
    grid->addLayout(fine, row, 1);
    grid->addWidget(
        MakeSlider("sldDepthEffects", {.low = 0, .high = 30, .start = 5, .bigStep = 1, .ticks = 2},
                   "min                   Depht of Effects                  max",
                   "select depht of effects"),
        row + 1, 0, 1, 2);
    return frame;
}

}  // namespace quillbrand
