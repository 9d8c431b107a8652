#include "shell/ZViewCommand.h"

#include <algorithm>
#include <cassert>

#include "base/Fault.h"
#include "terrain/HeightsChange.h"

namespace quillbrand {

int LastSection(const clsTerrain& terrain) {
    return std::max(1, terrain.Size() - 1);
}

void DrawZView(Picture& picture, Document& document, const Section& section) {
    assert(section.position >= 1 && section.position <= LastSection(document.CurrentTerrain));
    if (document.TerrainEmpty)
        throw Fault("Terrain empty !", "Z-View");
    clsTerrain& terrain = document.CurrentTerrain;
    HeightsChange change(document, "Z-View");
    terrain.ScaleTerrain();
    const double range = SectionRange(terrain, section, picture);
    if (range == 0)
        throw Fault("Terrain flat", "Z-view");
    DrawSection(picture, terrain, section, range);
    change.Commit();
}

}  // namespace quillbrand
