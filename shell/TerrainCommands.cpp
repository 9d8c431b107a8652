#include "shell/TerrainCommands.h"

#include "base/Fault.h"
#include "generator/PerlinSetFile.h"
#include "terrain/Backup.h"
#include "terrain/HeightsChange.h"
#include "terrain/ScaleTerrainStep.h"
#include "terrain/TerWriter.h"

namespace quillbrand {

namespace {

void Save(Document& document, const std::filesystem::path& path, bool scale, OldTail tail,
          Host& host) {
    if (document.TerrainEmpty)
        throw Fault("Terrain empty !", "Save");
    host.Busy(true);
    host.Status("Save Terrainfile...");
    host.Yield();
    HeightsChange change(document, "Save");
    if (scale)
        ScaleTerrainStep(document.CurrentTerrain, host);
    SaveT(document.CurrentTerrain, path, host, tail);
    document.CurrentFile = path.string();
    document.MarkSaved();
    change.Commit();
    host.Busy(false);
}

}  // namespace

void NewTerrain(Document& document) {
    HeightsChange change(document, "New");
    document.CurrentTerrain.Init(document.CurrentTerrain.XPoints());
    document.TerrainEmpty = true;
    change.Commit();
}

void ClearTerrain(Document& document, int points) {
    HeightsChange change(document, "Clear Terrain");
    clsTerrain& terrain = document.CurrentTerrain;
    terrain.Init(points);
    try {
        terrain.MinTU(-10);
        terrain.MaxTU(30);
    } catch (const Fault&) {
        // The old window lies too far away to be moved end by end.
        terrain.HeightScale(40);
        terrain.BaseHeight(10);
    }
    document.TerrainEmpty = true;
    document.CurrentFile = Document::noFile;
    change.Commit();
}

bool OpenTerrain(Document& document, mTerLoad::Memory& memory, const std::filesystem::path& path,
                 Host& host) {
    host.Status("Load Terrainfile...");
    host.Yield();
    HeightsChange change(document, "Open");
    const bool isTer = mTerLoad::LoadTerrain(path, document.CurrentTerrain, memory, host);
    document.CurrentFile = path.string();
    document.TerrainEmpty = false;
    change.Commit();
    return isTer;
}

void SaveTerrain(Document& document, const std::filesystem::path& path, bool scale, Host& host) {
    Save(document, path, scale, OldTail::Drop, host);
}

void SaveCurrentFile(Document& document, Host& host) {
    Save(document, document.CurrentFile, true, OldTail::Keep, host);
}

void ScaleHeights(Document& document, Host& host) {
    HeightsChange change(document, "Optimized");
    ScaleTerrainStep(document.CurrentTerrain, host);
    change.Commit();
}

void BackupTerrain(Session& session, const std::filesystem::path& path) {
    SaveBackup(session.document.CurrentTerrain, path);
    session.BackupExists = true;
}

void RestoreTerrain(Document& document, const std::filesystem::path& path) {
    HeightsChange change(document, "Restore Terrain");
    LoadBackup(document.CurrentTerrain, path);
    document.CurrentTerrain.Range();
    document.TerrainEmpty = false;
    change.Commit();
}

std::filesystem::path BackupPath(const Settings& settings) {
    return settings.ProgramFolder / "Backup.qbt";
}

void RemoveBackup(const Session& session) {
    if (!session.BackupExists)
        return;
    std::error_code ignored;
    std::filesystem::remove(BackupPath(session.settings), ignored);
}

void SaveAsPerlinSet(Document& document, const std::filesystem::path& path, const std::string& name,
                     Host& host) {
    HeightsChange change(document, "Save as Perlin set");
    SavePerlinSet(document.CurrentTerrain, path, name, host);
    change.Commit();
}

}  // namespace quillbrand
