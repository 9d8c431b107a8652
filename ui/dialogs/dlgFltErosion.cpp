#include "ui/dialogs/dlgFltErosion.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSlider>
#include <QVBoxLayout>

#include "ui/controls/Controls.h"
#include "ui/dialogs/FileDialogs.h"
#include "ui/dialogs/Messages.h"

namespace quillbrand {

namespace {

struct SettingSlider {
    const char* name;
    const char* label;
    int low;
    int high;
    int smallStep;
    int largeStep;
    int ErosionSettings::*value;
};

constexpr std::array settingSliders = {
    SettingSlider{"Slider1", "Drops count", 1000, 50000, 100, 1000, &ErosionSettings::dropCount},
    SettingSlider{"Slider2", "drops with", 1, 20, 1, 3, &ErosionSettings::dropWidth},
    SettingSlider{"Slider3", "Landslide depht", 1, 10, 1, 3, &ErosionSettings::slideDepth},
    SettingSlider{"Slider4", "Erosion", 1, 8, 1, 1, &ErosionSettings::erosionDepth},
};

constexpr int sliderWidth = 240;

QSlider* MakeSlider(const SettingSlider& setting) {
    auto* slider = Named(new QSlider(Qt::Horizontal), setting.name);
    slider->setRange(setting.low, setting.high);
    slider->setSingleStep(setting.smallStep);
    slider->setPageStep(setting.largeStep);
    slider->setMinimumWidth(sliderWidth);
    slider->setAccessibleName(QString::fromUtf8(setting.label));
    return slider;
}

/// The slider's value as a number, with room for the widest.
QLabel* MakeNumber(const QSlider* slider) {
    auto* number = new QLabel;
    number->setObjectName(QStringLiteral("lbl") + slider->objectName());
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    QObject::connect(slider, &QSlider::valueChanged, number,
                     static_cast<void (QLabel::*)(int)>(&QLabel::setNum));
    return number;
}

}  // namespace

dlgFltErosion::dlgFltErosion(Workplace& workplace)
    : QDialog(workplace.Window()), workplace_(workplace) {
    setObjectName(QStringLiteral("dlgFltErosion"));
    setWindowTitle(QStringLiteral("Erosion Setting"));
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildSliders());
    layout->addLayout(BuildButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Show({});
}

QWidget* dlgFltErosion::BuildSliders() {
    auto* frame = MakeFrame("Setting");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    for (int row = 0; const SettingSlider& setting : settingSliders) {
        QSlider* slider = MakeSlider(setting);
        sliders_.at(std::size_t(row)) = slider;
        grid->addWidget(MakeLabel(setting.label, slider), row, 0);
        grid->addWidget(slider, row, 1);
        grid->addWidget(MakeNumber(slider), row, 2);
        ++row;
    }
    return frame;
}

QLayout* dlgFltErosion::BuildButtons() {
    auto* load = MakeButton("Command2", "load");
    auto* save = MakeButton("Command1", "save");
    auto* OKButton = MakeButton("OKButton", "&OK");
    auto* CancelButton = MakeButton("CancelButton", "&Cancel");
    OKButton->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    buttons->addWidget(load);
    buttons->addWidget(save);
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    const auto onClick = [this](QPushButton* button, void (dlgFltErosion::*handler)()) {
        connect(button, &QPushButton::clicked, this, [this, button, handler] {
            RunStep(this, button->text(), [this, handler] { (this->*handler)(); });
        });
    };
    onClick(load, &dlgFltErosion::Command2_Click);
    onClick(save, &dlgFltErosion::Command1_Click);
    connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

std::optional<ErosionSettings> dlgFltErosion::Ask() {
    if (exec() != QDialog::Accepted)
        return std::nullopt;
    return Settings();
}

void dlgFltErosion::reject() {
    Show({});
    QDialog::reject();
}

ErosionSettings dlgFltErosion::Settings() const {
    ErosionSettings settings;
    for (std::size_t i = 0; i < sliders_.size(); ++i)
        settings.*settingSliders[i].value = sliders_[i]->value();
    return settings;
}

void dlgFltErosion::Show(const ErosionSettings& settings) {
    for (std::size_t i = 0; i < sliders_.size(); ++i)
        sliders_[i]->setValue(settings.*settingSliders[i].value);
}

void dlgFltErosion::Command1_Click() {
    const auto chosen =
        ChooseToSave(this, SettingRequest(QStringLiteral("Save Setting"),
                                          workplace_.TheSession().settings.ProgramFolder));
    if (chosen)
        SaveErosionSettings(chosen->path, Settings());
}

void dlgFltErosion::Command2_Click() {
    const auto chosen =
        ChooseToOpen(this, SettingRequest(QStringLiteral("Load Setting"),
                                          workplace_.TheSession().settings.ProgramFolder));
    if (chosen)
        Show(LoadErosionSettings(chosen->path));
}

}  // namespace quillbrand
