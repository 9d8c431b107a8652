#pragma once

#include <QFileDialog>

#include "shell/MdlFolder.h"

class QLabel;
class QLineEdit;

namespace quillbrand {

/// Asks for a folder. The line `StatusText` tells which one is selected; what is typed must be a
/// folder.
class FolderDialog : public QFileDialog {
    Q_OBJECT

  public:
    /// Opens at the program folder.
    FolderDialog(const QString& title, const std::filesystem::path& programFolder, QWidget* parent);

    /// The selected folder, or "" where the selection is none of the file system.
    QString Folder() const;

    void accept() override;

  private:
    void AddStatusLine();
    QString Typed() const;
    void GoTo(const std::filesystem::path& folder);
    void Entered();
    void ShowSelection();

    MdlFolder::BrowseCallback callback_;
    QLabel* StatusText_;
    QLineEdit* edit_ = nullptr;
};

}  // namespace quillbrand
