#pragma once

#include <string>

#include "base/Host.h"
#include "effects/ErosionSettings.h"
#include "shell/Session.h"

namespace quillbrand {

/// What the panel "Effects" and its surroundings tell an effect.
struct EffectRequest {
    int code;              ///< 1..12
    float strength;        ///< 0..10
    Height zMin = -32768;  ///< the heights strictly between zMin and zMax take part
    Height zMax = 32768;
    std::string seed = {};           ///< the generator's, as its text stands; for river erosion
    StartErosion startErosion = {};  ///< asks for the settings of natural erosion
};

/// "Start !": an effect on the whole grid. Throws Fault, with the heights as they were, for an
/// empty terrain and what the effect cannot do.
void StartEffect(Document& document, Tools& tools, const Settings& settings,
                 const EffectRequest& request, Host& host);

}  // namespace quillbrand
