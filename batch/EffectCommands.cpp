#include "shell/EffectCommands.h"

#include "batch/Batch.h"
#include "batch/Command.h"
#include "effects/QBFilter.h"

namespace quillbrand {

namespace {

/// The answer of the dialog that natural erosion shows.
ErosionSettings ErosionOf(const Arguments& given) {
    return {.dropCount = given.Get<int>("drops"),
            .dropWidth = given.Get<int>("width"),
            .slideDepth = given.Get<int>("slide"),
            .erosionDepth = given.Get<int>("erosion")};
}

void RunEffect(Batch& batch, const Arguments& given) {
    StartEffect(batch.session.document, batch.session.tools, batch.session.settings,
                {.code = given.Get<int>("name"),
                 .strength = static_cast<float>(given.Get<double>("strength")),
                 .zMin = given.Get<int>("zmin"),
                 .zMax = given.Get<int>("zmax"),
                 .seed = std::to_string(batch.session.tools.RandomSeedValue),
                 .startErosion = [&] { return ErosionOf(given); }},
                batch.host);
}

std::vector<std::string_view> EffectCaptions() {
    std::vector<std::string_view> captions;
    for (const QBFilter::Effect& effect : QBFilter::Effects())
        captions.push_back(effect.caption);
    return captions;
}

}  // namespace

std::vector<Command> EffectCommandTable() {
    return {
        {"effect",
         "runs an effect on the whole terrain; the last four keys are for natural erosion",
         {Key{"name", Choice(EffectCaptions(), 1)}.Required(),
          Key{"strength", Number(0, 10)}.Default("1"), Key{"zmin", WholeNumber()}.Default("-32768"),
          Key{"zmax", WholeNumber()}.Default("32768"),
          Key{"drops", WholeNumber(1000, 50000)}.Default("10000"),
          Key{"width", WholeNumber(1, 20)}.Default("9"),
          Key{"slide", WholeNumber(1, 10)}.Default("4"),
          Key{"erosion", WholeNumber(1, 8)}.Default("3")},
         RunEffect},
    };
}

}  // namespace quillbrand
