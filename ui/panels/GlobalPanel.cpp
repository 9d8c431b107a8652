#include "ui/panels/GlobalPanel.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "shell/EditingCommands.h"
#include "shell/LandscapeArea.h"
#include "terrain/HeightsChange.h"
#include "ui/controls/Controls.h"
#include "ui/controls/NumberField.h"
#include "ui/dialogs/Messages.h"

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

constexpr auto lowestLabel = "min. heigth of Terrain in meters";
constexpr auto highestLabel = "max. heigth of Terrain in meters";
constexpr auto changeValue = "Change Value";

template <typename Field>
Field* MakeField(const char* name, const char* text, const char* toolTip) {
    auto* field = Named(new Field(QString::fromUtf8(text)), name, toolTip);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(fieldWidth);
    return field;
}

/// A field that was entered by Tab stays selected, for the next key to replace what it holds.
void Renew(QLineEdit* field, const std::string& shown) {
    const QString text = QString::fromStdString(shown);
    if (field->text() == text)
        return;
    const bool wasSelected = field->hasSelectedText() && field->selectedText() == field->text();
    field->setText(text);
    if (wasSelected)
        field->selectAll();
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
    connect(optTerSize_, &QButtonGroup::idClicked, this, &GlobalPanel::TakeChosenSize);
    ConnectFields();
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
    connect(CmdResize, &QPushButton::clicked, this, &GlobalPanel::CmdResize_Click);
    grid->addWidget(CmdResize, sizeRows - 1, 1);
    return frame;
}

QWidget* GlobalPanel::BuildPlanetaryContext() {
    auto* frame = MakeFrame("Planetary Context");
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    txtPlanetRadius_ = MakeField<NumberField>("txtPlanetRadius", "6370", "Planetradius in km");
    chkCurved_ = MakeCheck("chkCurved", "curved Terrain", "click for curved Terrain");
    auto* radius = new QHBoxLayout;
    radius->addWidget(MakeLabel("Radius", txtPlanetRadius_));
    radius->addWidget(txtPlanetRadius_);
    radius->addStretch();
    radius->addWidget(chkCurved_);
    layout->addLayout(radius);

    auto* planets = new QHBoxLayout;
    const auto addPlanet = [&](QPushButton* planet, void (GlobalPanel::*click)()) {
        planets->addWidget(planet);
        connect(planet, &QPushButton::clicked, this, click);
    };
    addPlanet(MakeButton("cmdEarth", "Earth", "Sets the planet radius for the earth"),
              &GlobalPanel::cmdEarth_Click);
    addPlanet(MakeButton("cmdMoon", "Moon", "Sets the planet radius for the moon"),
              &GlobalPanel::cmdMoon_Click);
    addPlanet(MakeButton("cmdMars", "Mars", "Sets the planet radius for the mars"),
              &GlobalPanel::cmdMars_Click);
    layout->addLayout(planets);
    auto* cmdPlanetRender = MakeButton(
        "cmdPlanetRender", "Planet complete",
        "Sets all values for the terrain values, over in Terragen a planet too rendern.");
    layout->addWidget(cmdPlanetRender);
    connect(cmdPlanetRender, &QPushButton::clicked, this, &GlobalPanel::cmdPlanetRender_Click);
    return frame;
}

