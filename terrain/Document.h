#pragma once

#include <string>

#include "terrain/clsTerrain.h"

namespace quillbrand {

struct History {
    bool CanUndo() const { return false; }
    bool CanRedo() const { return false; }
    std::string NameOfUndo() const { return ""; }
    std::string NameOfRedo() const { return ""; }
};

/// The one document: heights with their header values, and what is known of their file.
struct Document {
    static constexpr auto noFile = "noname";

    clsTerrain CurrentTerrain;
    std::string CurrentFile = noFile;
    bool TerrainEmpty = true;   ///< no heights yet; save-like commands refuse
    bool TerrainSaved = false;  ///< set by every save, cleared by strokes of the stroke tools only
    History history;
    void Undo() {}
    void Redo() {}
};

}  // namespace quillbrand
