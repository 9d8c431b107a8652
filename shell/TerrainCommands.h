#pragma once

#include <filesystem>
#include <string>

#include "base/Host.h"
#include "shell/Session.h"

namespace quillbrand {

// The commands on the document as a whole. Each one that throws Fault leaves it as it was; each one
// that changes heights or header is a step of the history. Showing the result is the caller's.

/// "Neu": flat heights on the same grid. File name and height window stay.
void NewTerrain(Document& document);

/// "Löschen", answered with Yes: a flat grid of `points` per side, no file, and the ends -10
/// and 30 written to the height window, the lower one first.
void ClearTerrain(Document& document, int points);

/// "Öffnen" of a TER file. Returns false for a file that is none; the heights then stay, but the
/// document counts as read all the same. `memory` is what the reader remembers.
bool OpenTerrain(Document& document, mTerLoad::Memory& memory, const std::filesystem::path& path,
                 Host& host);

/// Saves as TER in a file of its own, which becomes the document's. `scale` stretches the heights
/// to the full range first; without it a height beyond 16 bits is a Fault, and so is an empty
/// terrain.
void SaveTerrain(Document& document, const std::filesystem::path& path, bool scale, Host& host);

/// "Speichern" of a document that has a file: stretched to the full range, over the old file, whose
/// surplus stays where it is longer. Fault for an empty terrain.
void SaveCurrentFile(Document& document, Host& host);

/// Stretches the heights to the full range.
void ScaleHeights(Document& document, Host& host);

/// "Backup" into the file `path`.
void BackupTerrain(Session& session, const std::filesystem::path& path);

/// "Restore" from the file `path`. Name and objects are not part of a backup; the terrain counts as
/// loaded.
void RestoreTerrain(Document& document, const std::filesystem::path& path);

/// The one backup slot, in the program folder; a normal exit removes the file if this session made
/// it.
std::filesystem::path BackupPath(const Settings& settings);
void RemoveBackup(const Session& session);

/// Saves the terrain as the Perlin set `name` (.QPS), stretched to the full range.
void SaveAsPerlinSet(Document& document, const std::filesystem::path& path, const std::string& name,
                     Host& host);

}  // namespace quillbrand
