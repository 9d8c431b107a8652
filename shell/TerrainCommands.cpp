#include "shell/TerrainCommands.h"

#include "base/Fault.h"
#include "generator/PerlinSetFile.h"
#include "terrain/Backup.h"
#include "terrain/ScaleTerrainStep.h"
#include "terrain/TerWriter.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

namespace {

void Save(Session& session, const std::filesystem::path& path, bool scale, OldTail tail,
          Host& host) {
    if (session.document.TerrainEmpty)
        throw Fault("Terrain empty !", "Save");
    host.Busy(true);
    host.Status("Save Terrainfile...");
    host.Yield();
    clsTerrain& terrain = session.document.CurrentTerrain;
    TerrainGuard guard(terrain);
    if (scale)
        ScaleTerrainStep(terrain, host);
    SaveT(terrain, path, host, tail);
    guard.Commit();
    session.document.CurrentFile = path.string();
    session.document.TerrainSaved = true;
    host.Busy(false);
}

}  // namespace

void NewTerrain(Session& session) {
    session.document.CurrentTerrain.Init(session.document.CurrentTerrain.XPoints());
    session.document.TerrainEmpty = true;
}

void ClearTerrain(Session& session, int points) {
    clsTerrain& terrain = session.document.CurrentTerrain;
    terrain.Init(points);
    try {
        terrain.MinTU(-10);
        terrain.MaxTU(30);
    } catch (const Fault&) {
        // The old window lies too far away to be moved end by end.
        terrain.HeightScale(40);
        terrain.BaseHeight(10);
    }
    session.document.TerrainEmpty = true;
    session.document.CurrentFile = Document::noFile;
}

bool OpenTerrain(Session& session, const std::filesystem::path& path, Host& host) {
    host.Status("Load Terrainfile...");
    host.Yield();
    const bool isTer = mTerLoad::LoadTerrain(path, session.document.CurrentTerrain,
                                             session.tools.LoadMemory, host);
    session.document.CurrentFile = path.string();
    session.tools.ViewZoom = 1.0;
    session.document.TerrainEmpty = false;
    return isTer;
}

void SaveTerrain(Session& session, const std::filesystem::path& path, bool scale, Host& host) {
    Save(session, path, scale, OldTail::Drop, host);
}

void SaveCurrentFile(Session& session, Host& host) {
    Save(session, session.document.CurrentFile, true, OldTail::Keep, host);
}

void BackupTerrain(Session& session, const std::filesystem::path& path) {
    SaveBackup(session.document.CurrentTerrain, path);
    session.BackupExists = true;
}

void RestoreTerrain(Session& session, const std::filesystem::path& path) {
    LoadBackup(session.document.CurrentTerrain, path);
    session.document.CurrentTerrain.Range();
    session.document.TerrainEmpty = false;
}

std::filesystem::path BackupPath(const Session& session) {
    return session.settings.ProgramFolder / "Backup.qbt";
}

void RemoveBackup(const Session& session) {
    std::error_code ignored;
    std::filesystem::remove(BackupPath(session), ignored);
}

void SaveAsPerlinSet(Session& session, const std::filesystem::path& path, const std::string& name,
                     Host& host) {
    TerrainGuard guard(session.document.CurrentTerrain);
    SavePerlinSet(session.document.CurrentTerrain, path, name, host);
    guard.Commit();
}

}  // namespace quillbrand
