#include "ui/dialogs/FileDialogs.h"

#include <QFileDialog>

namespace quillbrand {

namespace {

/// "caption|*.a;*.b|..." as the list that the dialog takes.
QStringList NameFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        filters += parts[i].trimmed() + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return filters;
}

std::optional<ChosenFile> Choose(QFileDialog& dialog, const FileRequest& request) {
    const QStringList filters = NameFilters(request.filter);
    dialog.setWindowTitle(request.title);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(request.defaultExtension);
    if (!request.startFolder.empty())
        dialog.setDirectory(QString::fromStdString(request.startFolder.string()));
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const qsizetype index = filters.indexOf(dialog.selectedNameFilter());
    return ChosenFile{dialog.selectedFiles().front().toStdString(), static_cast<int>(index) + 1};
}

}  // namespace

FileRequest SettingRequest(const QString& title, const std::filesystem::path& programFolder) {
    return {.title = title,
            .filter = QStringLiteral("Setting |*.par"),
            .defaultExtension = QStringLiteral("par"),
            .startFolder = programFolder,
            .fileName = {}};
}

std::optional<ChosenFile> ChooseToOpen(QWidget* parent, const FileRequest& request) {
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Choose(dialog, request);
}

std::optional<ChosenFile> ChooseToSave(QWidget* parent, const FileRequest& request) {
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    return Choose(dialog, request);
}

}  // namespace quillbrand
