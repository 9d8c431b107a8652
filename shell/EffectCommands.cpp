#include "shell/EffectCommands.h"

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

void StartEffect(Session& session, const EffectRequest& request, Host& host) {
    if (session.document.TerrainEmpty)
        throw Fault("Terrain empty", "Effects");
    host.Busy(true);
    clsTerrain& terrain = session.document.CurrentTerrain;
    const QBFilter::Area area{
        .extent = terrain.XPoints(), .zMin = request.zMin, .zMax = request.zMax};
    QBFilter::RiverBed riverBed{.programFolder = session.settings.ProgramFolder,
                                .ErodePictureName = session.tools.ErodePictureName,
                                .seed = request.seed};
    TerrainGuard guard(terrain);
    QBFilter::ApplyEffect(request.code, terrain, request.strength, area,
                          {.elevator = session.tools.elevator,
                           .riverBed = riverBed,
                           .startErosion = request.startErosion},
                          host);
    guard.Commit();
    session.tools.ErodePictureName = riverBed.ErodePictureName;
    host.Busy(false);
}

}  // namespace quillbrand
