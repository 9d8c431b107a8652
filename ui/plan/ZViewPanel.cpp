#include "ui/plan/ZViewPanel.h"

#include <QGridLayout>
#include <QSignalBlocker>
#include <QSlider>

#include "base/NumberText.h"
#include "editor/Palette.h"
#include "editor/ZView.h"
#include "ui/controls/Controls.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

namespace {

constexpr int sectionSide = 510;
constexpr int sectionHeight = 340;
constexpr int thumbnailSide = 160;
constexpr int colourBarWidth = 20;

PictureBox* MakePicture(const char* name, int width, int height) {
    auto* box = Named(new PictureBox, name);
    box->setFixedSize(width, height);
    return box;
}

QSlider* MakeViewSlider(const char* name, Qt::Orientation direction, const char* toolTip) {
    auto* slider = Named(new QSlider(direction), name, toolTip);
    slider->setAccessibleName(QString::fromUtf8(toolTip));
    slider->setRange(1, 255);
    // The upper end of the slider is the upper row of the picture.
    slider->setInvertedAppearance(direction == Qt::Vertical);
    slider->setInvertedControls(direction == Qt::Vertical);
    return slider;
}

}  // namespace

ZViewPanel::ZViewPanel(Workplace& workplace, QWidget* parent)
    : QWidget(parent), workplace_(workplace) {
    setObjectName(QStringLiteral("PicZ"));
    auto* below = new QHBoxLayout;
    below->setSpacing(2 * gap);
    below->addLayout(BuildPosition());
    below->addLayout(BuildWords(), 1);
    below->addWidget(BuildColourTable());

    auto* column = new QWidget;
    auto* columnLayout = new QVBoxLayout(column);
    columnLayout->setSpacing(2 * gap);
    columnLayout->addWidget(BuildSection());
    columnLayout->addLayout(below);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(column, 0, Qt::AlignCenter);
    ConnectControls();
}

void ZViewPanel::ConnectControls() {
    connect(sldXView_, &QSlider::valueChanged, this, [this](int value) { Move(value, 1); });
    connect(SldYView_, &QSlider::valueChanged, this, [this](int value) { Move(value, 0); });
    connect(chkRealViewZ_, &QCheckBox::clicked, this, &ZViewPanel::Reopen);
    connect(PicZView_, &PictureBox::Clicked, this, &ZViewPanel::Reopen);
    connect(PicZView_, &PictureBox::MouseMove, this,
            [this](const PlanMouse& mouse) { emit ThumbnailMouseMove(mouse.place); });
}

/// The thumbnail with a slider along each side.
QLayout* ZViewPanel::BuildPosition() {
    PicZView_ = MakePicture("PicZView", thumbnailSide, thumbnailSide);
    sldXView_ = MakeViewSlider("sldXView", Qt::Vertical, "View ->");
    SldYView_ = MakeViewSlider("SldYView", Qt::Horizontal, "view from Bottom");
    auto* position = new QGridLayout;
    position->setSpacing(gap / 2);
    position->addWidget(sldXView_, 0, 0);
    position->addWidget(PicZView_, 0, 1);
    position->addWidget(SldYView_, 1, 1);
    return position;
}

QLayout* ZViewPanel::BuildWords() {
    lblViewFrom_ = Named(new QLabel, "lblViewFrom");
    QFont strong = lblViewFrom_->font();
    strong.setBold(true);
    lblViewFrom_->setFont(strong);
    chkRealViewZ_ =
        MakeCheck("chkRealViewZ", "Real",
                  "The Z view is optimized to be able to view all height graduations. For an "
                  "opinion as the terrain looks real in Terragen please choose the \"real\" "
                  "switch.");
    auto* from = new QHBoxLayout;
    from->addWidget(new QLabel(QStringLiteral("View from")));
    from->addWidget(lblViewFrom_);
    from->addStretch();
    auto* words = new QVBoxLayout;
    words->setSpacing(gap);
    words->addLayout(from);
    auto* hint = new QLabel(QStringLiteral("Scroll the Slider for Z-View-Position"));
    hint->setWordWrap(true);
    words->addWidget(hint);
    words->addWidget(chkRealViewZ_);
    words->addStretch();
    return words;
}

