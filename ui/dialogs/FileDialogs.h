#pragma once

#include <QString>
#include <filesystem>
#include <optional>

class QWidget;

namespace quillbrand {

/// What a file dialog is told.
struct FileRequest {
    QString title;
    QString filter;            ///< pairs "caption|*.a;*.b", joined by "|"
    QString defaultExtension;  ///< without a point
    std::filesystem::path startFolder;
    QString fileName;
};

/// For a file of settings, which lies in the program folder unless the user says otherwise.
FileRequest SettingRequest(const QString& title, const std::filesystem::path& programFolder);

struct ChosenFile {
    std::filesystem::path path;
    int filterIndex;  ///< of the filter that the user left, from 1
};

/// An existing file, or nothing when the user cancels.
std::optional<ChosenFile> ChooseToOpen(QWidget* parent, const FileRequest& request);

/// A file to write; an existing one only after the user has confirmed.
std::optional<ChosenFile> ChooseToSave(QWidget* parent, const FileRequest& request);

}  // namespace quillbrand
