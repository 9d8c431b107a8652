#include "shell/RendererLink.h"

#include <QProcess>
#include <QStandardPaths>
#include <system_error>

#include "base/Fault.h"
#include "base/Files.h"
#include "shell/TerrainCommands.h"
#include "shell/vbConfig.h"
#include "terrain/TerWriter.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

namespace {

constexpr auto selectFolder = "Please select Folder of Terragen in 'Options'";
constexpr auto startFailed = "ERROR  Terragen";
constexpr auto defaultFile = "default.ter";

void SaveFirst(Session& session, Host& host, const std::function<void()>& saveUnnamed) {
    if (session.document.CurrentFile != Document::noFile) {
        SaveCurrentFile(session, host);
    } else {
        saveUnnamed();
        if (session.document.CurrentFile == Document::noFile) {
            host.Busy(false);
            throw Fault("Terragen not called", "Submit Terragen");
        }
    }
    session.document.TerrainSaved = true;
}

/// Gives a document without a file one, so that there is something to hand over.
void SaveDefault(Session& session, Host& host) {
    if (session.document.CurrentFile != Document::noFile)
        return;
    host.Busy(false);
    TerrainGuard guard(session.document.CurrentTerrain);
    SaveT(session.document.CurrentTerrain, defaultFile, host, OldTail::Drop);
    guard.Commit();
    session.document.CurrentFile = defaultFile;
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

void StartTerragen(Session& session, Host& host, const std::function<void()>& saveUnnamed) {
    if (session.document.TerrainEmpty)
        throw Fault("Terrain empty !", "Save");
    const Answer answer = host.Ask({"Terrain save, before start terragen", "Start Terragen",
                                    Buttons::YesNoCancel, QuestionId::SaveFirst});
    const std::string folder = vbConfig::ReadIni(session, "Terragen", "directory");
    if (folder.empty())
        throw Fault(selectFolder, "Start Terragen");
    if (answer == Answer::Cancel)
        return;
    if (answer == Answer::Yes)
        SaveFirst(session, host, saveUnnamed);
    else
        SaveDefault(session, host);
    StartRenderer(folder, session.document.CurrentFile);
}

}  // namespace quillbrand
