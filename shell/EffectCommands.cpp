#include "shell/EffectCommands.h"

#include "base/Fault.h"
#include "base/Stdio.h"
#include "effects/QBFilter.h"
#include "terrain/HeightsChange.h"

namespace quillbrand {

namespace {

std::string NameOf(int code) {
    for (const QBFilter::Effect& effect : QBFilter::Effects())
        if (effect.code == code)
            return STDIO::TrimmedText(effect.caption);
    return "Effects";
}

}  // namespace

void StartEffect(Document& document, Tools& tools, const Settings& settings,
                 const EffectRequest& request, Host& host) {
    if (document.TerrainEmpty)
        throw Fault("Terrain empty", "Effects");
    host.Busy(true);
    clsTerrain& terrain = document.CurrentTerrain;
    const QBFilter::Area area{
        .extent = terrain.XPoints(), .zMin = request.zMin, .zMax = request.zMax};
    QBFilter::RiverBed riverBed{.programFolder = settings.ProgramFolder,
                                .ErodePictureName = tools.ErodePictureName,
                                .seed = request.seed};
    HeightsChange change(document, NameOf(request.code));
    QBFilter::ApplyEffect(
        request.code, terrain, request.strength, area,
        {.elevator = tools.elevator, .riverBed = riverBed, .startErosion = request.startErosion},
        host);
    change.Commit();
    tools.ErodePictureName = riverBed.ErodePictureName;
    host.Busy(false);
}

}  // namespace quillbrand
