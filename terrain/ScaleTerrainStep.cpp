#include "terrain/ScaleTerrainStep.h"

namespace quillbrand {

void ScaleTerrainStep(clsTerrain& terrain, Host& host) {
    host.Status("Scale Terrain...");
    host.Busy(true);
    terrain.ScaleTerrain();
    host.Progress(100);
    host.ActualScreen();
    host.Yield();
}

}  // namespace quillbrand
