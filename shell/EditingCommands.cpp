#include "shell/EditingCommands.h"

#include <cassert>

#include "effects/QBFilter.h"

namespace quillbrand {

namespace {

/// Runs `work` on a document as the command `name`; the busy flag is clear at its end.
template <typename Work>
void AsCommand(Document& document, const char* name, Host& host, Work work) {
    HeightsChange change(document, name);
    work(document.CurrentTerrain, document.TerrainEmpty);
    change.Commit();
    host.Busy(false);
}

std::string PointsText(int size) {
    const std::string side = std::to_string(size);
    return side + " x " + side;
}

}  // namespace

std::string NameOf(StrokeTool tool) {
    switch (tool) {
        case StrokeTool::Up:
            return "up";
        case StrokeTool::Down:
            return "down";
        case StrokeTool::Erode:
            return "Erode";
        case StrokeTool::Noise:
            return "Noise";
        case StrokeTool::Smooth:
            return "Smooth";
        default:
            return "Sharpen";
    }
}

void StartStroke(Document& document, Tools& tools, const Settings& settings, const Stroke& stroke,
                 const StrokeMap& map, Host& host) {
    QBFilter::RiverBed riverBed{.programFolder = settings.ProgramFolder,
                                .ErodePictureName = tools.ErodePictureName,
                                .seed = tools.seedText};
    HeightsChange change(document, NameOf(stroke.tool));
    RunStroke(document.CurrentTerrain, stroke, map,
              {.gaussTable = tools.gaussTable,
               .riverBed = riverBed,
               .TerrainEmpty = document.TerrainEmpty,
               .TerrainSaved = document.TerrainSaved},
              host);
    change.Commit();
    tools.ErodePictureName = riverBed.ErodePictureName;
    host.Busy(false);
}

void FillArea(Document& document, const Frame& frame, int height, Host& host) {
    AsCommand(document, "fill", host, [&](clsTerrain& terrain, bool& TerrainEmpty) {
        FillArea(terrain, frame, height, TerrainEmpty, host);
    });
}

void LiftArea(Document& document, const Frame& frame, int depth, Host& host) {
    AsCommand(document, "lift Terrain", host, [&](clsTerrain& terrain, bool& TerrainEmpty) {
        RaiseArea(terrain, frame, depth, TerrainEmpty, host);
    });
}

void LowerArea(Document& document, const Frame& frame, int depth, Host& host) {
    AsCommand(document, "lower Terrain", host, [&](clsTerrain& terrain, bool& TerrainEmpty) {
        LowerArea(terrain, frame, depth, TerrainEmpty, host);
    });
}

void ReflectArea(Document& document, const Frame& frame, Reflection way, Host& host) {
    const char* const name =
        way == Reflection::Vertically ? "Reflect vertically" : "Reflect horizontally";
    AsCommand(document, name, host, [&](clsTerrain& terrain, bool& TerrainEmpty) {
        ReflectArea(terrain, frame, way, TerrainEmpty, host);
    });
}

std::string ResizeDocument(Document& document, int size, int resizeMode, int roughness,
                           Host& host) {
    const int before = document.CurrentTerrain.Size();
    const bool isThrownAway = document.TerrainEmpty || before == size;
    AsCommand(document, "Resize", host, [&](clsTerrain& terrain, const bool& TerrainEmpty) {
        ResizeTerrain(
            terrain,
            {.size = size, .mode = resizeMode, .roughness = roughness, .isEmpty = TerrainEmpty},
            host);
    });
    const std::string now = PointsText(document.CurrentTerrain.Size());
    return isThrownAway ? "A flat terrain of " + now + " has taken the old one's place"
                        : "Resized from " + PointsText(before) + " to " + now;
}

}  // namespace quillbrand
