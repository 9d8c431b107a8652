#include "terrain/mTerLoad.h"

#include "base/Files.h"
#include "terrain/ScaleTerrainStep.h"
#include "terrain/TerFormat.h"
#include "terrain/TerReader.h"

namespace quillbrand::mTerLoad {

namespace {

/// A terrain whose raw heights span less than this is offered to be refined.
constexpr std::int64_t wideEnough = 50000;

const Question& RefineQuestion() {
    static const Question question{
        "Terrain doesn't use the maximum extension of 65538 steps. Shall it be refined?\n\r"
        "(Attention: Other height value could arise than in the original file!)",
        "load terrain ....", Buttons::YesNo, QuestionId::Refine};
    return question;
}

}  // namespace

bool LoadTerrain(const std::filesystem::path& path, clsTerrain& terrain, Memory& memory,
                 Host& host) {
    host.Progress(0);
    host.Yield();
    host.Busy(true);
    host.Status("load Terrain.......");
    const Bytes bytes = ReadFile(path, TerFormat::mostBytes);
    const bool isTer = IsTer(bytes);
    if (isTer) {
        const TerContent content = ParseTer(bytes, path.string());
        host.Yield();
        memory.CRVM = content.CRVM.value_or(memory.CRVM);
        StoreTer(content, terrain);
        terrain.CRVM(memory.CRVM);
        host.Yield();
    }
    if (std::int64_t{terrain.max()} - terrain.min() < wideEnough &&
        host.Ask(RefineQuestion()) == Answer::Yes)
        ScaleTerrainStep(terrain, host);
    host.Busy(false);
    return isTer;
}

}  // namespace quillbrand::mTerLoad
