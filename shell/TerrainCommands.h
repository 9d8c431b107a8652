#pragma once

#include <filesystem>
#include <string>

#include "base/Host.h"
#include "shell/Session.h"

namespace quillbrand {

// The commands on the document as a whole. Each one that throws Fault leaves session and terrain
// as they were. Showing the result is the caller's.

/// "Neu": flat heights on the same grid. File name and height window stay.
void NewTerrain(Session& session);

/// "Löschen", answered with Yes: a flat grid of `points` per side, no file, and the ends -10
/// and 30 written to the height window, the lower one first.
void ClearTerrain(Session& session, int points);

/// "Öffnen" of a TER file. Returns false for a file that is none; the heights then stay, but the
/// session goes on as if it had been read.
bool OpenTerrain(Session& session, const std::filesystem::path& path, Host& host);

/// Saves as TER in a file of its own, which becomes the document's. `scale` stretches the heights
/// to the full range first; without it a height beyond 16 bits is a Fault, and so is an empty
/// terrain.
void SaveTerrain(Session& session, const std::filesystem::path& path, bool scale, Host& host);

/// "Speichern" of a document that has a file: stretched to the full range, over the old file, whose
/// surplus stays where it is longer. Fault for an empty terrain.
void SaveCurrentFile(Session& session, Host& host);

/// "Backup" into the file `path`.
void BackupTerrain(Session& session, const std::filesystem::path& path);

/// "Restore" from the file `path`. Name, flags and objects are not part of a backup, but heights
/// that were loaded end an empty terrain.
void RestoreTerrain(Session& session, const std::filesystem::path& path);

/// The one backup slot, in the program folder; a normal exit removes the file.
std::filesystem::path BackupPath(const Session& session);
void RemoveBackup(const Session& session);

/// Saves the terrain as the Perlin set `name` (.QPS), stretched to the full range.
void SaveAsPerlinSet(Session& session, const std::filesystem::path& path, const std::string& name,
                     Host& host);

}  // namespace quillbrand
