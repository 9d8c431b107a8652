#include "ui/dialogs/frmElevator.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/Canvas.h"
#include "base/Fault.h"
#include "base/Text.h"
#include "effects/QBTools2.h"
#include "ui/controls/Controls.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

namespace {

constexpr int pictureSide = 260;
constexpr int listWidth = 190;

constexpr Colour grey = ColourOf(0xC0, 0xC0, 0xC0);
constexpr Colour paleGrey = ColourOf(0xAC, 0xAC, 0xAC);
constexpr Colour darkGrey = ColourOf(0x80, 0x80, 0x80);
constexpr Colour black = ColourOf(0, 0, 0);

/// Names of sets are 8-bit text.
QString TextOf(const std::string& name) {
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

std::string NameOf(const QString& text) {
    return ToLatin1(text.toStdString());
}

}  // namespace

frmElevator::frmElevator(Workplace& workplace)
    : QDialog(workplace.Window()), workplace_(workplace) {
    setObjectName(QStringLiteral("frmElevator"));
    setWindowTitle(QStringLiteral("Elevator shift"));
    setModal(true);
    BuildWindow();
    Form_Load();
    ConnectControls();
}

void frmElevator::BuildWindow() {
    auto* work = new QHBoxLayout;
    work->setSpacing(gap);
    work->addWidget(BuildPicture(), 0, Qt::AlignTop);
    work->addLayout(BuildSets());

    auto* OKButton = MakeButton("OKButton", "OK");
    auto* CancelButton = MakeButton("CancelButton", "Cancel");
    OKButton->setDefault(true);
    connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    buttons->addWidget(cmdReset_);
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addLayout(work);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    OrderTabs({List1_, cmdAddElevatorSet_, cmdElevatorSave_, cmdReset_, OKButton, CancelButton});
}

QWidget* frmElevator::BuildPicture() {
    PicElevator_ = Named(new PictureBox, "PicElevator",
                         "Draw with the left button held. Heights from left to right become "
                         "heights from bottom to top;\nonly the lower left quarter takes part.");
    PicElevator_->setFixedSize(pictureSide, pictureSide);
    PicElevator_->setCursor(Qt::CrossCursor);
    PicElevator_->SetRaster(Picture(pictureSide, pictureSide));
    auto* border = new QFrame;
    border->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* layout = new QVBoxLayout(border);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PicElevator_);
    return border;
}

QLayout* frmElevator::BuildSets() {
    List1_ = Named(new QListWidget, "List1");
    List1_->setAccessibleName(QStringLiteral("Sets"));
    List1_->setFixedWidth(listWidth);
    cmdAddElevatorSet_ = MakeButton("cmdAddElevatorSet", "Add", "Keep the curve as a new set");
    cmdElevatorSave_ = MakeButton("cmdElevatorSave", "Save",
                                  "Keep the curve as the chosen set; \"nothing\" stays straight");
    cmdReset_ = MakeButton("cmdReset", "Reset", "Back to the straight line");
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    buttons->addWidget(cmdAddElevatorSet_);
    buttons->addWidget(cmdElevatorSave_);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(gap);
    layout->addWidget(List1_, 1);
    layout->addLayout(buttons);
    return layout;
}

void frmElevator::ConnectControls() {
    const auto onClick = [this](QPushButton* button, void (frmElevator::*handler)()) {
        connect(button, &QPushButton::clicked, this, [this, handler] {
            RunPart(this, workplace_.TheHost(), windowTitle(),
                    [this, handler] { (this->*handler)(); });
        });
    };
    onClick(cmdAddElevatorSet_, &frmElevator::cmdAddElevatorSet_Click);
    onClick(cmdElevatorSave_, &frmElevator::cmdElevatorSave_Click);
    onClick(cmdReset_, &frmElevator::cmdReset_Click);
    connect(PicElevator_, &PictureBox::MouseDown, this, &frmElevator::PicElevator_MouseDown);
    connect(PicElevator_, &PictureBox::MouseMove, this, &frmElevator::PicElevator_MouseMove);
    connect(PicElevator_, &PictureBox::Clicked, this, &frmElevator::RedrawLine);
    // A press on the entry that is chosen already fetches its curve again.
    connect(List1_, &QListWidget::currentRowChanged, this, &frmElevator::List1_Click);
    connect(List1_, &QListWidget::itemPressed, this, [this] {
        if (!choiceTaken_)
            List1_Click();
    });
    List1_->viewport()->installEventFilter(this);
}

