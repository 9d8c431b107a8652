#pragma once

#include <string>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// The one document: heights with their header values, and what is known of their file.
struct Document {
    static constexpr auto noFile = "noname";

    clsTerrain CurrentTerrain;
    std::string CurrentFile = noFile;
    bool TerrainEmpty = true;   ///< no heights yet; save-like commands refuse
    bool TerrainSaved = false;  ///< set by every save, cleared by strokes of the stroke tools only
};

}  // namespace quillbrand
