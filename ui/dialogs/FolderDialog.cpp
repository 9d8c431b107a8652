#include "ui/dialogs/FolderDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>

#include "ui/controls/Controls.h"
#include "ui/dialogs/Messages.h"

namespace quillbrand {

FolderDialog::FolderDialog(const QString& title, const std::filesystem::path& programFolder,
                           QWidget* parent)
    : QFileDialog(parent, title), callback_(programFolder) {
    setObjectName(QStringLiteral("FolderDialog"));
    // The desktop's own dialog has no place for the status line.
    setOption(DontUseNativeDialog);
    setOption(ShowDirsOnly);
    setFileMode(Directory);
    AddStatusLine();
    edit_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (edit_ != nullptr) {
        // The base would select in the list what is typed, and type what is selected: in circles.
        disconnect(edit_, &QLineEdit::textChanged, this, nullptr);
        connect(edit_, &QLineEdit::textChanged, this, &FolderDialog::ShowSelection);
    }
    connect(this, &QFileDialog::currentChanged, this, &FolderDialog::ShowSelection);
    connect(this, &QFileDialog::directoryEntered, this, &FolderDialog::Entered);
    GoTo(callback_.Initialised());
}

/// It takes the place of the choice of file types, which folders have none of. The parts of the
/// base are its own affair, so that one may be missing.
void FolderDialog::AddStatusLine() {
    StatusText_ = Named(new QLabel, "StatusText");
    // A long path must not widen the window.
    StatusText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* grid = qobject_cast<QGridLayout*>(layout());
    auto* types = findChild<QWidget*>(QStringLiteral("fileTypeCombo"));
    const int place = grid != nullptr && types != nullptr ? grid->indexOf(types) : -1;
    if (place < 0) {
        if (layout() != nullptr)
            layout()->addWidget(StatusText_);
        return;
    }
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(place, &row, &column, &rows, &columns);
    grid->addWidget(StatusText_, row, 0, 1, column + columns);
    types->hide();
    if (auto* label = findChild<QWidget*>(QStringLiteral("fileTypeLabel")))
        label->hide();
}

QString FolderDialog::Typed() const {
    return edit_ != nullptr ? edit_->text() : QString();
}

/// What is typed counts more than what is highlighted in the list.
QString FolderDialog::Folder() const {
    QString path = Typed();
    if (path.isEmpty())
        path = selectedFiles().value(0);
    if (path == QLatin1String("~") || path.startsWith(QLatin1String("~/")))
        path.replace(0, 1, QDir::homePath());
    const QFileInfo folder(directory(), path);
    return folder.isDir() ? QDir::cleanPath(folder.absoluteFilePath()) : QString();
}

void FolderDialog::accept() {
    if (!Folder().isEmpty()) {
        done(Accepted);
        return;
    }
    TellUser(this, QStringLiteral("There is no folder of this name: ") + Typed(), windowTitle());
    GoTo(callback_.ValidationFailed());
}

void FolderDialog::GoTo(const std::filesystem::path& folder) {
    setDirectory(QString::fromStdString(folder.string()));
    Entered();
}

/// The folder that is shown is selected until one in it is.
void FolderDialog::Entered() {
    if (edit_ != nullptr)
        edit_->clear();
    ShowSelection();
}

void FolderDialog::ShowSelection() {
    // What is no folder can be tried too: it is told then.
    if (const auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox")))
        for (QAbstractButton* button : buttons->buttons())
            button->setEnabled(true);
    const QString folder = Folder();
    if (folder.isEmpty())
        return;
    StatusText_->setText(QString::fromStdString(callback_.SelectionChanged(folder.toStdString())));
    StatusText_->setToolTip(folder);
}

}  // namespace quillbrand
