#include "shell/RendererLink.h"

#include <QProcess>
#include <QStandardPaths>
#include <system_error>

#include "base/Fault.h"
#include "base/Files.h"
#include "shell/TerrainCommands.h"
#include "shell/vbConfig.h"
#include "terrain/HeightsChange.h"
#include "terrain/TerWriter.h"

namespace quillbrand {

namespace {

constexpr auto selectFolder = "Please select Folder of Terragen in 'Options'";
constexpr auto startFailed = "ERROR  Terragen";
constexpr auto defaultFile = "default.ter";

void SaveFirst(Document& document, Host& host, const std::function<void()>& saveUnnamed) {
    if (document.CurrentFile != Document::noFile) {
        SaveCurrentFile(document, host);
    } else {
        saveUnnamed();
        if (document.CurrentFile == Document::noFile) {
            host.Busy(false);
            throw Fault("Terragen not called", "Submit Terragen");
        }
    }
    document.TerrainSaved = true;
}

/// Gives a document without a file one, so that there is something to hand over.
void SaveDefault(Document& document, Host& host) {
    if (document.CurrentFile != Document::noFile)
        return;
    host.Busy(false);
    HeightsChange change(document, "Terragen");
    SaveT(document.CurrentTerrain, defaultFile, host, OldTail::Drop);
    document.CurrentFile = defaultFile;
    change.Commit();
}

bool Start(const QString& program, const QStringList& arguments) {
    return QProcess::startDetached(program, arguments);
}

}  // namespace

void StartRenderer(const std::filesystem::path& folder, const std::string& file) {
    const QStringList arguments = {QStringLiteral("-t"), QString::fromStdString(file)};
    std::string reason;
    for (const char* name : {"terragen.exe", "terragen"}) {
        const std::filesystem::path path = FindInFolder(folder, name);
        std::error_code ignored;
        if (!std::filesystem::is_regular_file(path, ignored))
            continue;
        const QString program = QString::fromStdString(path.string());
        // The system knows best what it can run.
        if (Start(program, arguments))
            return;
        if (path.extension().empty()) {
            reason += "\r\nThe system does not run " + path.string();
            continue;
        }
        const QString wine = QStandardPaths::findExecutable(QStringLiteral("wine"));
        if (!wine.isEmpty() && Start(wine, QStringList(program) + arguments))
            return;
        reason += "\r\nThe system does not run " + path.string() +
                  (wine.isEmpty() ? ", and wine is not installed" : ", and wine does not start");
    }
    if (reason.empty())
        reason = "\r\nThere is no terragen.exe and no terragen in " + folder.string();
    throw Fault(selectFolder + reason, startFailed);
}

void StartTerragen(Document& document, const Settings& settings, Host& host,
                   const std::function<void()>& saveUnnamed) {
    if (document.TerrainEmpty)
        throw Fault("Terrain empty !", "Save");
    const Answer answer = host.Ask({"Terrain save, before start terragen", "Start Terragen",
                                    Buttons::YesNoCancel, QuestionId::SaveFirst});
    const std::string folder = vbConfig::ReadIni(settings, "Terragen", "directory");
    if (folder.empty())
        throw Fault(selectFolder, "Start Terragen");
    if (answer == Answer::Cancel)
        return;
    if (answer == Answer::Yes)
        SaveFirst(document, host, saveUnnamed);
    else
        SaveDefault(document, host);
    StartRenderer(folder, document.CurrentFile);
}

}  // namespace quillbrand
