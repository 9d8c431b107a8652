#include "shell/FileUndo.h"

#include <algorithm>
#include <limits>
#include <system_error>

#include "base/Fault.h"
#include "base/Stdio.h"

namespace quillbrand {

namespace fs = std::filesystem;

FileUndo::~FileUndo() {
    if (!committed_)
        PutBack();
}

void FileUndo::Write(const fs::path& path, const std::string& text) {
    const fs::path target = FollowLinks(path);
    MakeFolder(target.parent_path());
    OldFile old{.path = target, .content = std::nullopt};
    if (STDIO::FileExists(target))
        old.content = ReadFile(target, std::numeric_limits<std::size_t>::max());
    ReplaceFile(target, AsBytes(text));
    files_.push_back(std::move(old));
}

void FileUndo::MakeFolder(const fs::path& folder) {
    std::error_code error;
    if (folder.empty() || fs::is_directory(folder, error))
        return;
    MakeFolder(folder.parent_path());
    if (!fs::create_directory(folder, error) && error)
        throw Fault("cannot make the folder " + folder.string() + ": " + error.message());
    folders_.push_back(folder);
}

void FileUndo::PutBack() {
    // The last comes first.
    std::reverse(files_.begin(), files_.end());
    std::reverse(folders_.begin(), folders_.end());
    std::error_code ignored;
    for (const OldFile& old : files_) {
        try {
            if (old.content)
                ReplaceFile(old.path, *old.content);
            else
                fs::remove(old.path, ignored);
        } catch (const Fault&) {
            // The others can still be put back.
            continue;
        }
    }
    for (const fs::path& folder : folders_)
        fs::remove(folder, ignored);
}

}  // namespace quillbrand
