#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/Files.h"

namespace quillbrand {

/// Writes several files, all of them or none: unless Commit() is reached, the destructor puts each
/// one back as it was and removes the folders that were made for them.
class FileUndo {
  public:
    FileUndo() = default;
    FileUndo(const FileUndo&) = delete;
    FileUndo& operator=(const FileUndo&) = delete;
    ~FileUndo();

    /// Replaces a file, and makes the folders that are missing above it. Throws Fault.
    void Write(const std::filesystem::path& path, const std::string& text);

    void Commit() { committed_ = true; }

  private:
    struct OldFile {
        std::filesystem::path path;
        std::optional<Bytes> content;  ///< nothing where there was no file
    };

    void MakeFolder(const std::filesystem::path& folder);
    void PutBack();

    std::vector<OldFile> files_;
    std::vector<std::filesystem::path> folders_;
    bool committed_ = false;
};

}  // namespace quillbrand