QWidget* ZViewPanel::BuildSection() {
    auto* section = new QWidget;
    auto* layout = new QGridLayout(section);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    lblZhigh_ = Named(new QLabel, "lblZhigh");
    lblZlow_ = Named(new QLabel, "lblZlow");
    for (QLabel* label : {lblZhigh_, lblZlow_}) {
        // Room for the longest altitude, so that the section does not move when texts change.
        label->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-00000 m")));
        label->setAlignment(Qt::AlignRight);
    }
    frmZView_ = MakePicture("frmZView", sectionSide, sectionHeight);
    layout->addWidget(lblZhigh_, 0, 0, Qt::AlignTop);
    layout->addWidget(lblZlow_, 1, 0, Qt::AlignBottom);
    layout->addWidget(frmZView_, 0, 1, 2, 1);
    return section;
}

QWidget* ZViewPanel::BuildColourTable() {
    auto* frame = MakeFrame("Colortable");
    auto* layout = new QGridLayout(frame);
    PicColor_ = MakePicture("PicColor", colourBarWidth, 120);
    lblColTblMax_ = Named(new QLabel, "lblColTblMax");
    lblColTblMin_ = Named(new QLabel, "lblColTblMin");
    layout->addWidget(PicColor_, 0, 0, 2, 1);
    layout->addWidget(lblColTblMax_, 0, 1, Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(lblColTblMin_, 1, 1, Qt::AlignLeft | Qt::AlignBottom);
    return frame;
}

void ZViewPanel::SetAltitudes(const QString& low, const QString& high) {
    low_ = low;
    high_ = high;
}

void ZViewPanel::Move(int position, int axis) {
    if (RunCommand(workplace_.Window(), workplace_.TheHost(), QStringLiteral("Z-View"),
                   [this, position, axis] { ZView(position, axis); }) == Ended::WithFault)
        emit Leave();
}

void ZViewPanel::Open(const Picture& plan) {
    PicZView_->SetRaster(plan);
    PicZView_->SetUnits(workplace_.TheSession().document.CurrentTerrain.Size());
    DrawColourBar();
    const int last = std::max(1, workplace_.TheSession().document.CurrentTerrain.Size() - 1);
    for (QSlider* slider : {sldXView_, SldYView_}) {
        const QSignalBlocker quiet(slider);
        slider->setRange(1, last);
    }
    ZView(sldXView_->value(), 1);
}

void ZViewPanel::DrawColourBar() {
    Picture bar(1, PaletteMax + 1);
    const auto& strip = PaletteStrip(workplace_.TheSession().settings.PaletteRow);
    for (int i = 0; i <= PaletteMax; ++i)
        *bar.Row(i) = strip[static_cast<std::size_t>(PaletteMax - i)];
    PicColor_->SetRaster(std::move(bar));
}

void ZViewPanel::ZView(int position, int axis) {
    clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    lblZhigh_->setText(high_ + QStringLiteral(" m"));
    lblZlow_->setText(low_ + QStringLiteral(" m"));
    lblColTblMax_->setText(lblZhigh_->text());
    lblColTblMin_->setText(lblZlow_->text());

    const Section section{position, axis == 1, chkRealViewZ_->isChecked()};
    Picture picture(sectionSide, sectionHeight);
    const double range = SectionRange(terrain, section, picture);
    if (section.real)
        lblZhigh_->setText(QString::fromStdString(Format(range, "##### m")));
    if (range == 0) {
        TellUser(workplace_.Window(), QStringLiteral("Terrain flat"), QStringLiteral("Z-view"));
        emit Leave();
        return;
    }
    DrawSection(picture, terrain, section, range);
    frmZView_->SetRaster(std::move(picture));
    lblViewFrom_->setText(axis == 0 ? QStringLiteral("X") : QStringLiteral("Y"));
}

}  // namespace quillbrand
