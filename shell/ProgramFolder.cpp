#include "shell/ProgramFolder.h"

#include <unistd.h>

#include <system_error>

#include "base/Fault.h"
#include "base/XdgFolders.h"

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

fs::path OwnFolder() {
    const fs::path dataHome = XdgDataHome();
    return dataHome.empty() ? fs::path() : dataHome / "quillbrand";
}

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool IsWorkplace(const fs::path& folder) {
    return IsFolder(folder / "PS") && access(folder.c_str(), W_OK) == 0;
}

/// Copies one file or folder under a name of its own first, so that a start that is cut short
/// leaves nothing that looks whole.
void CopyWhole(const fs::path& source, const fs::path& target) {
    const fs::path half =
        target.parent_path() / ("." + target.filename().string() + "." + std::to_string(getpid()));
    std::error_code ignored;
    try {
        fs::copy(source, half, fs::copy_options::recursive);
        fs::rename(half, target);
    } catch (const fs::filesystem_error&) {
        fs::remove_all(half, ignored);
        // Another start may have been faster.
        if (!fs::exists(target, ignored))
            throw;
    }
}

/// Copies what is missing; what is there is the user's.
void FillFolder(const fs::path& installed, const fs::path& folder) {
    fs::create_directories(folder);
    if (!IsFolder(installed))
        return;
    for (const auto& entry : fs::directory_iterator(installed)) {
        const fs::path name = entry.path().filename();
        if (!fs::exists(folder / name))
            CopyWhole(entry.path(), folder / name);
    }
}

fs::path ToldFolder(const fs::path& told) {
    if (IsFolder(told))
        return told;
    throw Fault("the program folder " + told.string() +
                (fs::exists(told) ? " is no folder" : " does not exist"));
}

fs::path OwnFolderFilled(const ProgramFolderPlaces& places) {
    if (places.own.empty())
        throw Fault("there is no program folder: neither QUILLBRAND_HOME nor HOME is set");
    try {
        FillFolder(places.installed, places.own);
    } catch (const fs::filesystem_error& error) {
        throw Fault("cannot make the program folder " + places.own.string() + ": " +
                    error.code().message());
    }
    return places.own;
}

}  // namespace

ProgramFolderPlaces PlacesOfThisProcess(const std::string& home) {
    std::error_code ignored;
    const fs::path folder = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    return {.told = home.empty() ? Environment("QUILLBRAND_HOME") : home,
            .executable = folder,
            .own = OwnFolder(),
            .installed = folder.parent_path() / "share/quillbrand"};
}

fs::path FindProgramFolder(const ProgramFolderPlaces& places) {
    if (!places.told.empty())
        return ToldFolder(places.told);
    if (!places.executable.empty() && IsWorkplace(places.executable))
        return places.executable;
    return OwnFolderFilled(places);
}

}  // namespace quillbrand
