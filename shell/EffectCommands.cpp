#include "shell/EffectCommands.h"

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

void StartEffect(Session& session, int code, float strength, Height zMin, Height zMax, Host& host) {
    if (session.TerrainEmpty)
        throw Fault("Terrain empty", "Effects");
    host.Busy(true);
    clsTerrain& terrain = session.CurrentTerrain;
    const QBFilter::Area area{.extent = terrain.XPoints(), .zMin = zMin, .zMax = zMax};
    TerrainGuard guard(terrain);
    QBFilter::ApplyEffect(code, terrain, strength, area, host);
    guard.Commit();
    host.Busy(false);
}

}  // namespace quillbrand
