#include "ui/DocumentCommands.h"

#include "shell/TerrainCommands.h"
#include "shell/vbConfig.h"
#include "ui/dialogs/FileDialogs.h"
#include "ui/dialogs/Messages.h"
#include "ui/dialogs/dlgSaveAs.h"

namespace quillbrand {

namespace {

constexpr int typeTer = 1;

/// The folder for the next start. That it cannot be written must not make a save fail.
void RememberFolder(QWidget* window, const Session& session) {
    RunStep(window, QStringLiteral("Options"), [&] {
        vbConfig::WriteIni(session.settings, "Terrain", "Directory",
                           session.settings.TerrainDirectory.string());
    });
}

}  // namespace

void DocumentCommands::ShowTerrain(double zoomFactor) {
    workplace_.ResizePicture(zoomFactor);
    workplace_.TheHost().Busy(true);
    workplace_.TheHost().Status("Picture create...");
    workplace_.RebuildPicture();
}

bool DocumentCommands::AskToClear() {
    return workplace_.TheHost().Ask({"Terrain clear ?  Are you sure ?", "Terrain clear"}) ==
           Answer::Yes;
}

void DocumentCommands::Neu() {
    if (!AskToClear())
        return;
    NewTerrain(workplace_.TheSession().document);
    workplace_.RebuildPicture();
}

void DocumentCommands::Loeschen() {
    if (!AskToClear())
        return;
    Session& session = workplace_.TheSession();
    ClearTerrain(session.document, session.document.CurrentTerrain.XPoints());
    workplace_.RebuildPicture();
}

bool DocumentCommands::Oeffnen() {
    const auto chosen = ChooseToOpen(
        workplace_.Window(), {.title = QStringLiteral("Terrain open ..."),
                              .filter = QStringLiteral("Terrainfiles|*.ter"),
                              .defaultExtension = QStringLiteral("ter"),
                              .startFolder = workplace_.TheSession().settings.TerrainDirectory,
                              .fileName = {}});
    return chosen && Open(chosen->path);
}

bool DocumentCommands::Open(const std::filesystem::path& path) {
    OpenTerrain(workplace_.TheSession().document, workplace_.TheSession().tools.LoadMemory, path,
                workplace_.TheHost());
    ShowTerrain(0);
    return true;
}

bool DocumentCommands::RefuseEmpty() {
    if (!workplace_.TheSession().document.TerrainEmpty)
        return false;
    TellUser(workplace_.Window(), QStringLiteral("Terrain empty !"), QStringLiteral("Save"));
    return true;
}

bool DocumentCommands::Speichern() {
    Session& session = workplace_.TheSession();
    if (RefuseEmpty())
        return false;
    if (session.document.CurrentFile != Document::noFile)
        SaveCurrentFile(session.document, workplace_.TheHost());
    else
        FileSave(0);
    session.document.TerrainSaved = true;
    return true;
}

bool DocumentCommands::SpeichernAls() {
    if (RefuseEmpty())
        return false;
    FileSave(0);
    return true;
}

bool DocumentCommands::FileSave(int type) {
    Session& session = workplace_.TheSession();
    Host& host = workplace_.TheHost();
    session.tools.SaveType = type;
    if (type < typeTer) {
        dlgSaveAs dialog(workplace_.Window());
        dialog.exec();
        session.tools.SaveType = dialog.SaveType;
    }
    if (session.tools.SaveType != typeTer)
        return false;
    host.Busy(true);
    host.Status("Save.....");
    host.Yield();
    const auto chosen =
        ChooseToSave(workplace_.Window(), {.title = QStringLiteral("Terrain save ..."),
                                           .filter = QStringLiteral("Terrainfiles|*.ter"),
                                           .defaultExtension = QStringLiteral("ter"),
                                           .startFolder = session.settings.TerrainDirectory,
                                           .fileName = {}});
    if (chosen)
        session.settings.TerrainDirectory = chosen->path.parent_path();
    RememberFolder(workplace_.Window(), session);
    host.Busy(false);
    if (!chosen)
        return false;
    SaveTerrain(session.document, chosen->path, true, host);
    host.ActualScreen();
    return true;
}

void DocumentCommands::Backup() {
    Session& session = workplace_.TheSession();
    BackupTerrain(session, BackupPath(session.settings));
}

bool DocumentCommands::Restore() {
    Session& session = workplace_.TheSession();
    if (!session.BackupExists) {
        TellUser(workplace_.Window(),
                 QStringLiteral("Backup empty ! Use the Button BACKUP for protection of the "
                                "terrain !"),
                 QStringLiteral("Restore Terrain"));
        return false;
    }
    RestoreTerrain(session.document, BackupPath(session.settings));
    workplace_.ResizePicture();
    workplace_.TheHost().ActualScreen();
    workplace_.RebuildPicture();
    return true;
}

void DocumentCommands::Undo() {
    Document& document = workplace_.TheSession().document;
    const int size = document.CurrentTerrain.Size();
    document.Undo();
    ShowStep(size);
}

void DocumentCommands::Redo() {
    Document& document = workplace_.TheSession().document;
    const int size = document.CurrentTerrain.Size();
    document.Redo();
    ShowStep(size);
}

/// Zoom and view stay, but for what another size of the grid asks for.
void DocumentCommands::ShowStep(int sizeBefore) {
    if (workplace_.TheSession().document.CurrentTerrain.Size() != sizeBefore)
        workplace_.ResizePicture();
    workplace_.ShowFixHeight();
    workplace_.RebuildPicture();
    workplace_.TheHost().Busy(false);
    workplace_.TheHost().ActualScreen();
}

bool DocumentCommands::MayExit() {
    const Session& session = workplace_.TheSession();
    if (session.document.TerrainEmpty || session.document.TerrainSaved)
        return true;
    const Answer answer = workplace_.TheHost().Ask(
        {"The terrain is not saved!  Do you want to save?", "EXIT", Buttons::YesNoCancel});
    if (answer == Answer::Yes)
        return FileSave(0);
    return answer == Answer::No;
}

}  // namespace quillbrand
