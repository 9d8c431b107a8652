#include "ui/dialogs/dlgOptions.h"

#include <QApplication>
#include <QButtonGroup>
#include <QColorDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListWidget>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "editor/Palette.h"
#include "shell/RegExt.h"
#include "ui/Theme.h"
#include "ui/controls/Controls.h"
#include "ui/dialogs/FolderDialog.h"
#include "ui/dialogs/Messages.h"

namespace quillbrand {

namespace {

constexpr std::array sizeCaptions = {"128x128", "256x256", "512x512", "1024x1024", "2048x2048"};
constexpr std::array resizeCaptions = {"Bilinear", "pixel repetition"};
constexpr std::array folderCaptions = {"Link to Terragen", "Object path", "Terrain path"};

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

constexpr QSize stripSize(64, 12);
constexpr QSize sampleSize(48, 24);
constexpr int listRowHeight = 22;
constexpr int folderWidth = 300;

/// Options NAMEi under each other, numbered from `first`; none is ticked where `ticked` is none of
/// them.
QButtonGroup* AddOptions(QGroupBox* frame, const char* name, std::span<const char* const> captions,
                         int first, int ticked) {
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(gap);
    auto* group = new QButtonGroup(frame);
    for (int index = first; const char* caption : captions) {
        auto* option = new QRadioButton(QString::fromUtf8(caption));
        option->setObjectName(QString::fromUtf8(name) + QString::number(index));
        option->setChecked(index == ticked);
        group->addButton(option, index);
        layout->addWidget(option);
        ++index;
    }
    layout->addStretch();
    return group;
}

/// The colours of a strip from the lowest to the highest.
QIcon StripIcon(int row) {
    const auto& strip = PaletteStrip(row);
    QImage image(stripSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, strip.at(std::size_t(x * PaletteMax / (image.width() - 1))));
    QIcon icon;
    // Untinted in the row that is selected, too.
    for (const auto mode : {QIcon::Normal, QIcon::Selected})
        icon.addPixmap(QPixmap::fromImage(image), mode);
    return icon;
}

}  // namespace

dlgOptions::dlgOptions(Workplace& workplace)
    : QDialog(workplace.Window()),
      workplace_(workplace),
      settings_(LoadOptions(workplace.TheSession().settings)),
      windowBefore_(workplace.Window()->palette()) {
    setObjectName(QStringLiteral("dlgOptions"));
    setWindowTitle(QStringLiteral("Options"));
    auto* tabs = Named(new QTabWidget, "SSTab1");
    tabs->addTab(BuildProgram(), QStringLiteral("Programm"));
    tabs->addTab(BuildFolders(), QStringLiteral("Directories"));
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(tabs);
    layout->addLayout(BuildButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* dlgOptions::BuildProgram() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setSpacing(gap);
    grid->addWidget(BuildSizes(), 0, 0);
    grid->addWidget(BuildResizeModes(), 1, 0);
    grid->addWidget(BuildPalettes(), 0, 1);
    grid->addWidget(BuildWindowColour(), 1, 1);
    auto* chkRegTERFile =
        MakeCheck("chkRegTERFile", "register TER-Files with Quillbrand",
                  "Each click makes the desktop open terrain files with this program");
    grid->addWidget(BuildHistory(), 2, 0, 1, 2);
    grid->addWidget(chkRegTERFile, 3, 0, 1, 2);
    connect(chkRegTERFile, &QCheckBox::clicked, this, &dlgOptions::chkRegTERFile_Click);
    return page;
}

QWidget* dlgOptions::BuildSizes() {
    auto* frame = MakeFrame("Terrainsize");
    frame->setToolTip(QStringLiteral("Size of the terrain at the next start"));
    Option1_ = AddOptions(frame, "Option1", sizeCaptions, 0, settings_.terrainSizeIndex);
    return frame;
}

QWidget* dlgOptions::BuildResizeModes() {
    auto* frame = MakeFrame("Modus for Resize");
    Option2_ = AddOptions(frame, "Option2", resizeCaptions, 1, settings_.ResizeMode);
    return frame;
}

QWidget* dlgOptions::BuildPalettes() {
    auto* frame = MakeFrame("Display Color");
    List1_ = Named(new QListWidget, "List1", "Shown with the next redraw of the picture");
    List1_->setIconSize(stripSize);
    for (int row = 0; const std::string_view name : PaletteNames()) {
        auto* item = new QListWidgetItem(StripIcon(row++), Words(name), List1_);
        item->setSizeHint(QSize(List1_->sizeHintForColumn(0), listRowHeight));
    }
    List1_->setCurrentRow(settings_.PaletteRow);
    List1_->setMinimumSize(List1_->sizeHintForColumn(0) + 3 * gap,
                           listRowHeight * List1_->count() + 2 * List1_->frameWidth());
    (new QVBoxLayout(frame))->addWidget(List1_);
    return frame;
}

QWidget* dlgOptions::BuildWindowColour() {
    auto* frame = MakeFrame("Window Color");
    auto* shColor = Named(new QFrame, "shColor", "The colour that Cancel goes back to");
    shColor->setFrameStyle(QFrame::Box | QFrame::Plain);
    shColor->setFixedSize(sampleSize);
    shColor->setAutoFillBackground(true);
    QPalette colours = shColor->palette();
    colours.setColor(QPalette::Window, windowBefore_.color(QPalette::Window));
    shColor->setPalette(colours);
    auto* cmdSelectColor = MakeButton("cmdSelectColor", "select ..");
    auto* layout = new QHBoxLayout(frame);
    layout->setSpacing(gap);
    layout->addWidget(shColor);
    layout->addWidget(new QLabel(QStringLiteral("actual")));
    layout->addStretch();
    layout->addWidget(cmdSelectColor);
    connect(cmdSelectColor, &QPushButton::clicked, this, &dlgOptions::cmdSelectColor_Click);
    return frame;
}

QWidget* dlgOptions::BuildHistory() {
    auto* frame = MakeFrame("Undo");
    spnHistory_ = Named(new QSpinBox, "spnHistory",
                        "Steps that need more are forgotten, the oldest first; five stay always");
    spnHistory_->setRange(0, Settings::mostHistoryMegabytes);
    spnHistory_->setSingleStep(64);
    spnHistory_->setSuffix(QStringLiteral(" MB"));
    spnHistory_->setValue(settings_.historyMegabytes);
    auto* layout = new QHBoxLayout(frame);
    layout->addWidget(MakeLabel("Memory for steps that can be undone", spnHistory_));
    layout->addStretch();
    layout->addWidget(spnHistory_);
    return frame;
}

QWidget* dlgOptions::BuildFolders() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setSpacing(gap);
    const std::array folders = {settings_.terragenFolder, settings_.objectFolder,
                                settings_.terrainFolder};
    for (std::size_t i = 0; i < MdlFolder::targets.size(); ++i) {
        const MdlFolder::Target& target = MdlFolder::targets.at(i);
        auto* text = new QLineEdit(QString::fromStdString(folders.at(i)));
        text->setObjectName(Words(target.textBox));
        // Only the button stores a folder, so nothing else may be typed.
        text->setReadOnly(true);
        text->setMinimumWidth(folderWidth);
        auto* button = MakeButton("", "...", "The folder is stored at once");
        button->setObjectName(Words(target.button));
        button->setAccessibleName(Words(target.title));
        button->setFixedWidth(button->fontMetrics().horizontalAdvance(button->text()) + 4 * gap);
        const int row = 3 * int(i);
        grid->addWidget(MakeLabel(folderCaptions.at(i), button), row, 0, 1, 2);
        grid->addWidget(text, row + 1, 0);
        grid->addWidget(button, row + 1, 1);
        grid->setRowMinimumHeight(row + 2, gap);
        connect(button, &QPushButton::clicked, this, [this, target] {
            RunStep(this, windowTitle(), [this, &target] { ChooseFolder(target); });
        });
    }
    grid->setRowStretch(grid->rowCount(), 1);
    return page;
}

QLayout* dlgOptions::BuildButtons() {
    auto* OKButton = MakeButton("OKButton", "&Save");
    auto* CancelButton = MakeButton("CancelButton", "&Cancel");
    OKButton->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    connect(OKButton, &QPushButton::clicked, this,
            [this] { RunStep(this, windowTitle(), [this] { OKButton_Click(); }); });
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

void dlgOptions::OKButton_Click() {
    OptionsSettings settings = settings_;
    settings.terrainSizeIndex = Option1_->checkedId();
    if (Option2_->checkedId() > 0)
        settings.ResizeMode = Option2_->checkedId();
    settings.PaletteRow = List1_->currentRow();
    settings.historyMegabytes = spnHistory_->value();
    settings.BackColor = ColourOf(workplace_.Window()->palette().color(QPalette::Window));
    SaveOptions(workplace_.TheSession().settings, settings);
    workplace_.TheSession().document.history.Megabytes(settings.historyMegabytes);
    accept();
}

void dlgOptions::reject() {
    workplace_.Window()->setPalette(windowBefore_);
    QDialog::reject();
}

void dlgOptions::cmdSelectColor_Click() {
    QWidget* window = workplace_.Window();
    const QPalette before = window->palette();
    QColorDialog dialog(before.color(QPalette::Window), this);
    dialog.setWindowTitle(QStringLiteral("Window Color"));
    connect(&dialog, &QColorDialog::currentColorChanged, window,
            [window](const QColor& colour) { window->setPalette(WindowColours(colour)); });
    if (dialog.exec() != QDialog::Accepted) {
        window->setPalette(before);
        return;
    }
    window->setPalette(WindowColours(dialog.selectedColor()));
}

void dlgOptions::chkRegTERFile_Click() {
    std::string reason;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool registered = RegExt::RegisterExtension(
        ".ter", "TerrainFiles", "Quillbrand", QCoreApplication::applicationFilePath().toStdString(),
        &reason, [this] { workplace_.TheHost().Yield(); });
    QApplication::restoreOverrideCursor();
    if (!registered)
        WarnUser(this, QString::fromStdString(reason), windowTitle());
}

void dlgOptions::ChooseFolder(const MdlFolder::Target& target) {
    const Session& session = workplace_.TheSession();
    FolderDialog dialog(Words(target.title), session.settings.ProgramFolder, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::string folder = dialog.Folder().toStdString();
    if (folder.empty()) {
        TellUser(this, Words(MdlFolder::noPathText), windowTitle());
        return;
    }
    const std::string shown = WriteFolder(session.settings, std::string(target.section), folder);
    findChild<QLineEdit*>(Words(target.textBox))->setText(QString::fromStdString(shown));
}

}  // namespace quillbrand
