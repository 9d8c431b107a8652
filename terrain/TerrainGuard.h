#pragma once

#include <utility>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Holds a copy of a terrain while a command that can fail changes it, and puts the copy back
/// unless the command reached its end.
class TerrainGuard {
  public:
    explicit TerrainGuard(clsTerrain& terrain) : terrain_(terrain), copy_(terrain) {}
    TerrainGuard(const TerrainGuard&) = delete;
    TerrainGuard& operator=(const TerrainGuard&) = delete;
    ~TerrainGuard() {
        if (!committed_)
            std::swap(terrain_, copy_);
    }

    /// The command is done: the changes stay.
    void Commit() { committed_ = true; }

  private:
    clsTerrain& terrain_;
    clsTerrain copy_;
    bool committed_ = false;
};

}  // namespace quillbrand
