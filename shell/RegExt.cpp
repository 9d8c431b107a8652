#include "shell/RegExt.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>

#include "base/Fault.h"
#include "base/Files.h"
#include "base/IniFile.h"
#include "base/Text.h"
#include "base/XdgFolders.h"
#include "shell/FileUndo.h"

namespace quillbrand::RegExt {

namespace {

namespace fs = std::filesystem;

constexpr auto desktopTool = "update-desktop-database";
constexpr auto mimeTool = "update-mime-database";
constexpr int toolTime = 60'000;  // milliseconds
constexpr int waitTime = 20;      // milliseconds

/// A folder of the user's, of which `variable` may name another.
fs::path Needed(fs::path folder, const char* variable) {
    if (folder.empty())
        throw Fault(std::string("neither ") + variable + " nor HOME is set");
    return folder;
}

/// `text` with every character of `which` replaced by what `with` makes of it.
template <typename With>
std::string Replaced(const std::string& text, std::string_view which, With with) {
    std::string result;
    for (const char c : text)
        result += which.find(c) == std::string_view::npos ? std::string(1, c) : with(c);
    return result;
}

std::string Backslashed(const std::string& text, std::string_view which) {
    return Replaced(text, which, [](char c) { return std::string("\\") + c; });
}

std::string XmlText(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped().toStdString();
}

std::string MimePackage(const std::string& extension, const std::string& description) {
    return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") +
           "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
           "  <mime-type type=\"" +
           terrainType + "\">\n    <comment>" + XmlText(description) +
           "</comment>\n"
           "    <magic priority=\"60\">\n"
           "      <match type=\"string\" offset=\"0\" value=\"TERRAGENTERRAIN \"/>\n"
           "    </magic>\n"
           "    <glob pattern=\"*" +
           XmlText(extension) + "\"/>\n  </mime-type>\n</mime-info>\n";
}

std::string DesktopEntry(const std::string& product, const std::string& command) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=" +
           product +
           "\n"
           "GenericName=Terrain Editor\n"
           "Comment=Make and shape terrain heightfields\n"
           "Exec=" +
           ExecOf(command) +
           "\n"
           "Icon=" +
           LowerCase(product) +
           "\n"
           "Terminal=false\n"
           "Categories=Graphics;3DGraphics;\n"
           "MimeType=" +
           std::string(terrainType) + ";\n";
}

using Wait = std::function<void()>;

bool WaitForEnd(QProcess& process, const Wait& wait) {
    QElapsedTimer time;
    time.start();
    while (!process.waitForFinished(waitTime)) {
        if (process.state() == QProcess::NotRunning || time.hasExpired(toolTime))
            return false;
        if (wait)
            wait();
    }
    return true;
}

/// A tool of the desktop that makes its list of the files in `folder` anew. That there is none is
/// well: such a desktop reads the files themselves.
void RunTool(const char* name, const fs::path& folder, const Wait& wait) {
    const QString tool = QStandardPaths::findExecutable(QString::fromLatin1(name));
    if (tool.isEmpty())
        return;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, {QString::fromStdString(folder.string())});
    const bool ended = WaitForEnd(process, wait);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw Fault(std::string(name) + " failed: " +
                    (ended ? process.readAll().trimmed() : process.errorString()).toStdString());
}

void Register(FileUndo& undo, const fs::path& data, const std::string& extension,
              const std::string& description, const std::string& product,
              const std::string& command, const Wait& wait) {
    const fs::path config = Needed(XdgConfigHome(), "XDG_CONFIG_HOME");
    const std::string name = LowerCase(product);

    undo.Write(data / "mime/packages" / (name + ".xml"), MimePackage(extension, description));
    undo.Write(data / "applications" / (name + ".desktop"), DesktopEntry(product, command));
    IniFile defaults = IniFile::Read(config / "mimeapps.list");
    defaults.Set("Default Applications", terrainType, name + ".desktop");
    undo.Write(config / "mimeapps.list", defaults.Text());
    RunTool(desktopTool, data / "applications", wait);
    RunTool(mimeTool, data / "mime", wait);
}

/// After files were put back: lists that were made in between would name what is gone. What fails
/// now has been told of already.
void ForgetListed(const fs::path& data, const Wait& wait) {
    const auto renew = [&wait](const char* tool, const fs::path& folder) {
        try {
            RunTool(tool, folder, wait);
        } catch (const Fault&) {
            return;
        }
    };
    renew(desktopTool, data / "applications");
    std::error_code ignored;
    if (!fs::is_directory(data / "mime", ignored))
        return;
    // The tool needs this folder, though it may be empty, to make its lists.
    const bool made = fs::create_directory(data / "mime/packages", ignored);
    renew(mimeTool, data / "mime");
    if (made)
        fs::remove(data / "mime/packages", ignored);
}

}  // namespace

std::string ExecOf(const std::string& path) {
    // The rules for desktop entries leave no way to write these.
    if (path.empty() || path.find_first_of("=\r\n") != std::string::npos)
        throw Fault("the desktop cannot start a program of this path: " + path);
    std::string argument = '"' + Backslashed(path, "\"`$\\") + '"';
    argument = Replaced(argument, "%", [](char) { return std::string("%%"); });
    return Backslashed(argument, "\\") + " %f";
}

bool RegisterExtension(const std::string& extension, const std::string& description,
                       const std::string& product, const std::string& command, std::string* reason,
                       const std::function<void()>& wait) {
    try {
        const fs::path data = Needed(XdgDataHome(), "XDG_DATA_HOME");
        auto forget = qScopeGuard([&] { ForgetListed(data, wait); });
        FileUndo undo;
        Register(undo, data, extension, description, product, command, wait);
        undo.Commit();
        forget.dismiss();
        return true;
    } catch (const std::exception& error) {
        if (reason != nullptr)
            *reason = error.what();
        return false;
    }
}

}  // namespace quillbrand::RegExt
