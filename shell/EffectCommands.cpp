#include "shell/EffectCommands.h"

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

void StartEffect(Session& session, const EffectRequest& request, Host& host) {
    if (session.TerrainEmpty)
        throw Fault("Terrain empty", "Effects");
    host.Busy(true);
    clsTerrain& terrain = session.CurrentTerrain;
    const QBFilter::Area area{
        .extent = terrain.XPoints(), .zMin = request.zMin, .zMax = request.zMax};
    QBFilter::RiverBed riverBed{.programFolder = session.ProgramFolder,
                                .ErodePictureName = session.ErodePictureName,
                                .seed = request.seed};
    TerrainGuard guard(terrain);
    QBFilter::ApplyEffect(
        request.code, terrain, request.strength, area,
        {.elevator = session.elevator, .riverBed = riverBed, .startErosion = request.startErosion},
        host);
    guard.Commit();
    session.ErodePictureName = riverBed.ErodePictureName;
    host.Busy(false);
}

}  // namespace quillbrand
