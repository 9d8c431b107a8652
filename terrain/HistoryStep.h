#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "terrain/StepPacking.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// What travels with a step beside the heights.
struct DocumentState {
    TerrainValues terrain;
    bool TerrainEmpty = true;
    std::string CurrentFile;
    std::uint64_t number = 1;  ///< no two states of a history have the same

    /// Whether all is the same but the number, the running extremes, the file, which a save may
    /// change alone, and the texts of the header that only files need.
    bool SameAs(const DocumentState& other) const;
};

/// One command, from its first state to its last.
struct HistoryStep {
    std::string name;
    DocumentState before;
    DocumentState after;
    std::vector<PackedBlock> blocks;

    std::size_t Bytes() const;
};

}  // namespace quillbrand
