#include "ui/GlobalPanel.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "base/NumberText.h"
#include "base/Stdio.h"
#include "ui/Controls.h"
#include "ui/ShownNumber.h"

namespace quillbrand {

namespace {

struct SizeOption {
    int tag;
    const char* caption;
};

constexpr std::array sizeOptions = {
    SizeOption{128, "129 x 129"},    SizeOption{256, "257 x 257"},    SizeOption{512, "513 x 513"},
    SizeOption{1024, "1025 x 1025"}, SizeOption{2048, "2048 x 2048"},
};

/// Options stand in two columns of this many; the button takes the last place.
constexpr int sizeRows = 3;

constexpr int fieldWidth = 88;

QLineEdit* MakeField(const char* name, const char* text, const char* toolTip) {
    auto* field = MakeText(name, text, toolTip);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(fieldWidth);
    return field;
}

QString Shown(double number, const char* pattern) {
    return ShownNumber([&] { return Format(number, pattern); });
}

}  // namespace

GlobalPanel::GlobalPanel(Workplace& workplace, QWidget* parent)
    : QWidget(parent), workplace_(workplace) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(BuildGridPoints());
    layout->addWidget(BuildPlanetaryContext());
    layout->addWidget(BuildLandscapeArea());
    layout->addStretch();
    connect(chkCurved_, &QCheckBox::clicked, this, &GlobalPanel::chkCurved_Click);
}

QWidget* GlobalPanel::BuildGridPoints() {
    auto* frame = MakeFrame("Terrain Grid Points");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    optTerSize_ = new QButtonGroup(this);
    for (int index = 0; const SizeOption& size : sizeOptions) {
        auto* option = new QRadioButton(QString::fromUtf8(size.caption));
        option->setObjectName(QStringLiteral("optTerSize%1").arg(index));
        option->setProperty("Index", index);
        option->setProperty("Tag", size.tag);
        optTerSize_->addButton(option, index);
        grid->addWidget(option, index % sizeRows, index / sizeRows, Qt::AlignLeft);
        ++index;
    }
    auto* CmdResize = MakeButton("CmdResize", "Resize", "Resize the Landscape");
    CmdResize->setEnabled(false);
    grid->addWidget(CmdResize, sizeRows - 1, 1);
    return frame;
}

QWidget* GlobalPanel::BuildPlanetaryContext() {
    auto* frame = MakeFrame("Planetary Context");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    txtPlanetRadius_ = MakeField("txtPlanetRadius", "6370", "Planetradius in km");
    chkCurved_ = MakeCheck("chkCurved", "curved Terrain", "click for curved Terrain");
    auto* radius = new QHBoxLayout;
    radius->addWidget(MakeLabel("Radius", txtPlanetRadius_));
    radius->addWidget(txtPlanetRadius_);
    radius->addStretch();
    radius->addWidget(chkCurved_);
    layout->addLayout(radius);

    auto* planets = new QHBoxLayout;
    for (QPushButton* planet :
         {MakeButton("cmdEarth", "Earth", "Sets the planet radius for the earth"),
          MakeButton("cmdMoon", "Moon", "Sets the planet radius for the moon"),
          MakeButton("cmdMars", "Mars", "Sets the planet radius for the mars")}) {
        planet->setEnabled(false);
        planets->addWidget(planet);
    }
    layout->addLayout(planets);
    auto* cmdPlanetRender = MakeButton(
        "cmdPlanetRender", "Planet complete",
        "Sets all values for the terrain values, over in Terragen a planet too rendern.");
    cmdPlanetRender->setEnabled(false);
    layout->addWidget(cmdPlanetRender);
    return frame;
}

QWidget* GlobalPanel::BuildLandscapeArea() {
    auto* frame = MakeFrame("Landscape Area");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    const auto addRow = [&](QLineEdit* field, const char* label) {
        const int row = grid->rowCount();
        field->setReadOnly(true);
        grid->addWidget(field, row, 0);
        grid->addWidget(MakeLabel(label, field), row, 1);
        return field;
    };
    txtMetersPoint_ =
        addRow(MakeField("txtMetersPoint", "", "metres for point"), "metres point spacing");
    txtTerSizeMeters_ =
        addRow(MakeField("txtTerSizeMeters", "", "side length of the terrain"), "metres in square");
    txtMinTerrain_ = addRow(MakeField("txtMinTerrain", "-300", "Deepest point in the terrain "),
                            "min. heigth of Terrain in meters");
    txtMaxTerrain_ = addRow(MakeField("txtMaxTerrain", "600", "highest point in the terrain"),
                            "max. heigth of Terrain in meters");
    chkFixHeight_ = MakeCheck("chkFixHeight", "fix Height");
    grid->addWidget(chkFixHeight_, grid->rowCount(), 0, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return frame;
}

void GlobalPanel::Refresh() {
    clsTerrain& terrain = workplace_.TheSession().CurrentTerrain;
    const double scale = terrain.ScaleT();
    txtMetersPoint_->setText(Shown(STDIO::ClampValue(1.0, 100.0, scale), "#####.###"));
    txtMinTerrain_->setText(Shown(terrain.MinTU() * scale, "#######0"));
    txtMaxTerrain_->setText(Shown(terrain.MaxTU() * scale, "#######0"));
    txtPlanetRadius_->setText(Shown(terrain.CRAD(), "#####0"));
    txtTerSizeMeters_->setText(Shown(terrain.Size() * scale, "######0"));
    chkCurved_->setChecked(terrain.CRVM() != 0);
    terrain.FixHeight(chkFixHeight_->isChecked());
}

void GlobalPanel::TickSize(int size) {
    // An exclusive group would keep its last tick where no option fits.
    optTerSize_->setExclusive(false);
    for (QAbstractButton* option : optTerSize_->buttons())
        option->setChecked(false);
    optTerSize_->setExclusive(true);
    for (QAbstractButton* option : optTerSize_->buttons())
        if (option->property("Tag").toInt() == size)
            option->setChecked(true);
}

std::optional<int> GlobalPanel::ChosenSize() const {
    const QAbstractButton* option = optTerSize_->checkedButton();
    return option != nullptr ? std::optional(option->property("Tag").toInt()) : std::nullopt;
}

double GlobalPanel::PlanetRadius() const {
    return Val(txtPlanetRadius_->text().toStdString());
}

bool GlobalPanel::Curved() const {
    return chkCurved_->isChecked();
}

QString GlobalPanel::LowestText() const {
    return txtMinTerrain_->text();
}

QString GlobalPanel::HighestText() const {
    return txtMaxTerrain_->text();
}

void GlobalPanel::chkCurved_Click(bool ticked) {
    workplace_.TheSession().CurrentTerrain.CRVM(ticked ? 1 : 0);
}

}  // namespace quillbrand