QWidget* GlobalPanel::BuildLandscapeArea() {
    auto* frame = MakeFrame("Landscape Area");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(gap);
    const auto addRow = [&](auto* field, const char* label) {
        const int row = grid->rowCount();
        grid->addWidget(field, row, 0);
        grid->addWidget(MakeLabel(label, field), row, 1);
        return field;
    };
    txtMetersPoint_ = addRow(MakeField<QLineEdit>("txtMetersPoint", "", "metres for point"),
                             "metres point spacing");
    txtMetersPoint_->setReadOnly(true);
    txtMetersPoint_->setFocusPolicy(Qt::ClickFocus);
    QPalette shownOnly;
    shownOnly.setBrush(QPalette::Base, Qt::transparent);
    txtMetersPoint_->setPalette(shownOnly);
    txtTerSizeMeters_ =
        addRow(MakeField<NumberField>("txtTerSizeMeters", "", "side length of the terrain"),
               "metres in square");
    txtMinTerrain_ =
        addRow(MakeField<NumberField>("txtMinTerrain", "-300", "Deepest point in the terrain "),
               lowestLabel);
    txtMaxTerrain_ =
        addRow(MakeField<NumberField>("txtMaxTerrain", "600", "highest point in the terrain"),
               highestLabel);
    chkFixHeight_ = MakeCheck("chkFixHeight", "fix Height");
    grid->addWidget(chkFixHeight_, grid->rowCount(), 0, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return frame;
}

void GlobalPanel::ConnectFields() {
    connect(txtPlanetRadius_, &QLineEdit::textEdited, this, &GlobalPanel::txtPlanetRadius_KeyPress);
    connect(txtMinTerrain_, &NumberField::Left, this, [this] {
        LeaveSoon(
            [this, text = txtMinTerrain_->text().toStdString()] { txtMinTerrain_Validate(text); });
    });
    connect(txtMaxTerrain_, &NumberField::Left, this, [this] {
        LeaveSoon(
            [this, text = txtMaxTerrain_->text().toStdString()] { txtMaxTerrain_Validate(text); });
    });
    connect(txtTerSizeMeters_, &NumberField::GotFocus, this,
            &GlobalPanel::txtTerSizeMeters_GotFocus);
    connect(txtTerSizeMeters_, &NumberField::Left, this, [this] {
        LeaveSoon([this, text = txtTerSizeMeters_->text().toStdString(), old = oldSizeText_] {
            txtTerSizeMeters_Validate(text);
            txtTerSizeMeters_LostFocus(old);
        });
    });
}

/// A field can need a message box when it is left, which must not come up amid a press of the mouse
/// or a change of tabs, and not while a command runs. So its text is taken now and acts when these
/// are through.
void GlobalPanel::LeaveSoon(std::function<void()> leave) {
    leaves_.push_back(std::move(leave));
    workplace_.TheHost().WhenIdle([this] { FinishLeaving(); });
}

/// Before anything else that the user does here.
void GlobalPanel::FinishLeaving() {
    while (!workplace_.TheHost().CommandRuns() && !leaves_.empty()) {
        const auto leave = std::move(leaves_.front());
        leaves_.erase(leaves_.begin());
        leave();
    }
}

void GlobalPanel::Change(const QString& command, const std::function<void(clsTerrain&)>& change) {
    WindowHost& host = workplace_.TheHost();
    Document& document = workplace_.TheSession().document;
    RunCommand(workplace_.Window(), host, command, [&] {
        HeightsChange step(document, command.toStdString());
        change(document.CurrentTerrain);
        step.Commit();
    });
    host.ActualScreen();
}

void GlobalPanel::Refresh() {
    clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    const LandscapeFields fields = FieldsOf(terrain);
    Renew(txtMetersPoint_, fields.spacing);
    Renew(txtMinTerrain_, fields.texts.lowest);
    Renew(txtMaxTerrain_, fields.texts.highest);
    Renew(txtPlanetRadius_, fields.radius);
    Renew(txtTerSizeMeters_, fields.texts.side);
    // What the terrain brings is no edit of the user's.
    oldSizeText_ = txtTerSizeMeters_->text();
    chkCurved_->setChecked(terrain.CRVM() != 0);
    terrain.FixHeight(chkFixHeight_->isChecked());
}

void GlobalPanel::ShowFixHeight() {
    chkFixHeight_->setChecked(workplace_.TheSession().document.CurrentTerrain.FixHeight());
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
    TakeChosenSize();
}

void GlobalPanel::TakeChosenSize() {
    const QAbstractButton* option = optTerSize_->checkedButton();
    workplace_.TheSession().tools.chosenSize =
        option != nullptr ? std::optional(option->property("Tag").toInt()) : std::nullopt;
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

void GlobalPanel::CmdResize_Click() {
    FinishLeaving();
    RunCommand(workplace_.Window(), workplace_.TheHost(), QStringLiteral("Resize"),
               [this] { Resize(); });
}

void GlobalPanel::Resize() {
    Session& session = workplace_.TheSession();
    Host& host = workplace_.TheHost();
    if (!session.tools.chosenSize)
        throw Fault("No size of the grid is chosen");
    workplace_.ShowPlanView();
    const std::string outcome =
        ResizeDocument(session.document, *session.tools.chosenSize, session.settings.ResizeMode,
                       session.tools.roughness, host);
    workplace_.ResizePicture();
    workplace_.RebuildPicture();
    host.Busy(false);
    host.ActualScreen();
    workplace_.Say(QString::fromStdString(outcome));
}

void GlobalPanel::chkCurved_Click(bool ticked) {
    FinishLeaving();
    Change(QStringLiteral("curved Terrain"),
           [ticked](clsTerrain& terrain) { terrain.CRVM(ticked ? 1 : 0); });
}

void GlobalPanel::cmdEarth_Click() {
    FinishLeaving();
    Change(QStringLiteral("Earth"), [](clsTerrain& terrain) { terrain.CRAD(earthRadius); });
}

void GlobalPanel::cmdMoon_Click() {
    FinishLeaving();
    Change(QStringLiteral("Moon"), [](clsTerrain& terrain) { terrain.CRAD(moonRadius); });
}

void GlobalPanel::cmdMars_Click() {
    FinishLeaving();
    Change(QStringLiteral("Mars"), [](clsTerrain& terrain) { terrain.CRAD(marsRadius); });
}

void GlobalPanel::cmdPlanetRender_Click() {
    FinishLeaving();
    Change(QStringLiteral("Planet complete"), CompletePlanet);
}

void GlobalPanel::txtPlanetRadius_KeyPress(const QString& text) {
    const std::string typed = text.toStdString();
    const std::string limited = LimitedRadius(typed);
    if (limited == typed)
        return;
    const int place = txtPlanetRadius_->cursorPosition();
    txtPlanetRadius_->setText(QString::fromStdString(limited));
    // The least radius stands for a number that is still to be typed: the next key replaces it.
    if (limited == LimitedRadius(""))
        txtPlanetRadius_->selectAll();
    else
        txtPlanetRadius_->setCursorPosition(place);
}

void GlobalPanel::txtMinTerrain_Validate(const std::string& text) {
    Change(QString::fromUtf8(lowestLabel), [&](clsTerrain& terrain) { SetLowest(terrain, text); });
}

void GlobalPanel::txtMaxTerrain_Validate(const std::string& text) {
    Change(QString::fromUtf8(highestLabel),
           [&](clsTerrain& terrain) { SetHighest(terrain, text); });
}

void GlobalPanel::txtTerSizeMeters_GotFocus() {
    oldSizeText_ = txtTerSizeMeters_->text();
}

void GlobalPanel::txtTerSizeMeters_Validate(const std::string& text) {
    const clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    txtTerSizeMeters_->setText(QString::fromStdString(LimitedSide(terrain, text)));
}

void GlobalPanel::txtTerSizeMeters_LostFocus(const QString& oldSizeText) {
    const LandscapeTexts texts{txtTerSizeMeters_->text().toStdString(),
                               txtMinTerrain_->text().toStdString(),
                               txtMaxTerrain_->text().toStdString()};
    const bool isNew = txtTerSizeMeters_->text() != oldSizeText;
    Change(QString::fromUtf8(changeValue), [&](clsTerrain& terrain) {
        const bool grows =
            isNew && workplace_.TheHost().Ask(
                         {"The size was changed. Shall the Terrain height also be adjusted?",
                          changeValue, Buttons::YesNo, QuestionId::ScaleHeights}) == Answer::Yes;
        SetSide(terrain, texts, grows ? KeepHeights::InUnits : KeepHeights::InMetres);
    });
}

}  // namespace quillbrand
