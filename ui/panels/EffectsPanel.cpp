#include "ui/panels/EffectsPanel.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/NumberText.h"
#include "effects/QBFilter.h"
#include "shell/EffectCommands.h"
#include "ui/controls/Controls.h"
#include "ui/controls/LabelledSlider.h"
#include "ui/dialogs/Messages.h"
#include "ui/dialogs/dlgFltErosion.h"
#include "ui/dialogs/frmElevator.h"

namespace quillbrand {

namespace {

constexpr int elevatorShift = 3;
constexpr int erosionRain = 8;
constexpr int naturalErosion = 11;

/// Options stand in two columns of this many.
constexpr int optionRows = 6;

/// The limit sliders count from the bottom of the 16-bit range.
constexpr int sliderZero = 32768;
constexpr int sliderTop = 65536;

constexpr int metresWidth = 76;

QRadioButton* MakeOption(int index, const QBFilter::Effect& effect) {
    const auto caption = QString::fromUtf8(effect.caption.data(), qsizetype(effect.caption.size()));
    auto* option = new QRadioButton(caption);
    option->setObjectName(QStringLiteral("optFilter%1").arg(index));
    option->setProperty("Index", index);
    if (index == naturalErosion)
        option->setToolTip(QStringLiteral("experimental (BETA)"));
    option->setEnabled(index != erosionRain);
    option->setChecked(index == 0);
    return option;
}

QSlider* MakeLimit(const char* name, const char* toolTip, const char* label, int start) {
    auto* slider = Named(new QSlider(Qt::Horizontal), name, toolTip);
    slider->setRange(0, sliderTop);
    slider->setPageStep(4096);
    slider->setValue(start);
    slider->setAccessibleName(QString::fromUtf8(label));
    return slider;
}

QLineEdit* MakeMetres(const char* name, const char* text) {
    auto* box = MakeText(name, text, "total height");
    box->setReadOnly(true);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(metresWidth);
    return box;
}

}  // namespace

EffectsPanel::EffectsPanel(Workplace& workplace, QWidget* parent)
    : QWidget(parent), workplace_(workplace) {
    BuildControls();
    OrderControls();
    ConnectControls();
}

void EffectsPanel::BuildControls() {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildFilters());
    layout->addWidget(BuildElevatorParameter());
    cmdStartEffects_ = MakeButton("cmdStartEffects", "Start !", "Start Effects");
    layout->addWidget(cmdStartEffects_);
    layout->addStretch();
}

QWidget* EffectsPanel::BuildFilters() {
    auto* frame = MakeFrame("Filters");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    layout->addLayout(BuildOptions());
    auto* hint = new QLabel(QStringLiteral("Smooth and Noise use the elevator parameters"));
    hint->setWordWrap(true);
    layout->addWidget(hint);
    auto* strength =
        new LabelledSlider(QStringLiteral("sldEffectFactor"),
                           {.low = 0, .high = 10, .start = 1, .bigStep = 1, .ticks = 1},
                           QStringLiteral("min             Depht              max"),
                           QStringLiteral("Strength of the assigned effect"));
    sldEffectFactor_ = strength->Slider();
    layout->addWidget(strength);
    return frame;
}

