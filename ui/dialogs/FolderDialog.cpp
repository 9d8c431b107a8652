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
    // The base would select in the list what is typed, and type what is selected: round in circles.
    disconnect(edit_, &QLineEdit::textChanged, this, nullptr);
    connect(this, &QFileDialog::currentChanged, this, &FolderDialog::ShowSelection);
    connect(this, &QFileDialog::directoryEntered, this, &FolderDialog::Entered);
    connect(edit_, &QLineEdit::textChanged, this, &FolderDialog::ShowSelection);
    GoTo(callback_.Initialised());
}

/// It takes the place of the choice of file types, which folders have none of.
void FolderDialog::AddStatusLine() {
    StatusText_ = Named(new QLabel, "StatusText");
    // A long path must not widen the window.
    StatusText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* grid = qobject_cast<QGridLayout*>(layout());
    auto* types = findChild<QWidget*>(QStringLiteral("fileTypeCombo"));
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(types), &row, &column, &rows, &columns);
    grid->addWidget(StatusText_, row, 0, 1, column + columns);
    types->hide();
    findChild<QWidget*>(QStringLiteral("fileTypeLabel"))->hide();
}

/// What is typed counts more than what is highlighted in the list.
QString FolderDialog::Folder() const {
    QString path = edit_->text();
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
    TellUser(this, QStringLiteral("There is no folder of this name: ") + edit_->text(),
             windowTitle());
    GoTo(callback_.ValidationFailed());
}

void FolderDialog::GoTo(const std::filesystem::path& folder) {
    setDirectory(QString::fromStdString(folder.string()));
    Entered();
}

/// The folder that is shown is selected until one in it is.
void FolderDialog::Entered() {
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
