#pragma once

#include <string>

#include "terrain/History.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// What a user works on: the terrain, its file, its flags and the way back. Commands change it
/// within a HeightsChange.
struct Document {
    static constexpr auto noFile = "noname";

    clsTerrain CurrentTerrain;
    std::string CurrentFile = noFile;
    bool TerrainEmpty = true;   ///< no heights yet; save-like commands refuse
    bool TerrainSaved = false;  ///< set by every save, cleared by strokes of the stroke tools only
    History history;

    /// Goes back or forth by that many commands, as far as there are any, and returns how many.
    /// Heights, header, FixHeight, TerrainEmpty and the running extremes become what they were;
    /// CurrentFile does where the command changed it; TerrainSaved is set where MarkSaved was
    /// called. Throws Fault where there is no memory, with the document as some command left it.
    int Undo(int steps = 1) { return history.Undo(*this, steps); }
    int Redo(int steps = 1) { return history.Redo(*this, steps); }

    /// The file holds the document as it stands, or as the open HeightsChange will leave it.
    void MarkSaved() {
        TerrainSaved = true;
        history.MarkSaved();
    }
};

}  // namespace quillbrand