bool frmElevator::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        choiceTaken_ = false;
    return QDialog::eventFilter(watched, event);
}

Elevator& frmElevator::TheElevator() {
    return workplace_.TheSession().tools.elevator;
}

void frmElevator::Form_Load() {
    const QBTools2::ElevatorList list = QBTools2::OpenElevator(TheElevator());
    for (const std::string& name : list.names)
        AddToList(name);
    List1_->setCurrentRow(TheElevator().ElevatorSetIndex);
    trouble_ = QString::fromStdString(list.trouble);
    RedrawLine();
}

void frmElevator::AddToList(const std::string& name) {
    List1_->addItem(TextOf(name));
}

void frmElevator::Run() {
    show();
    if (!trouble_.isEmpty())
        TellUser(this, trouble_, windowTitle());
    exec();
}

void frmElevator::RedrawLine() {
    Canvas canvas(PicElevator_->EditRaster());
    canvas.Clear(grey);
    // The quarter that acts on heights.
    constexpr int half = ElevatorMax / 2;
    canvas.Line(0, half, half, half, paleGrey);
    canvas.Line(half, half, half, ElevatorMax, paleGrey);
    canvas.Line(0, ElevatorMax, ElevatorMax, 0, darkGrey);  // Line1
    int penX = ElevatorMax;
    int penY = 0;
    for (int a = ElevatorMax; a >= 0; --a)
        for (int b = 0; b <= ElevatorMax; ++b)
            if (TheElevator().grid(a, b) == 1) {
                canvas.Line(penX, penY, a, b, black);
                penX = a;
                penY = b;
            }
    PicElevator_->RasterChanged();
}

void frmElevator::List1_Click() {
    choiceTaken_ = true;
    const int index = List1_->currentRow();
    const bool chosen = RunPart(this, workplace_.TheHost(), windowTitle(),
                                [&] { QBTools2::ChooseElevatorSet(TheElevator(), index); });
    if (!chosen) {
        const QSignalBlocker quiet(List1_);
        List1_->setCurrentRow(TheElevator().ElevatorSetIndex);
    }
    RedrawLine();
}

void frmElevator::PicElevator_MouseDown(const PlanMouse& mouse) {
    if (mouse.button != Qt::LeftButton)
        return;
    TheElevator().grid.Press(mouse.place.x(), mouse.place.y());
    RedrawLine();
}

void frmElevator::PicElevator_MouseMove(const PlanMouse& mouse) {
    if (!mouse.held.testFlag(Qt::LeftButton))
        return;
    TheElevator().grid.Drag(mouse.place.x(), mouse.place.y());
    RedrawLine();
}

void frmElevator::cmdAddElevatorSet_Click() {
    bool answered = false;
    const QString answer =
        QInputDialog::getText(this, QStringLiteral("New Set"), QStringLiteral("Setname"),
                              QLineEdit::Normal, {}, &answered);
    if (!answered)
        return;
    const std::string name = NameOf(answer);
    QBTools2::SaveElevatorSet(TheElevator(), List1_->count(), name);
    AddToList(name);
}

void frmElevator::cmdElevatorSave_Click() {
    if (List1_->selectedItems().isEmpty())
        throw Fault("No set is chosen");
    QBTools2::SaveElevatorSet(TheElevator(), List1_->currentRow(),
                              NameOf(List1_->currentItem()->text()));
}

void frmElevator::cmdReset_Click() {
    QBTools2::ResetElevator(TheElevator());
    RedrawLine();
}

void frmElevator::accept() {
    TheElevator().grid.Arm(true);
    QDialog::accept();
}

void frmElevator::reject() {
    QBTools2::ResetElevator(TheElevator());
    QDialog::reject();
}

}  // namespace quillbrand
