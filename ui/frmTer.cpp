#include "ui/frmTer.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QProgressBar>
#include <QShortcut>
#include <QStackedLayout>
#include <QTabWidget>
#include <QTimer>

#include "base/NumberText.h"
#include "base/Stdio.h"
#include "editor/Palette.h"
#include "shell/TerrainCommands.h"
#include "terrain/HeightsChange.h"
#include "ui/StatusPanels.h"
#include "ui/Theme.h"
#include "ui/Toolbar1.h"
#include "ui/controls/Controls.h"
#include "ui/dialogs/Messages.h"
#include "ui/panels/EditPanel.h"
#include "ui/panels/EffectsPanel.h"
#include "ui/panels/GeneratorPanel.h"
#include "ui/panels/GlobalPanel.h"
#include "ui/panels/ObjectsPanel.h"
#include "ui/plan/EditTools.h"
#include "ui/plan/PlanView.h"
#include "ui/plan/ToolStrip.h"
#include "ui/plan/ZViewPanel.h"

namespace quillbrand {

namespace {

/// Room around the picture.
constexpr int pictureMargin = 20;

constexpr int messageMs = 10'000;

/// The one local TER file of a drag, or nothing.
std::optional<std::filesystem::path> DraggedTerrain(const QMimeData* data) {
    if (data == nullptr || data->urls().size() != 1 || !data->urls().front().isLocalFile())
        return std::nullopt;
    const QString path = data->urls().front().toLocalFile();
    if (!path.endsWith(QStringLiteral(".ter"), Qt::CaseInsensitive))
        return std::nullopt;
    return path.toStdString();
}

}  // namespace

frmTer::frmTer(Session& session, WindowHost& host, QWidget* parent)
    : QMainWindow(parent), session_(session), host_(host), document_(*this) {
    setObjectName(QStringLiteral("frmTer"));
    setAcceptDrops(true);
    BuildWindow();
    ConnectParts();
    host_.Attach(
        this, [this](const std::string& text) { InfoText_->setText(QString::fromStdString(text)); },
        [this] { ActualScreen(); }, [this](bool take) { EnableInput(take); });
    UpdateTitle();
}

frmTer::~frmTer() = default;

void frmTer::ConnectParts() {
    connect(Timer1_, &QTimer::timeout, this, &frmTer::Timer1_Timer);
    connect(OptXYView_, &QRadioButton::clicked, this, &frmTer::ShowPlanView);
    connect(optZView_, &QRadioButton::clicked, this, &frmTer::ShowZView);
    connect(planView_, &PlanView::PanelText, sBar_, &StatusPanels::SetPanel);
    connect(PicZ_, &ZViewPanel::Reopen, this, &frmTer::ShowZView);
    auto* redraw = new QShortcut(QKeySequence(Qt::Key_F5), this);
    connect(redraw, &QShortcut::activated, planView_, &PlanView::Redraw);
    connect(SSTab1_, &QTabWidget::currentChanged, this, [this] {
        editTools_->DeactEdit();
        editPanel_->ShowMiddle();
    });
    connect(PicZ_, &ZViewPanel::Leave, this, &frmTer::ShowPlanView);
    connect(PicZ_, &ZViewPanel::ThumbnailMouseMove, planView_, &PlanView::ShowPoint);
}

bool frmTer::Form_Load() {
    session_.document.history.Mode(HistoryMode::Steps);
    session_.document.history.Megabytes(session_.settings.historyMegabytes);
    session_.document.CurrentTerrain.pProgress = 100;
    session_.TerrainBusy = false;
    if (session_.settings.BackColor)
        setPalette(WindowColours(ToQColor(*session_.settings.BackColor)));
    loaded_ = true;
    ResizePicture();
    session_.document.TerrainEmpty = true;
    ActualScreen();
    if (!PerlinPathExists(session_.tools.PerlinSets.folder)) {
        WarnUser(this,
                 QStringLiteral("Perlinsets not found !! Please install Perlinsets in "
                                "Quillbrandsubfolder \\PS !"),
                 QStringLiteral("ERROR"));
        return false;
    }
    generatorPanel_->LoadPerlinList();
    planView_->SetBackColor(PaletteTable(128, session_.settings.PaletteRow));
    editPanel_->Form_Load();
    if (!session_.StartFile.empty())
        OpenFile(session_.StartFile);
    return true;
}

double frmTer::PictureLimit() const {
    return std::min(pictures_->width(), pictures_->height()) - pictureMargin;
}

void frmTer::ShowPlanView() {
    views_->setCurrentIndex(0);
    OptXYView_->setChecked(true);
}

void frmTer::ResizePicture(double factor) {
    ShowPlanView();
    planView_->Resize(factor, PictureLimit());
    globalPanel_->TickSize(session_.document.CurrentTerrain.Size());
    ActualScreen();
}

void frmTer::RebuildPicture() {
    planView_->Rebuild();
}

void frmTer::ShowFixHeight() {
    globalPanel_->ShowFixHeight();
}

void frmTer::Say(const QString& text) {
    sBar_->showMessage(text, messageMs);
}

void frmTer::UpdateTitle() {
    const QString file = QString::fromStdString(session_.document.CurrentFile);
    if (!isMinimized()) {
        setWindowTitle(QStringLiteral("Quillbrand  [") + file + QLatin1Char(']'));
        return;
    }
    const QString state = session_.TerrainBusy
                              ? QString::fromStdString(Format(
                                    session_.document.CurrentTerrain.pProgress / 100.0, "### %"))
                              : QStringLiteral("Ready");
    setWindowTitle(state + QStringLiteral(" - Quillbrand  [") + file + QStringLiteral("]   "));
}

void frmTer::ActualScreen() {
    UpdateTitle();
    globalPanel_->Refresh();
    const bool hasTerrain = !session_.document.TerrainEmpty;
    for (const char* key : {"Speichern", "SpeichernAls", "Print", "Backup"})
        toolbar_->EnableButton(QString::fromUtf8(key), hasTerrain);
    toolbar_->EnableButton(QStringLiteral("Restore"), session_.BackupExists);
    ShowHistory();
    effectsPanel_->Refresh();
    generatorPanel_->Refresh();
    editPanel_->SetAltitudes(Val(globalPanel_->LowestText().toStdString()),
                             Val(globalPanel_->HighestText().toStdString()));
}

void frmTer::ShowHistory() {
    const History& history = session_.document.history;
    const auto show = [this](const QString& key, bool can, const std::string& name) {
        toolbar_->EnableButton(key, can);
        toolbar_->Button(key)->setToolTip(
            can ? key + QStringLiteral(": ") + QString::fromStdString(name) : key);
    };
    show(QStringLiteral("Undo"), history.CanUndo(), history.NameOfUndo());
    show(QStringLiteral("Redo"), history.CanRedo(), history.NameOfRedo());
    if (history.LostHistory())
        Say(QStringLiteral("Not enough memory: nothing before can be undone"));
}

void frmTer::EnableInput(bool enable) {
    if (enable == inputEnabled_)
        return;
    // Whoever works by keyboard goes on where the command was started.
    if (!enable)
        focusBefore_ = focusWidget();
    for (QWidget* part : std::initializer_list<QWidget*>{toolbar_, toolStrip_, SSTab1_, planView_,
                                                         PicZ_, OptXYView_, optZView_})
        part->setEnabled(enable);
    if (enable && focusBefore_ != nullptr && focusWidget() == nullptr)
        focusBefore_->setFocus();
    enable ? unsetCursor() : setCursor(Qt::WaitCursor);
    inputEnabled_ = enable;
}

void frmTer::Timer1_Timer() {
    const bool busy = session_.TerrainBusy;
    // A command whose flag is clear has not ended yet: whatever it kept out stays out.
    if (busy || !host_.CommandRuns())
        EnableInput(!busy);
    if (busy) {
        PB_->setValue(STDIO::ClampValue(0, 100, session_.document.CurrentTerrain.pProgress));
    } else {
        InfoText_->setText(QStringLiteral("Ready"));
        PB_->setValue(0);
    }
    if (isMinimized())
        UpdateTitle();
}

void frmTer::CommonEnd() {
    InfoText_->setText(QStringLiteral("Ready"));
    PB_->setValue(0);
    session_.TerrainBusy = false;
    editPanel_->Slider2_Change();
    ActualScreen();
    host_.Yield();
}

void frmTer::OpenFile(const std::filesystem::path& path) {
    if (host_.CommandRuns())
        return;
    const CommandScope scope(host_);
    RunPart(this, host_, QStringLiteral("Open"), [&] { document_.Open(path); });
    CommonEnd();
}

void frmTer::StepBack() {
    RunCommand(this, host_, QStringLiteral("Undo"), [this] { document_.Undo(); });
}

void frmTer::StepForward() {
    RunCommand(this, host_, QStringLiteral("Redo"), [this] { document_.Redo(); });
}

void frmTer::ShowZView() {
    if (RunCommand(this, host_, QStringLiteral("Z-View"), [this] { optZView_Click(); }) !=
        Ended::Well)
        ShowPlanView();
}

void frmTer::optZView_Click() {
    if (session_.document.TerrainEmpty) {
        TellUser(this, QStringLiteral("Terrain empty !"), QStringLiteral("Z-View"));
        ShowPlanView();
        return;
    }
    HeightsChange change(session_.document, "Z-View");
    session_.document.CurrentTerrain.ScaleTerrain();
    change.Commit();
    ActualScreen();
    PicZ_->SetAltitudes(globalPanel_->LowestText(), globalPanel_->HighestText());
    optZView_->setChecked(true);
    views_->setCurrentIndex(1);
    editTools_->DeactEdit();
    PicZ_->Open(planView_->Raster());
}

void frmTer::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (!loaded_)
        return;
    ResizePicture();
}

void frmTer::closeEvent(QCloseEvent* event) {
    bool mayExit = false;
    RunCommand(this, host_, QStringLiteral("EXIT"), [&] {
        mayExit = document_.MayExit();
        session_.TerrainBusy = false;
    });
    event->setAccepted(mayExit);
    if (mayExit)
        RemoveBackup(session_);
}

void frmTer::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        UpdateTitle();
    if (event->type() == QEvent::PaletteChange) {
        // The parts take the window's palette over only after this.
        toolbar_->TintIcons(palette());
        toolStrip_->TintIcons(palette());
    }
}

void frmTer::dragEnterEvent(QDragEnterEvent* event) {
    if (!host_.CommandRuns() && DraggedTerrain(event->mimeData()))
        event->acceptProposedAction();
}

void frmTer::dropEvent(QDropEvent* event) {
    const auto path = DraggedTerrain(event->mimeData());
    if (!path || host_.CommandRuns())
        return;
    // Not within the drop: its sender would wait for the answer to a question.
    host_.WhenIdle([this, path = *path] { OpenFile(path); });
}

}  // namespace quillbrand