QLayout* EffectsPanel::BuildOptions() {
    optFilter_ = new QButtonGroup(this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    for (const QBFilter::Effect& effect : QBFilter::Effects()) {
        const int index = effect.code - 1;
        QRadioButton* option = MakeOption(index, effect);
        optFilter_->addButton(option, index);
        if (index != elevatorShift) {
            grid->addWidget(option, index % optionRows, index / optionRows, Qt::AlignLeft);
            continue;
        }
        cmdElevatorPar_ = MakeButton("cmdElevatorPar", "...");
        cmdElevatorPar_->setAccessibleName(QStringLiteral("Elevator curve"));
        cmdElevatorPar_->setFixedWidth(32);
        auto* row = new QHBoxLayout;
        row->addWidget(option);
        row->addWidget(cmdElevatorPar_);
        row->addStretch();
        grid->addLayout(row, index % optionRows, index / optionRows);
    }
    return grid;
}

QWidget* EffectsPanel::BuildElevatorParameter() {
    auto* frame = MakeFrame(" Elevator- Parameter");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    sldZMin_ = MakeLimit("sldZMin", "lower working on border ", "min", 0);
    sldZMax_ = MakeLimit("sldZMax", "upper working on border", "max", sliderTop);
    txtZMin_ = MakeMetres("txtZMin", "-300");
    txtZmax_ = MakeMetres("txtZmax", "300");
    cmdZrangeReset_ = MakeButton("cmdZrangeReset", "Reset", "put back to terrain borders");
    cmdZrangeReset_->setFixedWidth(metresWidth);

    grid->addWidget(new QLabel(QStringLiteral("Limit the elevator values")), 0, 0, 1, 3);
    grid->addWidget(cmdZrangeReset_, 0, 3);
    grid->addWidget(new QLabel(QStringLiteral("from Z")), 1, 0);
    grid->addWidget(MakeLabel("min", sldZMin_), 1, 1);
    grid->addWidget(sldZMin_, 1, 2);
    grid->addWidget(txtZMin_, 1, 3);
    grid->addWidget(MakeLabel("max", sldZMax_), 2, 1);
    grid->addWidget(sldZMax_, 2, 2);
    grid->addWidget(txtZmax_, 2, 3);
    return frame;
}

/// As the eye goes: down the columns of options, then row by row.
void EffectsPanel::OrderControls() {
    QList<QWidget*> order;
    for (int index = 0; index < optFilter_->buttons().size(); ++index) {
        order += optFilter_->button(index);
        if (index == elevatorShift)
            order += cmdElevatorPar_;
    }
    order += {sldEffectFactor_, cmdZrangeReset_, sldZMin_,        txtZMin_,
              sldZMax_,         txtZmax_,        cmdStartEffects_};
    OrderTabs(order);
}

void EffectsPanel::ConnectControls() {
    for (QAbstractButton* option : optFilter_->buttons())
        connect(option, &QAbstractButton::clicked, this,
                [this, option] { optFilter_Click(optFilter_->id(option)); });
    connect(sldEffectFactor_, &QSlider::valueChanged, this, &EffectsPanel::sldEffectFactor_Change);
    connect(sldZMin_, &QSlider::valueChanged, this, &EffectsPanel::sldZMin_Change);
    connect(sldZMax_, &QSlider::valueChanged, this, &EffectsPanel::sldZMax_Change);
    connect(cmdZrangeReset_, &QPushButton::clicked, this, &EffectsPanel::cmdZrangeReset_Click);
    const auto onClick = [this](QPushButton* button, const QString& command,
                                void (EffectsPanel::*handler)()) {
        connect(button, &QPushButton::clicked, this, [this, command, handler] {
            RunCommand(workplace_.Window(), workplace_.TheHost(), command,
                       [this, handler] { (this->*handler)(); });
        });
    };
    onClick(cmdElevatorPar_, QStringLiteral("Elevator shift"), &EffectsPanel::cmdElevatorPar_Click);
    onClick(cmdStartEffects_, QStringLiteral("Effects"), &EffectsPanel::cmdStartEffects_Click);
}

void EffectsPanel::optFilter_Click(int index) {
    SelectedEffect_ = index;
    sldEffectFactor_->setValue(workplace_.TheSession().tools.EffectStrength.at(std::size_t(index)));
}

void EffectsPanel::sldEffectFactor_Change(int value) {
    workplace_.TheSession().tools.EffectStrength.at(std::size_t(SelectedEffect_) + 1) = value;
}

void EffectsPanel::sldZMin_Change() {
    if (sldZMin_->value() > sldZMax_->value())
        sldZMax_->setValue(sldZMin_->value() + 1);
    Refresh();
}

void EffectsPanel::sldZMax_Change() {
    if (sldZMin_->value() > sldZMax_->value())
        sldZMin_->setValue(sldZMax_->value() - 1);
    Refresh();
}

void EffectsPanel::Refresh() {
    const clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    const auto metres = [&](const QSlider* limit) {
        return QString::fromStdString(ShownText([&] {
            return PlainText(terrain.GetV2Meter(static_cast<float>(limit->value() - sliderZero)));
        }));
    };
    txtZMin_->setText(metres(sldZMin_));
    txtZmax_->setText(metres(sldZMax_));
}

void EffectsPanel::cmdZrangeReset_Click() {
    sldZMin_->setValue(0);
    sldZMax_->setValue(sliderTop);
    Refresh();
}

void EffectsPanel::cmdElevatorPar_Click() {
    frmElevator(workplace_).Run();
}

std::optional<ErosionSettings> EffectsPanel::AskErosion() {
    if (dlgFltErosion_ == nullptr)
        dlgFltErosion_ = new dlgFltErosion(workplace_);
    return dlgFltErosion_->Ask();
}

void EffectsPanel::cmdStartEffects_Click() {
    Session& session = workplace_.TheSession();
    if (session.document.TerrainEmpty) {
        TellUser(workplace_.Window(), QStringLiteral("Terrain empty"), QStringLiteral("Effects"));
        return;
    }
    Host& host = workplace_.TheHost();
    host.Busy(true);
    workplace_.ShowPlanView();
    const int code = SelectedEffect_ + 1;
    const auto showTerrain = [&] {
        workplace_.RebuildPicture();
        host.Busy(false);
        host.ActualScreen();
        host.Yield();
    };
    try {
        StartEffect(
            session.document, session.tools, session.settings,
            {.code = code,
             .strength = static_cast<float>(session.tools.EffectStrength.at(std::size_t(code))),
             .zMin = sldZMin_->value() - sliderZero,
             .zMax = sldZMax_->value() - sliderZero,
             .seed = session.tools.seedText,
             .startErosion = [this] { return AskErosion(); }},
            host);
    } catch (...) {
        // Its fields may still tell of heights that were taken back.
        showTerrain();
        throw;
    }
    showTerrain();
}

}  // namespace quillbrand
