#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

/// The choice of a folder in the options dialog, without its window.
namespace quillbrand::MdlFolder {

/// One of the three folders that can be chosen, by the names of its controls.
struct Target {
    std::string_view button;
    std::string_view textBox;
    std::string_view title;    ///< of the folder dialog
    std::string_view section;  ///< for WriteFolder (shell/Options.h)
};

constexpr std::array<Target, 3> targets = {{
    {"command1", "Text1", "Select Folder Of Terragen.exe :", "Terragen"},
    {"Command2", "Text2", "Select Folder Of Objects :", "Objects"},
    {"Command3", "Text3", "Select Folder Of terrains :", "Terrain"},
}};

/// What the user is told when the dialog gives no path of the file system.
constexpr std::string_view noPathText = "Fehler beim Extrahieren des ausgewählten Pfades";

/// What the folder dialog asks while it is open. One dialog, one object.
class BrowseCallback {
  public:
    explicit BrowseCallback(std::filesystem::path programFolder)
        : start_(std::move(programFolder)) {}

    /// The dialog is up: the folder to select, the program's.
    const std::filesystem::path& Initialised() const { return start_; }

    /// Another folder was selected; it is remembered. Returns the status text to show.
    std::string SelectionChanged(const std::filesystem::path& path) {
        LastFolder_ = path;
        return "Sie haben " + path.string() + " gewählt.";
    }

    /// What was typed is no folder: the folder to select again, the last one that was selected, or
    /// the first.
    const std::filesystem::path& ValidationFailed() const {
        return LastFolder_.empty() ? start_ : LastFolder_;
    }

  private:
    std::filesystem::path start_;
    std::filesystem::path LastFolder_;
};

}  // namespace quillbrand::MdlFolder
